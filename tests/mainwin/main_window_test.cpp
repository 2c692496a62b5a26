#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>

#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>
#include <filesystem>

#include "fixtures.h"
#include "mainwin/file_names.h"
#include "mainwin/help_boxes.h"
#include "mainwin/history_list.h"
#include "mainwin/settings_file.h"
#include "numerics/data_set.h"
#include "numerics/prefixed_number.h"

using mainwin::TSDIAppForm;

namespace {

struct Option {
  const char* key;
  const char* control;
};
const Option kOptions[] = {
    {"With Lgnd", "CheckBoxLgnd"}, {"j Output", "CheckBoxDensity"}, {"Connect Points", "CheckBoxConnect"}};

}  // namespace

class MainWindowTest : public QObject, mainwin_test::WindowSession {
  Q_OBJECT

 private slots:
  void init() { Reset(); }
  void StartupLoadsTheFirstFourArgumentsAndTellsAboutTheOthers();
  void StartupWithoutSettingsFileShowsBuiltInValues();
  void StartupFillsEditsFromSettingsFile();
  void StartupChecksOptionOnlyForYes_data();
  void StartupChecksOptionOnlyForYes();
  void ClosingWritesSettingsThatReadBackWithOptionsOff();
  void ClosingKeepsTheRecentFilesAndThePosition();
  void SettingsThatCannotBeReadOrWrittenAreToldOnceWithTheReason();
  void OutputPagesNeedTwoSeriesFiles_data();
  void OutputPagesNeedTwoSeriesFiles();
  void TabsCarryThePageCaptions();
  void HelpShowsTheBoxOfThePage();
  void ToolsThatStartNothingSayWhatWasTried_data();
  void ToolsThatStartNothingSayWhatWasTried();
  void ReadTouchstoneFilesIsKeptAndOffersTheAutomaticMultiplier();
  void EveryExitClosesTheWindow_data();
  void EveryExitClosesTheWindow();

 private:
  QStringList Files(int count);
};

QStringList MainWindowTest::Files(int count) {
  QStringList files;
  for (int i = 1; i <= count; ++i) {
    files.append(mainwin_test::WriteTwoPortFile(dir_, QStringLiteral("f%1.s2p").arg(i), 2 + i));
  }
  return files;
}

// A missing argument still counts as one of the four; each that is not a data file is told as
// what it is, and a name that is not UTF-8 opens the very file it names.
void MainWindowTest::StartupLoadsTheFirstFourArgumentsAndTellsAboutTheOthers() {
  mainwin_test::MessageLog log;
  const QStringList files = Files(3);
  const std::string latin1 = dir_.path().toStdString() + "/f\xE9.s2p";
  std::filesystem::copy_file(files[0].toStdString(), latin1);
  const QString missing = dir_.filePath("absent.s2p");
  const QString pipe = dir_.filePath("pipe.s2p");
  QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  Start({mainwin::DecodeFileName(latin1), missing, dir_.path(), pipe, files[1], files[2]});
  QCOMPARE(log.Messages(),
           QStringList({"File " + missing + " is not present!",
                        "File " + dir_.path() + " cannot be read (Is a directory). Choose an S-parameter data file.",
                        "File " + pipe + " cannot be read (a pipe, not a regular file). Choose an S-parameter data file.",
                        "No more than 4 files can be open! Not loaded: " + files[1] + ", " + files[2]}));
  QCOMPARE(numerics::DataSets().openCount, 1);
  QCOMPARE(numerics::DataSets().sets[0].pointCount, 3);
  QCOMPARE(Window().Series().Path(0), latin1);
}

void MainWindowTest::StartupWithoutSettingsFileShowsBuiltInValues() {
  mainwin_test::MessageLog log;
  Start();
  QCOMPARE(Find<QLineEdit>("foEingabe")->text(), QStringLiteral("    2.00G"));
  QCOMPARE(Find<QLineEdit>("LgndEingabe")->text(), QStringLiteral("  100.00p"));
  QCOMPARE(Find<QLineEdit>("AreaEingabe")->text(), QStringLiteral("  1000.0"));
  QVERIFY(Find<QRadioButton>("RadioButtonMHz")->isChecked());
  QVERIFY(!Find<QCheckBox>("CheckBoxLgnd")->isChecked());
  QVERIFY(log.Messages().isEmpty());
}

void MainWindowTest::StartupFillsEditsFromSettingsFile() {
  mainwin_test::WriteSettingsFile(
      "[Variablen]\nfo=  5.00G\nLgnd=  470p\nArea=  1.20k\nf Multiplier=2\nComment=two\\nlines\n");
  Start();
  QCOMPARE(Find<QLineEdit>("foEingabe")->text(), QStringLiteral("    5.00G"));
  QCOMPARE(Find<QLineEdit>("LgndEingabe")->text(), QStringLiteral("  470.00p"));
  QCOMPARE(Find<QLineEdit>("AreaEingabe")->text(), QStringLiteral("  1200.0"));
  QVERIFY(Find<QRadioButton>("RadioButtonHz")->isChecked());  // up to 2 means Hz
  QCOMPARE(Find<QPlainTextEdit>("MemoComment")->toPlainText(), QStringLiteral("two\nlines"));
}

// Only "Yes" checks an option; not "Ja" as the program writes it, nor "yes".
void MainWindowTest::StartupChecksOptionOnlyForYes_data() {
  QTest::addColumn<int>("yes");
  for (int i = 0; i < 3; ++i) QTest::addRow("%s", kOptions[i].key) << i;
}

void MainWindowTest::StartupChecksOptionOnlyForYes() {
  QFETCH(int, yes);
  const char* const stored[] = {"=Yes\n", "=Ja\n", "=yes\n"};
  QString text = "[Options]\n";
  for (int i = 0; i < 3; ++i) text += kOptions[i].key + QString(stored[(i - yes + 3) % 3]);
  mainwin_test::WriteSettingsFile(text);
  Start();
  for (int i = 0; i < 3; ++i) QCOMPARE(Find<QCheckBox>(kOptions[i].control)->isChecked(), i == yes);
}

void MainWindowTest::ClosingWritesSettingsThatReadBackWithOptionsOff() {
  Start();
  Find<QLineEdit>("foEingabe")->setText("3.3G");
  Find<QLineEdit>("AreaEingabe")->setText("  640");
  Find<QCheckBox>("CheckBoxLgnd")->setChecked(true);
  Find<QRadioButton>("RadioButtonGHz")->setChecked(true);
  Find<QPlainTextEdit>("MemoComment")->setPlainText("a\nb");
  Window().close();
  // The keys in their order, the comment on one line, the switches in German.
  const QString text = mainwin_test::ReadSettingsFile();
  const QRegularExpression layout(R"(^\[Variablen\]\nfo=.*\nLgnd=.*\nArea=.*\nf Multiplier=.*\nComment=a\\nb\n)"
                                  R"(\[Options\]\nWith Lgnd=Ja\nj Output=Nein\nConnect Points=Nein\n$)");
  QVERIFY2(layout.match(text).hasMatch(), qPrintable(text));
  const QString multiplier = text.section("f Multiplier=", 1).section('\n', 0, 0);
  QCOMPARE(numerics::ParseValueText(multiplier.toStdString()).value, 1e9);

  Start();
  QVERIFY(!Find<QCheckBox>("CheckBoxLgnd")->isChecked());
  QVERIFY(Find<QRadioButton>("RadioButtonGHz")->isChecked());
  QCOMPARE(numerics::ParseValueText(Find<QLineEdit>("foEingabe")->text().toStdString()).value, 3.3e9);
  QCOMPARE(numerics::ParseValueText(Find<QLineEdit>("AreaEingabe")->text().toStdString()).value, 640.0);
  QCOMPARE(Find<QPlainTextEdit>("MemoComment")->toPlainText(), QStringLiteral("a\nb"));
}

void MainWindowTest::ClosingKeepsTheRecentFilesAndThePosition() {
  const QStringList files = Files(2);
  Start(files);
  Window().move(123, 77);
  Window().close();
  QSettings settings;
  QCOMPARE(settings.value("Software/netrix/HistoryList1/MRUList10").toString(), files[1]);
  QCOMPARE(settings.value("Software/netrix/HistoryList1/MRUList11").toString(), files[0]);
  Start();
  QCOMPARE(Window().HistoryList().Items(), QStringList({files[1], files[0]}));
  QCOMPARE(Window().pos(), QPoint(123, 77));
}

// netrix.ini and the store of the recent files as folders: the real reason, once at the start for
// the store, once at the end for both; netrix.ini is not replaced, since it could not be read.
void MainWindowTest::SettingsThatCannotBeReadOrWrittenAreToldOnceWithTheReason() {
  const QString ini = mainwin::SettingsFilePath();
  const QString store = QSettings().fileName();
  QVERIFY(QDir().mkpath(ini) && QDir().mkpath(store));
  mainwin_test::MessageLog log;
  Start(Files(1));
  Window().close();
  QCOMPARE(log.Messages(),
           QStringList({"The recent files and the window's place could not be read from " + store +
                            " (Is a directory); the program starts without them.",
                        "The settings were not saved: " + ini + " cannot be read (Is a directory), and saving would "
                            "replace what it holds. Move it out of the way to keep the settings next time!\n\n"
                            "The recent files and the window's place could not be saved to " + store +
                            " (Is a directory). Check that file and its folder to keep them next time!"}));
  QVERIFY(QFileInfo(ini).isDir());
}

// Page 3 is the first output page, page 6 the last.
void MainWindowTest::OutputPagesNeedTwoSeriesFiles_data() {
  QTest::addColumn<int>("tab");
  QTest::addColumn<int>("files");
  QTest::addColumn<int>("landing");
  for (int tab : {2, 5}) {
    QTest::addRow("page %d, one file", tab + 1) << tab << 1 << 1;
    QTest::addRow("page %d, two files", tab + 1) << tab << 2 << tab;
  }
}

void MainWindowTest::OutputPagesNeedTwoSeriesFiles() {
  QFETCH(int, tab);
  QFETCH(int, files);
  QFETCH(int, landing);
  mainwin_test::MessageLog log;
  Start(Files(files));
  ShowTab(tab);
  QCOMPARE(Find<QStackedWidget>("Notebook1")->currentIndex(), landing);
  QCOMPARE(Window().PageNumber(), landing + 1);
  QCOMPARE(Find<QTabBar>("TabSet1")->currentIndex(), landing);
  const QStringList expected = landing == tab ? QStringList() : QStringList({"Please insert two or more files."});
  QCOMPARE(log.Messages(), expected);
}

void MainWindowTest::TabsCarryThePageCaptions() {
  Start();
  auto* tabs = Find<QTabBar>("TabSet1");
  const QStringList captions = {"S-Parameter vs Frequency", "Input: Extracted F.O.M. vs Parameter",
                                "fT, fmax Output", "k, MSG, MAG Output", "Stability Limit", "Tabular Output"};
  QCOMPARE(tabs->count(), captions.size());
  for (int i = 0; i < tabs->count(); ++i) QCOMPARE(tabs->tabText(i), captions[i]);
  QCOMPARE(Window().windowTitle(), QStringLiteral("S-Parameter Analysis"));
}

void MainWindowTest::HelpShowsTheBoxOfThePage() {
  Start();
  QTest::mouseClick(Find<QPushButton>("HelpBtn"), Qt::LeftButton);
  QVERIFY(forms_->HilfeBox()->isVisible());
  QVERIFY(!forms_->HilfeFOMBox()->isVisible());
  forms_->HilfeBox()->hide();
  ShowTab(1);
  Find<QAction>("Help1")->trigger();
  QVERIFY(forms_->HilfeFOMBox()->isVisible());
  QCOMPARE(forms_->HilfeFOMBox()->windowTitle(), QStringLiteral("Help for S-Parameter Analysis"));
  QVERIFY(!forms_->HilfeBox()->isVisible());
}

void MainWindowTest::ToolsThatStartNothingSayWhatWasTried_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<QString>("message");
  QTest::newRow("calculator") << "Calculator1" << "\"Calculator\" started nothing: none of gnome-calculator, kcalc,";
  QTest::newRow("mail") << "EMail1"
                        << "\"E-Mail to the Author\" started nothing: the desktop has no program that opens mailto:";
}

// With an empty search path, and no desktop on the test platform, nothing can be started.
void MainWindowTest::ToolsThatStartNothingSayWhatWasTried() {
  QFETCH(QString, item);
  QFETCH(QString, message);
  const QByteArray path = qgetenv("PATH");
  const auto restore = qScopeGuard([&] { qputenv("PATH", path); });
  qputenv("PATH", dir_.path().toLocal8Bit());
  Start();
  mainwin_test::MessageLog log;
  Find<QAction>(qPrintable(item))->trigger();
  QCOMPARE(log.Messages().size(), 1);
  QVERIFY2(log.Messages().front().startsWith(message) && log.Messages().front().endsWith(", then try again!"),
           qPrintable(log.Messages().front()));
}

void MainWindowTest::ReadTouchstoneFilesIsKeptAndOffersTheAutomaticMultiplier() {
  mainwin_test::MessageLog log;
  Start();
  auto* item = Find<QAction>("ReadTouchstoneFiles1");
  QVERIFY(item->isCheckable() && !item->isChecked());  // off at the first start
  QVERIFY(!Find<QRadioButton>("RadioButtonAutoPrefix")->isEnabled());
  item->trigger();
  Find<QRadioButton>("RadioButtonAutoPrefix")->setChecked(true);
  item->trigger();  // off again: the unit chosen before comes back
  QVERIFY(!Find<QRadioButton>("RadioButtonAutoPrefix")->isEnabled());
  QVERIFY(Find<QRadioButton>("RadioButtonMHz")->isChecked());
  item->trigger();

  const QString file = dir_.filePath("device.s2p");
  QFile out(file);
  QVERIFY(out.open(QIODevice::WriteOnly));
  out.write("! Ic=2m\n# GHz S MA R 50\n3 0 0 2 0 0.25 0 0 0\n! noise\n1 1 .5 10 .2\n");
  out.close();
  Start({file});
  QVERIFY(Find<QAction>("ReadTouchstoneFiles1")->isChecked());
  QCOMPARE(numerics::DataSets().sets[0].frequency[0], 3e9);
  QCOMPARE(log.Messages(), QStringList({"File " + file + " also holds noise parameters at 1 frequency; they are not "
                                                         "S-parameters and are left out."}));
  // The loaded file is in the series as well: 3 MHz lies below fo, 3 GHz of the option line above it.
  ShowTab(1);
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  QVERIFY(Window().Results().at(0).fT > 0);
  Find<QRadioButton>("RadioButtonAutoPrefix")->setChecked(true);
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  QCOMPARE(Window().Results().at(0).fT, 0.0);
}

void MainWindowTest::EveryExitClosesTheWindow_data() {
  QTest::addColumn<QString>("control");
  QTest::newRow("button Abbruch") << "Abbruch";
  QTest::newRow("tool button ExitBtn") << "ExitBtn";
  QTest::newRow("menu item") << "Exit1";
}

void MainWindowTest::EveryExitClosesTheWindow() {
  QFETCH(QString, control);
  Start();
  Window().show();
  QSignalSpy closed(&Window(), &TSDIAppForm::FormClosed);
  if (auto* action = Window().findChild<QAction*>(control)) {
    action->trigger();
  } else {
    QTest::mouseClick(Find<QAbstractButton>(qPrintable(control)), Qt::LeftButton);
  }
  QCOMPARE(closed.count(), 1);
  QVERIFY(!Window().isVisible());
  QVERIFY(mainwin_test::ReadSettingsFile().startsWith("[Variablen]\nfo="));
}

int RunMainWindowTests(int argc, char** argv) {
  MainWindowTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "main_window_test.moc"
