#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStackedWidget>

#include <sys/stat.h>

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

class MainWindowTest : public QObject, mainwin_test::WindowSession {
  Q_OBJECT

 private slots:
  void init() { Reset(); }
  void StartupLoadsTheFirstFourArgumentsAndTellsAboutTheOthers();
  void StartupWithoutSettingsFileShowsCaptionsAndBuiltInValues();
  void StartupReadsTheSettingsAndChecksOptionsOnlyForYes();
  void ClosingWritesTheSettingsWithOptionsOff();
  void ClosingKeepsTheRecentFilesAndThePosition();
  void SettingsThatCannotBeReadOrWrittenAreToldOnceWithTheReason();
  void OutputPagesNeedTwoSeriesFiles();
  void HelpShowsTheBoxOfThePage();
  void ToolsThatStartNothingSayWhatWasTried();
  void ReadTouchstoneFilesIsKeptAndOffersTheAutomaticMultiplier();
  void EveryExitClosesTheWindow();
};

// A missing argument still counts as one of the four; each that is not a data file is told as
// what it is, and a name that is not UTF-8 opens the very file it names.
void MainWindowTest::StartupLoadsTheFirstFourArgumentsAndTellsAboutTheOthers() {
  mainwin_test::MessageLog log;
  const std::string latin1 = dir_.path().toStdString() + "/f\xE9.s2p";
  std::filesystem::copy_file(File(1, 3).toStdString(), latin1);
  const QString missing = dir_.filePath("absent.s2p");
  const QString pipe = dir_.filePath("pipe.s2p");
  QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  Start({mainwin::DecodeFileName(latin1), missing, dir_.path(), pipe, File(2), File(3)});
  QCOMPARE(log.Messages(),
           QStringList({"File " + missing + " is not present!",
                        "File " + dir_.path() + " cannot be read (Is a directory). Choose an S-parameter data file.",
                        "File " + pipe + " cannot be read (a pipe, not a regular file). Choose an S-parameter data file.",
                        "No more than 4 files can be open! Not loaded: " + File(2) + ", " + File(3)}));
  QCOMPARE(numerics::DataSets().openCount, 1);
  QCOMPARE(numerics::DataSets().sets[0].pointCount, 3);
  QCOMPARE(Window().Series().Path(0), latin1);
}

void MainWindowTest::StartupWithoutSettingsFileShowsCaptionsAndBuiltInValues() {
  mainwin_test::MessageLog log;
  Start();
  QCOMPARE(Window().windowTitle(), QStringLiteral("S-Parameter Analysis"));
  auto* tabs = Find<QTabBar>("TabSet1");
  const QStringList captions = {"S-Parameter vs Frequency", "Input: Extracted F.O.M. vs Parameter",
                                "fT, fmax Output", "k, MSG, MAG Output", "Stability Limit", "Tabular Output"};
  QCOMPARE(tabs->count(), captions.size());
  for (int i = 0; i < tabs->count(); ++i) QCOMPARE(tabs->tabText(i), captions[i]);
  QCOMPARE(Find<QLineEdit>("foEingabe")->text(), QStringLiteral("    2.00G"));
  QCOMPARE(Find<QLineEdit>("LgndEingabe")->text(), QStringLiteral("  100.00p"));
  QCOMPARE(Find<QLineEdit>("AreaEingabe")->text(), QStringLiteral("  1000.0"));
  QVERIFY(Find<QRadioButton>("RadioButtonMHz")->isChecked());
  QVERIFY(!Find<QCheckBox>("CheckBoxLgnd")->isChecked());
  QVERIFY(log.Messages().isEmpty());
}

// Only "Yes" checks an option; not "Ja" as the program writes it, nor "yes".
void MainWindowTest::StartupReadsTheSettingsAndChecksOptionsOnlyForYes() {
  mainwin_test::WriteSettingsFile("[Variablen]\nfo=3.3G\n[Options]\nWith Lgnd=Ja\nj Output=Yes\nConnect Points=yes\n");
  Start();
  QCOMPARE(Find<QLineEdit>("foEingabe")->text(), QStringLiteral("    3.30G"));
  QVERIFY(!Find<QCheckBox>("CheckBoxLgnd")->isChecked());
  QVERIFY(Find<QCheckBox>("CheckBoxDensity")->isChecked());
  QVERIFY(!Find<QCheckBox>("CheckBoxConnect")->isChecked());
}

// What the values read back as is the settings file's own test.
void MainWindowTest::ClosingWritesTheSettingsWithOptionsOff() {
  Start();
  Find<QLineEdit>("foEingabe")->setText("3.3G");
  Find<QCheckBox>("CheckBoxLgnd")->setChecked(true);
  Find<QRadioButton>("RadioButtonGHz")->setChecked(true);
  Find<QPlainTextEdit>("MemoComment")->setPlainText("a\nb");
  Window().close();
  // The keys in their order, the comment on one line, the switches in German.
  const QString text = mainwin_test::ReadSettingsFile();
  const QRegularExpressionMatch layout =
      QRegularExpression(R"(^\[Variablen\]\nfo=(.*)\nLgnd=.*\nArea=.*\nf Multiplier=(.*)\nComment=a\\nb\n)"
                         R"(\[Options\]\nWith Lgnd=Ja\nj Output=Nein\nConnect Points=Nein\n$)").match(text);
  QVERIFY2(layout.hasMatch(), qPrintable(text));
  QCOMPARE(numerics::ParseValueText(layout.captured(1).toStdString()).value, 3.3e9);
  QCOMPARE(numerics::ParseValueText(layout.captured(2).toStdString()).value, 1e9);
}

// Where the recent files are kept is the history list's own test.
void MainWindowTest::ClosingKeepsTheRecentFilesAndThePosition() {
  Start({File(1), File(2)});
  Window().move(123, 77);
  Window().close();
  Start();
  QCOMPARE(Window().HistoryList().Items(), QStringList({File(2), File(1)}));
  QCOMPARE(Window().pos(), QPoint(123, 77));
}

// netrix.ini and the store of the recent files as folders: the real reason, once at the start for
// the store, once at the end for both; netrix.ini is not replaced, since it could not be read.
void MainWindowTest::SettingsThatCannotBeReadOrWrittenAreToldOnceWithTheReason() {
  const QString ini = mainwin::SettingsFilePath();
  const QString store = QSettings().fileName();
  QVERIFY(QDir().mkpath(ini) && QDir().mkpath(store));
  mainwin_test::MessageLog log;
  Start({File(1)});
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

// Page 3 is the first output page.
void MainWindowTest::OutputPagesNeedTwoSeriesFiles() {
  mainwin_test::MessageLog log;
  Start({File(1)});
  ShowTab(2);
  QCOMPARE(Find<QStackedWidget>("Notebook1")->currentIndex(), 1);
  QCOMPARE(Window().PageNumber(), 2);
  QCOMPARE(Find<QTabBar>("TabSet1")->currentIndex(), 1);
  QCOMPARE(log.Messages(), QStringList({"Please insert two or more files."}));
}

void MainWindowTest::HelpShowsTheBoxOfThePage() {
  Start();
  QTest::mouseClick(Find<QPushButton>("HelpBtn"), Qt::LeftButton);
  QVERIFY(forms_->HilfeBox()->isVisible());
  forms_->HilfeBox()->hide();
  ShowTab(1);
  Find<QAction>("Help1")->trigger();
  QVERIFY(forms_->HilfeFOMBox()->isVisible());
  QCOMPARE(forms_->HilfeFOMBox()->windowTitle(), QStringLiteral("Help for S-Parameter Analysis"));
  QVERIFY(!forms_->HilfeBox()->isVisible());
}

// With an empty search path, and no desktop on the test platform, nothing can be started.
void MainWindowTest::ToolsThatStartNothingSayWhatWasTried() {
  const QByteArray path = qgetenv("PATH");
  const auto restore = qScopeGuard([&] { qputenv("PATH", path); });
  qputenv("PATH", dir_.path().toLocal8Bit());
  Start();
  mainwin_test::MessageLog log;
  Find<QAction>("Calculator1")->trigger();
  QCOMPARE(log.Messages().size(), 1);
  QVERIFY2(log.Messages().front().startsWith("\"Calculator\" started nothing: none of gnome-calculator, kcalc,") && log.Messages().front().endsWith(", then try again!"),
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

  const QString file = mainwin_test::WriteTextFile(dir_, "device.s2p", "! Ic=2m\n# GHz S MA R 50\n3 0 0 2 0 0.25 0 0 0\n");
  Start({file});
  QVERIFY(Find<QAction>("ReadTouchstoneFiles1")->isChecked());
  QCOMPARE(numerics::DataSets().sets[0].frequency[0], 3e9);
  // The loaded file is in the series as well: 3 MHz lies below fo, 3 GHz of the option line above it.
  ShowTab(1);
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  QVERIFY(Window().Results().at(0).fT > 0);
  Find<QRadioButton>("RadioButtonAutoPrefix")->setChecked(true);
  QTest::mouseClick(Find<QPushButton>("BitBtnCalc"), Qt::LeftButton);
  QCOMPARE(Window().Results().at(0).fT, 0.0);
}

// The button, the tool button and the menu item.
void MainWindowTest::EveryExitClosesTheWindow() {
  const std::pair<const char*, const char*> exits[] = {{"Abbruch", "click"}, {"ExitBtn", "click"}, {"Exit1", "trigger"}};
  for (const auto& [control, slot] : exits) {
    Reset();
    Start();
    Window().show();
    QSignalSpy closed(&Window(), &TSDIAppForm::FormClosed);
    QVERIFY(QMetaObject::invokeMethod(Find<QObject>(control), slot));
    QCOMPARE(closed.count(), 1);
    QVERIFY(!Window().isVisible());
    QVERIFY(mainwin_test::ReadSettingsFile().startsWith("[Variablen]\nfo="));
  }
}

int RunMainWindowTests(int argc, char** argv) { return mainwin_test::RunTests<MainWindowTest>(argc, argv); }

#include "main_window_test.moc"
