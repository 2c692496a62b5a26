#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <QToolButton>
#include <tuple>
#include <utility>

#include "controls/spin_button.h"
#include "graphwin/gwin.h"
#include "graphwin/phiwin.h"
#include "graphwin/vuwin.h"
#include "fixtures.h"
#include "mainwin/history_list.h"
#include "numerics/data_set.h"
#include "numerics/two_port_state.h"

namespace {

const char* const kDiagramButtons[] = {"SpeedButton1", "SpeedButton2", "SpeedButton3", "SpeedButton4", "SpeedButton5",
                                       "SpeedButton6", "SpeedButtonGain", "SpeedButtonk", "SpeedButtonZ"};

// A modal box left open by a fault would hang the run: close it, so the test fails instead.
void CloseStrayModalLater() {
  QTimer::singleShot(5000, [] {
    if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
  });
}

}  // namespace

class FrequencyPageTest : public QObject, mainwin_test::WindowSession {
  Q_OBJECT

 private slots:
  void init() { Reset(); }
  void EveryLoadPathRefusesAFifthFileUntilOneIsRemoved();
  void LoadCommandReadsTheChosenFile();
  void LoadedFileJoinsSeriesAndRecentFiles();
  void OneOrMoreActiveFilesRule();
  void DisplayCountWraps();
  void RemovingFilesFreesTheirSetsUntilNoneIsLeft();
  void DropOnFirstPageTakesTheFirstFile();
  void Z0IsLimited();
  void DiagramButtonsSetTheDisplayMode();
  void GainWindowTakesThePageAsItIs();

 private:
  QString File(int i, int points = 5) {
    return mainwin_test::WriteTwoPortFile(dir_, QStringLiteral("p%1.s2p").arg(i), points);
  }
  int ListCount() { return Find<QListWidget>("CheckListBox1")->count(); }
  void ClickDelete() { QTest::mouseClick(Find<QToolButton>("SpeedButtonDelete"), Qt::LeftButton); }
};

// The load command, a drop on the first page and a recent-files item.
void FrequencyPageTest::EveryLoadPathRefusesAFifthFileUntilOneIsRemoved() {
  Start({File(1), File(2), File(3), File(4)});
  mainwin_test::MessageLog log;
  QAction* recent = nullptr;
  for (QAction* action : Find<QMenu>("Datei1")->actions()) {
    if (action->data().toString() == File(1)) recent = action;
  }
  QVERIFY(recent);
  CloseStrayModalLater();
  Find<QAction>("Load1")->trigger();
  Window().FilesDropped({File(5)});
  recent->trigger();
  QCOMPARE(log.Messages(), QStringList(3, "No more than 4 files can be open!"));
  QCOMPARE(ListCount(), 4);
  QCOMPARE(numerics::DataSets().openCount, 4);
  QCOMPARE(Window().Series().SeriesCount(), std::size_t{4});
  ClickDelete();
  recent->trigger();
  QCOMPARE(ListCount(), 4);
  QCOMPARE(Find<QListWidget>("CheckListBox1")->item(3)->text(), File(1));
}

void FrequencyPageTest::LoadCommandReadsTheChosenFile() {
  Start();
  const QString file = File(1, 7);
  QTimer::singleShot(0, this, [this, file] {
    auto* dialog = Window().findChild<QFileDialog*>("OpenDialog1");
    QVERIFY(dialog);
    dialog->selectFile(file);
    QMetaObject::invokeMethod(dialog, &QDialog::accept);
  });
  CloseStrayModalLater();
  QTest::mouseClick(Find<QToolButton>("SpeedButtonLoad"), Qt::LeftButton);
  QCOMPARE(ListCount(), 1);
  QCOMPARE(Find<QListWidget>("CheckListBox1")->item(0)->text(), file);
  QCOMPARE(numerics::DataSets().sets[0].pointCount, 7);
  QCOMPARE(QSettings().value("Dialogs/LoadDirectory").toString(), dir_.path());
}

// A file that cannot be read changes nothing.
void FrequencyPageTest::LoadedFileJoinsSeriesAndRecentFiles() {
  Start();
  for (const char* name : kDiagramButtons) QVERIFY2(!Find<QPushButton>(name)->isEnabled(), name);
  Window().LoadFrequencyFile(File(1));
  for (const char* name : kDiagramButtons) QVERIFY2(Find<QPushButton>(name)->isEnabled(), name);
  Window().LoadFrequencyFile(File(2, 3));
  Window().LoadFrequencyFile(File(1));
  mainwin_test::MessageLog log;
  const QString shownCount = Find<QLineEdit>("fnEingabe")->text();
  const QString broken = mainwin_test::WriteTextFile(dir_, "broken.s2p", "Broken\n100M 0.5 x -30 4 150 0.05 60 0.4 -20\n");
  Window().LoadFrequencyFile(broken);
  QCOMPARE(log.Messages().size(), 1);
  QVERIFY2(log.Messages()[0].contains(broken), qPrintable(log.Messages()[0]));
  QCOMPARE(Window().Series().SeriesCount(), std::size_t{3});
  QCOMPARE(QString::fromStdString(Window().Series().Path(2)), File(1));
  QCOMPARE(Window().HistoryList().Items(), QStringList({File(1), File(2, 3)}));
  QCOMPARE(ListCount(), 3);
  QCOMPARE(numerics::DataSets().openCount, 3);
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), shownCount);
}

// Regression: a second load once enabled the combined buttons again after the rule had run.
void FrequencyPageTest::OneOrMoreActiveFilesRule() {
  Start({File(1, 7), File(2, 9)});
  QVERIFY(!Find<QPushButton>("SpeedButton5")->isEnabled());
  QVERIFY(!Find<QPushButton>("SpeedButton6")->isEnabled());
  QVERIFY(!Find<controls::TSpinButton>("fAnzahlSpinButton")->isEnabled());
  QVERIFY(Find<QCheckBox>("GleicheFrequenz")->isEnabled());
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), QStringLiteral("  0"));
  QVERIFY(Find<QPushButton>("SpeedButton1")->isEnabled());

  // Unchecking the first leaves the second, with its own number of points.
  Find<QListWidget>("CheckListBox1")->item(0)->setCheckState(Qt::Unchecked);
  QVERIFY(Find<QPushButton>("SpeedButton5")->isEnabled());
  QVERIFY(Find<QPushButton>("SpeedButton6")->isEnabled());
  QVERIFY(Find<QLabel>("Label4")->isEnabled());
  QVERIFY(Find<controls::TSpinButton>("fAnzahlSpinButton")->isEnabled());
  QVERIFY(!Find<QCheckBox>("GleicheFrequenz")->isEnabled());
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), QStringLiteral("  9"));
}

// Up from the last point wraps to 1, down from 1 to the last.
void FrequencyPageTest::DisplayCountWraps() {
  Start({File(1, 5)});
  auto* spin = Find<controls::TSpinButton>("fAnzahlSpinButton");
  QTest::mouseClick(spin->UpButton(), Qt::LeftButton);
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), QStringLiteral("  1"));
  QTest::mouseClick(spin->DownButton(), Qt::LeftButton);
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), QStringLiteral("  5"));
}

void FrequencyPageTest::RemovingFilesFreesTheirSetsUntilNoneIsLeft() {
  Start({File(1), File(2, 3)});
  mainwin_test::MessageLog log;
  ClickDelete();
  QCOMPARE(ListCount(), 1);
  QCOMPARE(numerics::DataSets().openCount, 1);
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), QStringLiteral("  5"));
  // The freed data set takes the next file.
  Window().LoadFrequencyFile(File(3, 4));
  QCOMPARE(numerics::DataSets().sets[1].title, std::string("Test device p3.s2p"));
  QCOMPARE(numerics::DataSets().sets[1].pointCount, 4);
  ClickDelete();
  ClickDelete();
  QVERIFY(log.Messages().isEmpty());
  QVERIFY(!Find<QPushButton>("SpeedButton1")->isEnabled());
  ClickDelete();
  QCOMPARE(log.Messages(), QStringList({"No file available!"}));
  QCOMPARE(numerics::DataSets().openCount, 0);
}

// Only the first file counts, even when it is missing.
void FrequencyPageTest::DropOnFirstPageTakesTheFirstFile() {
  Start();
  mainwin_test::MessageLog log;
  const QString missing = dir_.filePath("gone.spm");
  Window().FilesDropped({missing, File(2)});
  QCOMPARE(log.Messages(), QStringList({"File -" + missing + "- is not available!"}));
  QCOMPARE(ListCount(), 0);
  Window().FilesDropped({File(1), File(2)});
  QCOMPARE(ListCount(), 1);
  QCOMPARE(Find<QListWidget>("CheckListBox1")->item(0)->text(), File(1));
}

void FrequencyPageTest::Z0IsLimited() {
  Start();
  auto* edit = Find<QLineEdit>("ZLEingabe");
  for (const auto& [typed, z0] : {std::pair{"1.5k", 1500.0}, std::pair{"2M", 1e6}, std::pair{"x", 0.001}}) {
    edit->selectAll();
    QTest::keyClicks(edit, typed);
    QCOMPARE(numerics::WorkingState().z0, z0);
  }
}

// Each button passes the "connect" choice as it stands, which alternates here; the legend is
// that of the reflection or transmission window the button opens.
void FrequencyPageTest::DiagramButtonsSetTheDisplayMode() {
  using M = graphwin::DisplayMode;
  const std::tuple<const char*, M, const char*> buttons[] = {
      {"SpeedButton1", M::InputReflection, "S11"},       {"SpeedButton2", M::OutputReflection, "S22"},
      {"SpeedButton6", M::BothReflections, "S11 & S22"}, {"SpeedButton3", M::ForwardTransmission, "S21"},
      {"SpeedButton4", M::ReverseTransmission, "S12"},   {"SpeedButton5", M::BothTransmissions, "S21 & S12"},
      {"SpeedButtonGain", M::Gain, ""},                  {"SpeedButtonk", M::Stability, ""},
      {"SpeedButtonZ", M::Impedance, ""}};
  Start({File(1)});
  bool connect = false;
  for (const auto& [button, mode, legend] : buttons) {
    connect = !connect;
    Find<QCheckBox>("VerbindenCheckBox")->setChecked(connect);
    QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
    QCOMPARE(Window().CurrentDisplayMode(), mode);
    QCOMPARE(Window().ConnectForWindows(), connect);
    if (*legend == '\0') continue;
    const graphwin::TSParameterForm* shown = mode <= M::BothReflections
                                                 ? static_cast<graphwin::TSParameterForm*>(forms_->FormPhi())
                                                 : forms_->FormVu();
    QVERIFY(shown->isVisible());
    QCOMPARE(shown->Plot().curves.legendHeading, std::string(legend));
  }
}

void FrequencyPageTest::GainWindowTakesThePageAsItIs() {
  Start({File(1), File(2, 3)});
  Find<QListWidget>("CheckListBox1")->item(1)->setCheckState(Qt::Unchecked);
  Find<controls::TSpinButton>("fAnzahlSpinButton")->DownButton()->click();
  Find<QCheckBox>("DateiCheckBox")->setChecked(false);
  Find<QCheckBox>("KommentarCheckBox")->setChecked(true);
  Find<QCheckBox>("VerbindenCheckBox")->setChecked(false);
  QTest::mouseClick(Find<QPushButton>("SpeedButtonGain"), Qt::LeftButton);
  QVERIFY(forms_->FormG()->isVisible());
  const graphwin::plots::FrequencyPlot& plot = forms_->FormG()->Plot();
  QCOMPARE(plot.curves.size(), std::size_t{1});  // the unchecked file is left out
  QCOMPARE(plot.curves[0].name, std::string("MAG/MSG"));
  QCOMPARE(plot.curves[0].frequency.size(), std::size_t{4});  // the display count
  QCOMPARE(plot.comment, std::string("Test device p1.s2p"));
  QVERIFY(!Window().GraphInputs().options.connect);
  for (const auto& [button, window] : {std::pair{"SpeedButtonk", graphwin::DiagramWindow::Stability},
                                      std::pair{"SpeedButtonZ", graphwin::DiagramWindow::Impedance}}) {
    QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
    QVERIFY(forms_->DiagramWindowOf(window)->isVisible());
  }
}

int RunFrequencyPageTests(int argc, char** argv) {
  FrequencyPageTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "frequency_page_test.moc"
