#include <QCheckBox>
#include <QDir>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QToolButton>

#include "controls/message_box.h"
#include "fixtures.h"
#include "series/series_messages.h"

// Page 2: dropping files, the file list and its buttons, reordering, and the messages of the
// evaluation.
class SeriesPageTest : public QObject, mainwin_test::WindowSession {
  Q_OBJECT

 private slots:
  void init() {
    Reset();
    Start();
  }
  void FortyFiveFilesKeepFortyAndAFurtherDropIsRefused();
  void DropsOnAnOutputPageExtendTheSeries();
  void FoldersGiveTheirSeriesFilesAndOtherFilesAreRefused();
  void AutoCalculateEvaluatesOnEveryDrop();
  void DeleteButtonsShortenTheListAndClearRows();
  void FilesOfADeepFolderAreToldApartAndShownWhole();
  void SelectingTheOnlyFileShowsItsValues();
  void SelectingAFileOffersToMoveItUp_data();
  void SelectingAFileOffersToMoveItUp();
  void DensityNeedsAnArea();
  void FilesWithoutCurrentAreReportedInOneBox();

 private:
  QStringList SeriesFiles(int count);
  QString Row(int row) { return Find<QTableWidget>("StringGridFiles")->item(row, 0)->text(); }
  QString Hint(int row) { return Find<QTableWidget>("StringGridFiles")->item(row, 0)->toolTip(); }
  QStringList SeriesPaths();
  void ShowSeriesPage(bool autoCalculate = true);
};

QStringList SeriesPageTest::SeriesFiles(int count) {
  QStringList files;
  for (int i = 1; i <= count; ++i) {
    files.append(mainwin_test::WriteSeriesFile(dir_, QStringLiteral("p%1.s2p").arg(i, 2, 10, QLatin1Char('0')), "! Ic=1m"));
  }
  return files;
}

QStringList SeriesPageTest::SeriesPaths() {
  QStringList paths;
  for (const std::string& path : Window().Series().Paths()) paths.append(QString::fromStdString(path));
  return paths;
}

void SeriesPageTest::ShowSeriesPage(bool autoCalculate) {
  ShowTab(1);
  Find<QCheckBox>("CheckBoxAutoCalculate")->setChecked(autoCalculate);
}

void SeriesPageTest::FortyFiveFilesKeepFortyAndAFurtherDropIsRefused() {
  ShowSeriesPage(false);
  mainwin_test::MessageLog log;
  const QStringList files = SeriesFiles(46);
  Window().FilesDropped(files.mid(0, 45));
  QCOMPARE(Hint(40), files[39]);
  QCOMPARE(Find<QLabel>("LabelNo")->text(), QStringLiteral("Number of files = 40"));
  QVERIFY(log.Messages().isEmpty());
  Window().FilesDropped({files[45]});
  QCOMPARE(log.Messages(),
           QStringList({"Maximum of 40 files reached! Perform calculation to get the results."}));
}

void SeriesPageTest::DropsOnAnOutputPageExtendTheSeries() {
  ShowSeriesPage(false);
  const QStringList files = SeriesFiles(3);
  Window().FilesDropped(files.mid(0, 2));
  ShowTab(5);
  QCOMPARE(Window().PageNumber(), 6);
  Window().FilesDropped({files[2]});
  QCOMPARE(SeriesPaths(), files);
  QCOMPARE(Find<QListWidget>("CheckListBox1")->count(), 0);
  QCOMPARE(Hint(3), files[2]);
}

void SeriesPageTest::FoldersGiveTheirSeriesFilesAndOtherFilesAreRefused() {
  ShowSeriesPage(false);
  mainwin_test::MessageLog log;
  QDir(dir_.path()).mkdir("lot");
  const QString a = mainwin_test::WriteSeriesFile(dir_, "lot/a.s2p", "! Ic=1m");
  const QString notes = mainwin_test::WriteSeriesFile(dir_, "notes.txt", "! Ic=1m");
  Window().FilesDropped({dir_.filePath("lot"), notes});
  QCOMPARE(SeriesPaths(), QStringList({a}));
  QCOMPARE(log.Messages().size(), 1);
  QVERIFY2(log.Messages().front().contains(notes), qPrintable(log.Messages().front()));
}

void SeriesPageTest::AutoCalculateEvaluatesOnEveryDrop() {
  ShowSeriesPage(false);
  const QStringList files = SeriesFiles(2);
  Window().FilesDropped({files[0]});
  QVERIFY(Window().Results().empty());
  Find<QCheckBox>("CheckBoxAutoCalculate")->setChecked(true);
  Window().FilesDropped({files[1]});
  QCOMPARE(Window().Results().size(), std::size_t{2});
  QCOMPARE(Window().Results()[1].current, 1e-3);
}

void SeriesPageTest::DeleteButtonsShortenTheListAndClearRows() {
  ShowSeriesPage(false);
  const QStringList files = SeriesFiles(3);
  Window().FilesDropped(files);
  QTest::mouseClick(Find<QToolButton>("SpeedButtonDeletaLastFile"), Qt::LeftButton);
  QCOMPARE(SeriesPaths(), files.mid(0, 2));
  QVERIFY(Row(3).isEmpty() && Hint(3).isEmpty());
  QStringList questions;
  bool answer = false;
  const controls::QuestionInterception asked([&](const QString& text) {
    questions.append(text);
    return answer;
  });
  QTest::mouseClick(Find<QToolButton>("SpeedButtonDeleteList"), Qt::LeftButton);
  QCOMPARE(SeriesPaths(), files.mid(0, 2));
  answer = true;
  QTest::mouseClick(Find<QToolButton>("SpeedButtonDeleteList"), Qt::LeftButton);
  QCOMPARE(questions, QStringList(2, QStringLiteral("Remove all 2 files from the series list?")));
  QCOMPARE(Window().Series().SeriesCount(), std::size_t{0});
  QVERIFY(Row(1).isEmpty() && Row(2).isEmpty());
  QCOMPARE(Find<QLabel>("LabelNo")->text(), QStringLiteral("Number of files = 0"));
}

// Regression: names alike in their last characters showed as identical rows, cut short by the column.
void SeriesPageTest::FilesOfADeepFolderAreToldApartAndShownWhole() {
  ShowSeriesPage(false);
  const QString folder = "measurements/wafer_07/die_12/bias_sweep";
  QVERIFY(QDir(dir_.path()).mkpath(folder));
  const QStringList files = {
      mainwin_test::WriteSeriesFile(dir_, folder + "/HBT_Ic=0.5mA_Vce=1.5V_T=25C.s2p", "! Ic=0.5m"),
      mainwin_test::WriteSeriesFile(dir_, folder + "/HBT_Ic=1.0mA_Vce=1.5V_T=25C.s2p", "! Ic=1m")};
  Window().FilesDropped(files);
  auto* grid = Find<QTableWidget>("StringGridFiles");
  QVERIFY2(Row(1).endsWith("...Ic=0.5mA_Vce=1.5V_T=25C.s2p") && Row(1) != Row(2), qPrintable(Row(1)));
  for (int row = 1; row <= 2; ++row) {
    QCOMPARE(Hint(row), files[row - 1]);
    QVERIFY(QFontMetrics(grid->font()).horizontalAdvance(Row(row)) < grid->columnWidth(0) - 6);
  }
}

void SeriesPageTest::SelectingTheOnlyFileShowsItsValues() {
  ShowSeriesPage();
  Window().FilesDropped(SeriesFiles(1));
  mainwin_test::MessageLog log;
  mainwin_test::QuestionLog questions(true);
  emit Find<QTableWidget>("StringGridFiles")->cellClicked(1, 0);
  QCOMPARE(log.Messages(), QStringList({QString::fromStdString(series::FileValuesText(Window().Results().at(0)))}));
  QVERIFY(questions.Questions().isEmpty());
}

void SeriesPageTest::SelectingAFileOffersToMoveItUp_data() {
  QTest::addColumn<bool>("answer");
  QTest::addColumn<int>("row");
  QTest::addColumn<QList<int>>("order");  // file numbers afterwards
  QTest::newRow("row 2 moves up") << true << 2 << QList<int>{2, 1, 3};
  QTest::newRow("answering no keeps the order") << false << 2 << QList<int>{1, 2, 3};
  QTest::newRow("a row without a file asks nothing") << true << 4 << QList<int>{1, 2, 3};
}

void SeriesPageTest::SelectingAFileOffersToMoveItUp() {
  QFETCH(bool, answer);
  QFETCH(int, row);
  QFETCH(QList<int>, order);
  ShowSeriesPage();
  QStringList files;
  for (int i = 1; i <= 3; ++i) {
    files.append(mainwin_test::WriteSeriesFile(dir_, QString("f%1.s2p").arg(i), QString("! Ic=%1m").arg(i)));
  }
  Window().FilesDropped(files);
  mainwin_test::QuestionLog questions(answer);
  emit Find<QTableWidget>("StringGridFiles")->cellClicked(row, 0);
  QCOMPARE(questions.Questions().size(), row <= 3 ? 1 : 0);
  for (const QString& asked : questions.Questions()) {
    QVERIFY2(asked.startsWith("fT=") && asked.endsWith(" - Move set one position to the top?"), qPrintable(asked));
  }
  for (int i = 0; i < 3; ++i) {
    QCOMPARE(SeriesPaths()[i], files[order[i] - 1]);
    QCOMPARE(Hint(i + 1), files[order[i] - 1]);
    // "Auto Calculate" evaluated again: the currents follow their files.
    QCOMPARE(Window().Results()[static_cast<std::size_t>(i)].current, order[i] * 1e-3);
  }
}

void SeriesPageTest::DensityNeedsAnArea() {
  ShowSeriesPage(false);
  Window().FilesDropped(SeriesFiles(2));
  Find<QCheckBox>("CheckBoxDensity")->setChecked(true);
  Find<QLineEdit>("AreaEingabe")->setText("0");
  mainwin_test::MessageLog log;
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  QCOMPARE(log.Messages(), QStringList({"The current density needs a transistor area above 0 µm². Enter the area, "
                                        "then calculate again!"}));
  QVERIFY(Window().Results().empty());
  Find<QLineEdit>("AreaEingabe")->setText("500");
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  QCOMPARE(Window().Results().size(), std::size_t{2});
}

// With the file number on the x-axis no current is read: one box lists both files.
void SeriesPageTest::FilesWithoutCurrentAreReportedInOneBox() {
  ShowSeriesPage(false);
  Find<QRadioButton>("RadioButtonFileNo")->setChecked(true);
  const QStringList files = SeriesFiles(2);
  Window().FilesDropped(files);
  mainwin_test::MessageLog log;
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  const auto noCurrent = [](const QString& file) {
    return "Possibly the file " + file + " might be errorness (e.g. no Ic specified).";
  };
  QCOMPARE(log.Messages(), QStringList{noCurrent(files[0]) + '\n' + noCurrent(files[1])});
  QCOMPARE(Window().Results().size(), std::size_t{2});
}

int RunSeriesPageTests(int argc, char** argv) {
  SeriesPageTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "series_page_test.moc"
