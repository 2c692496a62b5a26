#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <memory>

#include "fixtures.h"
#include "mainwin/form_set.h"
#include "mainwin/help_boxes.h"
#include "mainwin/history_list.h"
#include "mainwin/main_window.h"
#include "numerics/data_set.h"
#include "numerics/prefixed_number.h"

using mainwin::FormSet;
using mainwin::TSDIAppForm;

class MainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void StartupLoadsOnlyTheFirstFourArguments();
  void StartupReportsAMissingArgumentAndGoesOn();
  void StartupWithoutSettingsFileShowsBuiltInValues();
  void StartupFillsEditsFromSettingsFile();
  void StartupChecksOptionOnlyForYes_data();
  void StartupChecksOptionOnlyForYes();
  void StartupSelectsMultiplierButton_data();
  void StartupSelectsMultiplierButton();
  void ClosingWritesSettingsThatReadBackWithOptionsOff();
  void ClosingSavesTheRecentFiles();
  void WindowPositionIsRemembered();
  void OutputPagesNeedTwoSeriesFiles_data();
  void OutputPagesNeedTwoSeriesFiles();
  void TabsCarryThePageCaptions();
  void TableHeaderIsSetAtStart();
  void HelpShowsTheBoxOfThePage();
  void StayInFrontToggles();
  void EveryExitClosesTheWindow_data();
  void EveryExitClosesTheWindow();

 private:
  std::unique_ptr<FormSet> Start(const QStringList& arguments = {});
  QStringList Files(int count);
  template <typename T>
  T* Find(const char* name) { return mainwin_test::FindControl<T>(*forms_->SDIAppForm(), name); }

  QTemporaryDir dir_;
  std::unique_ptr<FormSet> forms_;
};

void MainWindowTest::init() {
  forms_.reset();
  mainwin_test::ResetProgramState();
}

std::unique_ptr<FormSet> MainWindowTest::Start(const QStringList& arguments) {
  return std::make_unique<FormSet>(arguments);
}

QStringList MainWindowTest::Files(int count) {
  QStringList files;
  for (int i = 1; i <= count; ++i) {
    files.append(mainwin_test::WriteTwoPortFile(dir_, QStringLiteral("f%1.s2p").arg(i), 2 + i));
  }
  return files;
}

void MainWindowTest::StartupLoadsOnlyTheFirstFourArguments() {
  mainwin_test::MessageLog log;
  const QStringList files = Files(6);
  forms_ = Start(files);
  auto* list = Find<QListWidget>("CheckListBox1");
  QCOMPARE(list->count(), 4);
  for (int i = 0; i < 4; ++i) QCOMPARE(list->item(i)->text(), files[i]);
  QCOMPARE(numerics::DataSets().openCount, 4);
  QCOMPARE(numerics::DataSets().sets[3].pointCount, 6);
  QVERIFY(log.Messages().isEmpty());
}

void MainWindowTest::StartupReportsAMissingArgumentAndGoesOn() {
  mainwin_test::MessageLog log;
  const QStringList files = Files(2);
  const QString missing = dir_.filePath("absent.s2p");
  forms_ = Start({files[0], missing, files[1]});
  QCOMPARE(log.Messages(), QStringList({"File " + missing + " is not present!"}));
  QCOMPARE(Find<QListWidget>("CheckListBox1")->count(), 2);
}

void MainWindowTest::StartupWithoutSettingsFileShowsBuiltInValues() {
  mainwin_test::MessageLog log;
  forms_ = Start();
  QCOMPARE(Find<QLineEdit>("foEingabe")->text(), QStringLiteral("    2.00G"));
  QCOMPARE(Find<QLineEdit>("LgndEingabe")->text(), QStringLiteral("  100.00p"));
  QCOMPARE(Find<QLineEdit>("AreaEingabe")->text(), QStringLiteral("  1000.0"));
  QVERIFY(Find<QRadioButton>("RadioButtonMHz")->isChecked());
  QVERIFY(!Find<QCheckBox>("CheckBoxLgnd")->isChecked());
  QVERIFY(log.Messages().isEmpty());
}

void MainWindowTest::StartupFillsEditsFromSettingsFile() {
  mainwin_test::WriteSettingsFile("[Variablen]\nfo=  5.00G\nLgnd=  470p\nArea=  1.20k\nComment=two\\nlines\n");
  forms_ = Start();
  QCOMPARE(Find<QLineEdit>("foEingabe")->text(), QStringLiteral("    5.00G"));
  QCOMPARE(Find<QLineEdit>("LgndEingabe")->text(), QStringLiteral("  470.00p"));
  QCOMPARE(Find<QLineEdit>("AreaEingabe")->text(), QStringLiteral("  1200.0"));
  QCOMPARE(Find<QPlainTextEdit>("MemoComment")->toPlainText(), QStringLiteral("two\nlines"));
}

void MainWindowTest::StartupChecksOptionOnlyForYes_data() {
  QTest::addColumn<QString>("key");
  QTest::addColumn<QString>("control");
  QTest::addColumn<QString>("value");
  QTest::addColumn<bool>("checked");
  const std::pair<const char*, const char*> options[] = {
      {"With Lgnd", "CheckBoxLgnd"}, {"j Output", "CheckBoxDensity"}, {"Connect Points", "CheckBoxConnect"}};
  for (const auto& [key, control] : options) {
    QTest::addRow("%s Ja", key) << key << control << "Ja" << false;
    QTest::addRow("%s Yes", key) << key << control << "Yes" << true;
  }
}

void MainWindowTest::StartupChecksOptionOnlyForYes() {
  QFETCH(QString, key);
  QFETCH(QString, control);
  QFETCH(QString, value);
  QFETCH(bool, checked);
  mainwin_test::WriteSettingsFile("[Options]\n" + key + "=" + value + "\n");
  forms_ = Start();
  QCOMPARE(Find<QCheckBox>(qPrintable(control))->isChecked(), checked);
}

void MainWindowTest::StartupSelectsMultiplierButton_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<QString>("button");
  QTest::newRow("1e9") << "1e9" << "RadioButtonGHz";
  QTest::newRow("1e6") << "1e6" << "RadioButtonMHz";
  QTest::newRow("1") << "1" << "RadioButtonHz";
  QTest::newRow("2") << "2" << "RadioButtonHz";
  QTest::newRow("3") << "3" << "RadioButtonMHz";
}

void MainWindowTest::StartupSelectsMultiplierButton() {
  QFETCH(QString, stored);
  QFETCH(QString, button);
  mainwin_test::WriteSettingsFile("[Variablen]\nf Multiplier=" + stored + "\n");
  forms_ = Start();
  QVERIFY(Find<QRadioButton>(qPrintable(button))->isChecked());
}

void MainWindowTest::ClosingWritesSettingsThatReadBackWithOptionsOff() {
  forms_ = Start();
  Find<QLineEdit>("foEingabe")->setText("3.3G");
  Find<QLineEdit>("AreaEingabe")->setText("  640");
  Find<QCheckBox>("CheckBoxLgnd")->setChecked(true);
  Find<QRadioButton>("RadioButtonGHz")->setChecked(true);
  Find<QPlainTextEdit>("MemoComment")->setPlainText("a\nb");
  forms_->SDIAppForm()->close();
  const QString text = mainwin_test::ReadSettingsFile();
  QVERIFY2(text.contains("\n[Options]\nWith Lgnd=Ja\nj Output=Nein\nConnect Points=Nein\n"), qPrintable(text));
  QVERIFY(text.contains("\nComment=a\\nb\n"));
  const QString multiplier = text.section("f Multiplier=", 1).section('\n', 0, 0);
  QCOMPARE(numerics::ParseValueText(multiplier.toStdString()).value, 1e9);

  forms_ = Start();
  QVERIFY(!Find<QCheckBox>("CheckBoxLgnd")->isChecked());
  QVERIFY(Find<QRadioButton>("RadioButtonGHz")->isChecked());
  QCOMPARE(numerics::ParseValueText(Find<QLineEdit>("foEingabe")->text().toStdString()).value, 3.3e9);
  QCOMPARE(numerics::ParseValueText(Find<QLineEdit>("AreaEingabe")->text().toStdString()).value, 640.0);
  QCOMPARE(Find<QPlainTextEdit>("MemoComment")->toPlainText(), QStringLiteral("a\nb"));
}

void MainWindowTest::ClosingSavesTheRecentFiles() {
  const QStringList files = Files(2);
  forms_ = Start(files);
  forms_->SDIAppForm()->close();
  QSettings settings;
  QCOMPARE(settings.value("Software/netrix/HistoryList1/MRUList10").toString(), files[1]);
  QCOMPARE(settings.value("Software/netrix/HistoryList1/MRUList11").toString(), files[0]);
  numerics::DataSets() = numerics::DataSetStore{};
  forms_ = Start();
  QCOMPARE(forms_->SDIAppForm()->HistoryList().Items(), QStringList({files[1], files[0]}));
}

void MainWindowTest::WindowPositionIsRemembered() {
  forms_ = Start();
  forms_->SDIAppForm()->move(123, 77);
  forms_->SDIAppForm()->close();
  forms_ = Start();
  QCOMPARE(forms_->SDIAppForm()->pos(), QPoint(123, 77));
}

void MainWindowTest::OutputPagesNeedTwoSeriesFiles_data() {
  QTest::addColumn<int>("tab");
  QTest::addColumn<int>("files");
  QTest::addColumn<int>("landing");
  for (int tab = 2; tab <= 5; ++tab) {
    QTest::addRow("page %d, no file", tab + 1) << tab << 0 << 1;
    QTest::addRow("page %d, one file", tab + 1) << tab << 1 << 1;
    QTest::addRow("page %d, two files", tab + 1) << tab << 2 << tab;
  }
}

void MainWindowTest::OutputPagesNeedTwoSeriesFiles() {
  QFETCH(int, tab);
  QFETCH(int, files);
  QFETCH(int, landing);
  mainwin_test::MessageLog log;
  forms_ = Start(Files(files));
  Find<QTabBar>("TabSet1")->setCurrentIndex(tab);
  QCOMPARE(Find<QStackedWidget>("Notebook1")->currentIndex(), landing);
  QCOMPARE(forms_->SDIAppForm()->PageNumber(), landing + 1);
  QCOMPARE(Find<QTabBar>("TabSet1")->currentIndex(), landing);
  const QStringList expected = landing == tab ? QStringList() : QStringList({"Please insert two or more files."});
  QCOMPARE(log.Messages(), expected);
}

void MainWindowTest::TabsCarryThePageCaptions() {
  forms_ = Start();
  auto* tabs = Find<QTabBar>("TabSet1");
  const QStringList captions = {"S-Parameter vs Frequency", "Input: Extracted F.O.M. vs Parameter",
                                "fT, fmax Output", "k, MSG, MAG Output", "Stability Limit", "Tabular Output"};
  QCOMPARE(tabs->count(), captions.size());
  for (int i = 0; i < tabs->count(); ++i) QCOMPARE(tabs->tabText(i), captions[i]);
  QCOMPARE(forms_->SDIAppForm()->windowTitle(), QStringLiteral("S-Parameter Analysis"));
}

void MainWindowTest::TableHeaderIsSetAtStart() {
  forms_ = Start();
  auto* grid = Find<QTableWidget>("StringAlignGridTab");
  QCOMPARE(grid->columnCount(), 8);
  QStringList header;
  for (int column = 0; column < 8; ++column) header.append(grid->item(0, column)->text());
  QCOMPARE(header, QStringList({"File Name", "Ic", "fT", "fmax", "MAG/MSG", "k", "f(k>1)", "j/(mA/µm²)"}));
}

void MainWindowTest::HelpShowsTheBoxOfThePage() {
  forms_ = Start();
  QTest::mouseClick(Find<QPushButton>("HelpBtn"), Qt::LeftButton);
  QVERIFY(forms_->HilfeBox()->isVisible());
  QVERIFY(!forms_->HilfeFOMBox()->isVisible());
  forms_->HilfeBox()->hide();
  Find<QTabBar>("TabSet1")->setCurrentIndex(1);
  Find<QAction>("Help1")->trigger();
  QVERIFY(forms_->HilfeFOMBox()->isVisible());
  QCOMPARE(forms_->HilfeFOMBox()->windowTitle(), QStringLiteral("Help for S-Parameter Analysis"));
  QVERIFY(!forms_->HilfeBox()->isVisible());
}

void MainWindowTest::StayInFrontToggles() {
  forms_ = Start();
  auto* item = Find<QAction>("ImmerimVordergrund1");
  QCOMPARE(item->text(), QStringLiteral("Always Stay in &Front"));
  item->trigger();
  QVERIFY(item->isChecked());
  QVERIFY(forms_->SDIAppForm()->windowFlags() & Qt::WindowStaysOnTopHint);
  item->trigger();
  QVERIFY(!item->isChecked());
  QVERIFY(!(forms_->SDIAppForm()->windowFlags() & Qt::WindowStaysOnTopHint));
}

void MainWindowTest::EveryExitClosesTheWindow_data() {
  QTest::addColumn<QString>("control");
  QTest::newRow("button Abbruch") << "Abbruch";
  QTest::newRow("tool button ExitBtn") << "ExitBtn";
  QTest::newRow("menu item") << "Exit1";
}

void MainWindowTest::EveryExitClosesTheWindow() {
  QFETCH(QString, control);
  forms_ = Start();
  TSDIAppForm* window = forms_->SDIAppForm();
  window->show();
  QSignalSpy closed(window, &TSDIAppForm::FormClosed);
  if (auto* action = window->findChild<QAction*>(control)) {
    action->trigger();
  } else {
    QTest::mouseClick(Find<QAbstractButton>(qPrintable(control)), Qt::LeftButton);
  }
  QCOMPARE(closed.count(), 1);
  QVERIFY(!window->isVisible());
  QVERIFY(mainwin_test::ReadSettingsFile().startsWith("[Variablen]\nfo="));
}

int RunMainWindowTests(int argc, char** argv) {
  MainWindowTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "main_window_test.moc"
