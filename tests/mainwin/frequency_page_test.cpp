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
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include "controls/spin_button.h"
#include "graphwin/gwin.h"
#include "graphwin/phiwin.h"
#include "graphwin/vuwin.h"
#include "fixtures.h"
#include "mainwin/history_list.h"
#include "numerics/data_set.h"
#include "numerics/two_port_state.h"

Q_DECLARE_METATYPE(graphwin::DisplayMode)

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
  void UnreadableFileChangesNothing();
  void LoadedFileJoinsSeriesAndRecentFiles();
  void FirstLoadEnablesTheDiagramButtons();
  void OneOrMoreActiveFilesRule();
  void DisplayCountWraps_data();
  void DisplayCountWraps();
  void RemovingFilesFreesTheirSetsUntilNoneIsLeft();
  void DropOnFirstPageTakesTheFirstFile();
  void Z0IsLimited_data();
  void Z0IsLimited();
  void DiagramButtonSetsDisplayMode_data();
  void DiagramButtonSetsDisplayMode();
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

void FrequencyPageTest::UnreadableFileChangesNothing() {
  Start({File(1)});
  mainwin_test::MessageLog log;
  const QString broken = mainwin_test::WriteBrokenFile(dir_, "broken.s2p");
  Window().LoadFrequencyFile(broken);
  QCOMPARE(log.Messages().size(), 1);
  QVERIFY2(log.Messages()[0].contains(broken), qPrintable(log.Messages()[0]));
  QCOMPARE(ListCount(), 1);
  QCOMPARE(numerics::DataSets().openCount, 1);
  QCOMPARE(Window().Series().SeriesCount(), std::size_t{1});
  QCOMPARE(Window().HistoryList().Items(), QStringList({File(1)}));
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), QStringLiteral("  5"));
}

void FrequencyPageTest::LoadedFileJoinsSeriesAndRecentFiles() {
  Start();
  Window().LoadFrequencyFile(File(1));
  Window().LoadFrequencyFile(File(2));
  Window().LoadFrequencyFile(File(1));
  QCOMPARE(Window().Series().SeriesCount(), std::size_t{3});
  QCOMPARE(QString::fromStdString(Window().Series().Path(2)), File(1));
  QCOMPARE(Window().HistoryList().Items(), QStringList({File(1), File(2)}));
  QCOMPARE(ListCount(), 3);
}

void FrequencyPageTest::FirstLoadEnablesTheDiagramButtons() {
  Start();
  for (const char* name : kDiagramButtons) QVERIFY2(!Find<QPushButton>(name)->isEnabled(), name);
  Window().LoadFrequencyFile(File(1));
  for (const char* name : kDiagramButtons) QVERIFY2(Find<QPushButton>(name)->isEnabled(), name);
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

void FrequencyPageTest::DisplayCountWraps_data() {
  QTest::addColumn<QString>("clicks");
  QTest::addColumn<QString>("shown");
  QTest::newRow("up from N wraps to 1") << "u" << "  1";
  QTest::newRow("down from N") << "d" << "  4";
  QTest::newRow("up then down wraps to N") << "ud" << "  5";
}

void FrequencyPageTest::DisplayCountWraps() {
  QFETCH(QString, clicks);
  QFETCH(QString, shown);
  Start({File(1, 5)});
  auto* spin = Find<controls::TSpinButton>("fAnzahlSpinButton");
  for (QChar c : clicks) QTest::mouseClick(c == 'u' ? spin->UpButton() : spin->DownButton(), Qt::LeftButton);
  QCOMPARE(Find<QLineEdit>("fnEingabe")->text(), shown);
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

void FrequencyPageTest::Z0IsLimited_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<double>("z0");
  QTest::newRow("prefix k") << "1.5k" << 1500.0;
  QTest::newRow("below the limit") << "1u" << 0.001;
  QTest::newRow("above the limit") << "2M" << 1e6;
  QTest::newRow("no digits") << "x" << 0.001;
}

void FrequencyPageTest::Z0IsLimited() {
  QFETCH(QString, typed);
  QFETCH(double, z0);
  Start();
  auto* edit = Find<QLineEdit>("ZLEingabe");
  edit->selectAll();
  QTest::keyClicks(edit, typed);
  QCOMPARE(numerics::WorkingState().z0, z0);
}

void FrequencyPageTest::DiagramButtonSetsDisplayMode_data() {
  using M = graphwin::DisplayMode;
  QTest::addColumn<QString>("button");
  QTest::addColumn<M>("mode");
  QTest::addColumn<bool>("connect");
  QTest::addColumn<QString>("legend");  // of the reflection or transmission window it opens
  QTest::newRow("S11") << "SpeedButton1" << M::InputReflection << true << "S11";
  QTest::newRow("S22") << "SpeedButton2" << M::OutputReflection << false << "S22";
  QTest::newRow("S11 - S22") << "SpeedButton6" << M::BothReflections << true << "S11 & S22";
  QTest::newRow("S21") << "SpeedButton3" << M::ForwardTransmission << false << "S21";
  QTest::newRow("S12") << "SpeedButton4" << M::ReverseTransmission << true << "S12";
  QTest::newRow("S21 - S12") << "SpeedButton5" << M::BothTransmissions << false << "S21 & S12";
  QTest::newRow("gain") << "SpeedButtonGain" << M::Gain << true << "";
  QTest::newRow("stability") << "SpeedButtonk" << M::Stability << false << "";
  QTest::newRow("impedance") << "SpeedButtonZ" << M::Impedance << true << "";
}

void FrequencyPageTest::DiagramButtonSetsDisplayMode() {
  QFETCH(QString, button);
  QFETCH(graphwin::DisplayMode, mode);
  QFETCH(bool, connect);
  Start({File(1)});
  Find<QCheckBox>("VerbindenCheckBox")->setChecked(connect);
  QTest::mouseClick(Find<QPushButton>(qPrintable(button)), Qt::LeftButton);
  QCOMPARE(Window().CurrentDisplayMode(), mode);
  QCOMPARE(Window().ConnectForWindows(), connect);
  QFETCH(QString, legend);
  if (legend.isEmpty()) return;
  const bool reflection = mode <= graphwin::DisplayMode::BothReflections;
  const graphwin::TSParameterForm* shown = reflection ? static_cast<graphwin::TSParameterForm*>(forms_->FormPhi())
                                                      : forms_->FormVu();
  QVERIFY(shown->isVisible());
  QCOMPARE(QString::fromStdString(shown->Plot().curves.legendHeading), legend);
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
  QTest::mouseClick(Find<QPushButton>("SpeedButtonk"), Qt::LeftButton);  // its window comes later
  QCOMPARE(Window().statusBar()->currentMessage(), QStringLiteral("This diagram window is not available yet."));
}

int RunFrequencyPageTests(int argc, char** argv) {
  FrequencyPageTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "frequency_page_test.moc"
