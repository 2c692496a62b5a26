#include <QFontMetrics>
#include <QTableWidget>
#include <tuple>

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
  void FortyFilesFillTheListAndAFurtherDropIsRefused();
  void DropsExtendTheSeriesFromEveryPage();
  void DeleteButtonsShortenTheListAndClearRows();
  void FilesOfADeepFolderAreToldApartAndShownWhole();
  void SelectingTheOnlyFileShowsItsValues();
  void SelectingAFileOffersToMoveItUp();
  void CalculationTellsWhatIsMissing();

 private:
  // Series files p01.s2p... whose current in mA is their number.
  QStringList SeriesFiles(int count);
  QString Row(int row) { return Find<QTableWidget>("StringGridFiles")->item(row, 0)->text(); }
  QString Hint(int row) { return Find<QTableWidget>("StringGridFiles")->item(row, 0)->toolTip(); }
  QStringList SeriesPaths();
  void ShowSeriesPage(bool autoCalculate = true);
};

QStringList SeriesPageTest::SeriesFiles(int count) {
  QStringList files;
  for (int i = 1; i <= count; ++i) {
    const QString name = QStringLiteral("p%1.s2p").arg(i, 2, 10, QLatin1Char('0'));
    files.append(mainwin_test::WriteSeriesFile(dir_, name, QStringLiteral("! Ic=%1m").arg(i)));
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

// Which files of a drop are kept is the series list's own test.
void SeriesPageTest::FortyFilesFillTheListAndAFurtherDropIsRefused() {
  ShowSeriesPage(false);
  mainwin_test::MessageLog log;
  const QStringList files = SeriesFiles(41);
  Window().FilesDropped(files.mid(0, 40));
  QCOMPARE(Hint(40), files[39]);
  QCOMPARE(Find<QLabel>("LabelNo")->text(), QStringLiteral("Number of files = 40"));
  Window().FilesDropped({files[40]});
  QCOMPARE(log.Messages(), QStringList({"Maximum of 40 files reached! Perform calculation to get the results."}));
}

// A drop on an output page extends the series as well; a folder gives its series files in its
// place, and other files are refused.
void SeriesPageTest::DropsExtendTheSeriesFromEveryPage() {
  ShowSeriesPage(false);
  mainwin_test::MessageLog log;
  const QStringList files = SeriesFiles(3);
  Window().FilesDropped(files.mid(0, 2));
  ShowTab(5);
  QCOMPARE(Window().PageNumber(), 6);
  QDir(dir_.path()).mkdir("lot");
  const QString inLot = mainwin_test::WriteSeriesFile(dir_, "lot/a.s2p", "! Ic=1m");
  const QString notes = mainwin_test::WriteSeriesFile(dir_, "notes.txt", "! Ic=1m");
  Window().FilesDropped({dir_.filePath("lot"), notes, files[2]});
  QCOMPARE(SeriesPaths(), QStringList({files[0], files[1], inLot, files[2]}));
  QCOMPARE(Find<QListWidget>("CheckListBox1")->count(), 0);
  QCOMPARE(Hint(4), files[2]);
  QVERIFY(Window().Results().empty());  // "Auto Calculate" is off
  QCOMPARE(log.Messages().size(), 1);
  QVERIFY2(log.Messages().front().contains(notes), qPrintable(log.Messages().front()));
}

void SeriesPageTest::DeleteButtonsShortenTheListAndClearRows() {
  ShowSeriesPage(false);
  const QStringList files = SeriesFiles(3);
  Window().FilesDropped(files);
  QTest::mouseClick(Find<QToolButton>("SpeedButtonDeletaLastFile"), Qt::LeftButton);
  QCOMPARE(SeriesPaths(), files.mid(0, 2));
  QVERIFY(Row(3).isEmpty() && Hint(3).isEmpty());
  {
    mainwin_test::QuestionLog no(false);
    QTest::mouseClick(Find<QToolButton>("SpeedButtonDeleteList"), Qt::LeftButton);
  }
  QCOMPARE(SeriesPaths(), files.mid(0, 2));
  mainwin_test::QuestionLog yes(true);
  QTest::mouseClick(Find<QToolButton>("SpeedButtonDeleteList"), Qt::LeftButton);
  QCOMPARE(yes.Questions(), QStringList({"Remove all 2 files from the series list?"}));
  QCOMPARE(Window().Series().SeriesCount(), std::size_t{0});
  QVERIFY(Row(1).isEmpty() && Row(2).isEmpty());
  QCOMPARE(Find<QLabel>("LabelNo")->text(), QStringLiteral("Number of files = 0"));
}

// Regression: names alike in their last characters showed as identical rows, cut short by the column.
void SeriesPageTest::FilesOfADeepFolderAreToldApartAndShownWhole() {
  ShowSeriesPage(false);
  const QString folder = "measurements/wafer_07/die_12/bias_sweep";
  QVERIFY(QDir(dir_.path()).mkpath(folder));
  QStringList files;
  for (const QString ic : {"0.5", "1.0"}) {
    files.append(mainwin_test::WriteSeriesFile(dir_, folder + "/HBT_Ic=" + ic + "mA_Vce=1.5V_T=25C.s2p", "! Ic=1m"));
  }
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

// "No" keeps the order, a row without a file asks nothing, "Yes" moves the file up.
void SeriesPageTest::SelectingAFileOffersToMoveItUp() {
  ShowSeriesPage();
  const QStringList files = SeriesFiles(3);
  Window().FilesDropped(files);
  const std::tuple<bool, int, QList<int>> clicks[] = {{false, 2, {1, 2, 3}}, {true, 4, {1, 2, 3}}, {true, 2, {2, 1, 3}}};
  for (const auto& [answer, row, order] : clicks) {  // order: the file numbers afterwards
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
}

// The density needs an area. With the file number on the x-axis no current is read: one box lists
// both files (its text is the evaluation's own test).
void SeriesPageTest::CalculationTellsWhatIsMissing() {
  ShowSeriesPage(false);
  Find<QRadioButton>("RadioButtonFileNo")->setChecked(true);
  Find<QCheckBox>("CheckBoxDensity")->setChecked(true);
  Find<QLineEdit>("AreaEingabe")->setText("0");
  const QStringList files = SeriesFiles(2);
  Window().FilesDropped(files);
  mainwin_test::MessageLog log;
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  QCOMPARE(log.Messages(), QStringList({"The current density needs a transistor area above 0 µm². Enter the area, "
                                        "then calculate again!"}));
  QVERIFY(Window().Results().empty());
  Find<QLineEdit>("AreaEingabe")->setText("500");
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  const QString shown = log.Messages().value(1);
  QVERIFY2(log.Messages().size() == 2 && shown.contains(files[0]) && shown.contains(files[1]), qPrintable(shown));
  QCOMPARE(Window().Results().size(), std::size_t{2});
}

int RunSeriesPageTests(int argc, char** argv) { return mainwin_test::RunTests<SeriesPageTest>(argc, argv); }

#include "series_page_test.moc"
