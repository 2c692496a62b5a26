#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QTimer>
#include <tuple>
#include <utility>

#include "controls/spin_button.h"
#include "graphwin/gwin.h"
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
  void OneOrMoreActiveFilesRuleAndTheDisplayCount();
  void RemovingFilesFreesTheirSetsUntilNoneIsLeft();
  void DropOnFirstPageTakesTheFirstFile();
  void Z0IsLimited();
  void DiagramButtonsSetTheDisplayMode();
  void GainWindowTakesThePageAsItIs();

 private:
  int ListCount() { return Find<QListWidget>("CheckListBox1")->count(); }
  bool Enabled(const char* name) { return Find<QWidget>(name)->isEnabled(); }
  QString ShownCount() { return Find<QLineEdit>("fnEingabe")->text(); }
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
  for (const char* name : kDiagramButtons) QVERIFY2(!Enabled(name), name);
  Window().LoadFrequencyFile(File(1));
  for (const char* name : kDiagramButtons) QVERIFY2(Enabled(name), name);
  Window().LoadFrequencyFile(File(2, 3));
  Window().LoadFrequencyFile(File(1));
  mainwin_test::MessageLog log;
  const QString shownCount = ShownCount();
  const QString broken = mainwin_test::WriteTextFile(dir_, "broken.s2p", "Broken\n100M 0.5 x -30 4 150 0.05 60 0.4 -20\n");
  Window().LoadFrequencyFile(broken);
  QVERIFY2(log.Messages().size() == 1 && log.Messages()[0].contains(broken), qPrintable(log.Messages().join('|')));
  QCOMPARE(Window().Series().SeriesCount(), std::size_t{3});
  QCOMPARE(QString::fromStdString(Window().Series().Path(2)), File(1));
  QCOMPARE(Window().HistoryList().Items(), QStringList({File(1), File(2, 3)}));
  QCOMPARE(ListCount(), 3);
  QCOMPARE(numerics::DataSets().openCount, 3);
  QCOMPARE(ShownCount(), shownCount);
}

// Regression: a second load once enabled the combined buttons again after the rule had run.
void FrequencyPageTest::OneOrMoreActiveFilesRuleAndTheDisplayCount() {
  Start({File(1, 7), File(2, 9)});
  for (const char* name : {"SpeedButton5", "SpeedButton6", "fAnzahlSpinButton"}) QVERIFY2(!Enabled(name), name);
  QVERIFY(Enabled("GleicheFrequenz") && Enabled("SpeedButton1"));
  QCOMPARE(ShownCount(), QStringLiteral("  0"));
  // Unchecking the first leaves the second, with its own number of points.
  Find<QListWidget>("CheckListBox1")->item(0)->setCheckState(Qt::Unchecked);
  for (const char* name : {"SpeedButton5", "SpeedButton6", "Label4", "fAnzahlSpinButton"}) {
    QVERIFY2(Enabled(name), name);
  }
  QVERIFY(!Enabled("GleicheFrequenz"));
  QCOMPARE(ShownCount(), QStringLiteral("  9"));
  // Up from the last point wraps to 1, down from 1 to the last.
  auto* spin = Find<controls::TSpinButton>("fAnzahlSpinButton");
  QTest::mouseClick(spin->UpButton(), Qt::LeftButton);
  QCOMPARE(ShownCount(), QStringLiteral("  1"));
  QTest::mouseClick(spin->DownButton(), Qt::LeftButton);
  QCOMPARE(ShownCount(), QStringLiteral("  9"));
}

void FrequencyPageTest::RemovingFilesFreesTheirSetsUntilNoneIsLeft() {
  Start({File(1), File(2, 3)});
  mainwin_test::MessageLog log;
  ClickDelete();
  QCOMPARE(ListCount(), 1);
  QCOMPARE(numerics::DataSets().openCount, 1);
  QCOMPARE(ShownCount(), QStringLiteral("  5"));
  // The freed data set takes the next file.
  Window().LoadFrequencyFile(File(3, 4));
  QCOMPARE(numerics::DataSets().sets[1].title, std::string("Test device p3.s2p"));
  QCOMPARE(numerics::DataSets().sets[1].pointCount, 4);
  ClickDelete();
  ClickDelete();
  QVERIFY(!Enabled("SpeedButton1"));
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

// Each button passes the "connect" choice as it stands, which alternates here, and shows its window.
void FrequencyPageTest::DiagramButtonsSetTheDisplayMode() {
  using M = graphwin::DisplayMode;
  using W = graphwin::DiagramWindow;
  const std::tuple<const char*, M, W> buttons[] = {
      {"SpeedButton1", M::InputReflection, W::Reflection}, {"SpeedButton2", M::OutputReflection, W::Reflection},
      {"SpeedButton6", M::BothReflections, W::Reflection}, {"SpeedButton3", M::ForwardTransmission, W::Transmission},
      {"SpeedButton4", M::ReverseTransmission, W::Transmission},
      {"SpeedButton5", M::BothTransmissions, W::Transmission}, {"SpeedButtonGain", M::Gain, W::Gain},
      {"SpeedButtonk", M::Stability, W::Stability}, {"SpeedButtonZ", M::Impedance, W::Impedance}};
  Start({File(1)});
  bool connect = false;
  for (const auto& [button, mode, window] : buttons) {
    connect = !connect;
    Find<QCheckBox>("VerbindenCheckBox")->setChecked(connect);
    QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
    QCOMPARE(Window().CurrentDisplayMode(), mode);
    QCOMPARE(Window().ConnectForWindows(), connect);
    QVERIFY2(forms_->DiagramWindowOf(window)->isVisible(), button);
    forms_->DiagramWindowOf(window)->hide();
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
  const graphwin::plots::FrequencyPlot& plot = forms_->FormG()->Plot();
  QCOMPARE(plot.curves.size(), std::size_t{1});  // the unchecked file is left out
  QCOMPARE(plot.curves[0].frequency.size(), std::size_t{4});  // the display count
  QCOMPARE(plot.comment, std::string("Test device p1.s2p"));
  QVERIFY(!Window().GraphInputs().options.connect);
}

int RunFrequencyPageTests(int argc, char** argv) { return mainwin_test::RunTests<FrequencyPageTest>(argc, argv); }

#include "frequency_page_test.moc"
