#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
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
  const QRegularExpression layout(R"(^\[Variablen\]\nfo=.*\nLgnd=.*\nArea=.*\nf Multiplier=.*\nComment=a\\nb\n)"
                                  R"(\[Options\]\nWith Lgnd=Ja\nj Output=Nein\nConnect Points=Nein\n$)");
  QVERIFY2(layout.match(text).hasMatch(), qPrintable(text));
  const auto value = [&text](const char* key) {
    return numerics::ParseValueText(text.section(key, 1).section('\n', 0, 0).toStdString()).value;
  };
  QCOMPARE(value("fo="), 3.3e9);
  QCOMPARE(value("f Multiplier="), 1e9);
}

void MainWindowTest::ClosingKeepsTheRecentFilesAndThePosition() {
  const QStringList files = Files(2);
  Start(files);
  Window().move(123, 77);
  Window().close();
  QSettings settings;
  QCOMPARE(settings.value("Software/netrix/HistoryList1/MRUList10").toString(), files[1]);
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
void MainWindowTest::OutputPagesNeedTwoSeriesFiles() {
  mainwin_test::MessageLog log;
  const QStringList files = Files(2);
  Start({files[0]});
  ShowTab(2);
  QCOMPARE(Find<QStackedWidget>("Notebook1")->currentIndex(), 1);
  QCOMPARE(Window().PageNumber(), 2);
  QCOMPARE(Find<QTabBar>("TabSet1")->currentIndex(), 1);
  QCOMPARE(log.Messages(), QStringList({"Please insert two or more files."}));
  Window().LoadFrequencyFile(files[1]);
  ShowTab(5);
  QCOMPARE(Window().PageNumber(), 6);
  QCOMPARE(log.Messages().size(), 1);
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
  for (const char* control : {"Abbruch", "ExitBtn", "Exit1"}) {
    Reset();
    Start();
    Window().show();
    QSignalSpy closed(&Window(), &TSDIAppForm::FormClosed);
    if (auto* action = Window().findChild<QAction*>(control)) {
      action->trigger();
    } else {
      QTest::mouseClick(Find<QAbstractButton>(control), Qt::LeftButton);
    }
    QCOMPARE(closed.count(), 1);
    QVERIFY(!Window().isVisible());
    QVERIFY(mainwin_test::ReadSettingsFile().startsWith("[Variablen]\nfo="));
  }
}

int RunMainWindowTests(int argc, char** argv) {
  MainWindowTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "main_window_test.moc"
