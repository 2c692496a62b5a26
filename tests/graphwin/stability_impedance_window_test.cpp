// The stability and impedance windows driven through their controls by name, and the frequency
// cursor across the open graph windows, on the offscreen platform.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QToolButton>
#include <cmath>

#include "controls/spin_button.h"
#include "graphwin/frequency_cursor.h"
#include "graphwin/kwin.h"
#include "graphwin/phiwin.h"
#include "graphwin/qkreis.h"
#include "graphwin/vuwin.h"
#include "graphwin/zwin.h"
#include "window_fixture.h"

namespace graphwin {
namespace {

using graphwin_test::Answers;
using StabilityWindowTest = graphwin_test::WindowTest<TFormK>;
using ImpedanceWindowTest = graphwin_test::WindowTest<TFormZ>;

TEST_F(StabilityWindowTest, ChecksKAgainAndAddsTheChosenFigures) {
  Find<QCheckBox>("CheckBoxk")->click();
  EXPECT_TRUE(Find<QCheckBox>("CheckBoxk")->isChecked());
  Find<QCheckBox>("CheckBoxMu")->click();
  EXPECT_EQ(window_->Plot().title, "k(f) and µ(f)");
}

TEST_F(ImpedanceWindowTest, ModesBoxesAndTheFrequencyLimits) {
  EXPECT_EQ(State().x.min, 5e6);  // NiceStep(5 GHz) / 1000
  Find<QAction>("RealteilZ1")->trigger();
  EXPECT_FALSE(Find<QAction>("BetragZ1")->isChecked());
  EXPECT_EQ(window_->Plot().title, "Impedance Re(Z(f))");
  Find<QCheckBox>("CheckBoxTor1")->click();
  EXPECT_TRUE(Find<QCheckBox>("CheckBoxTor1")->isChecked());
  Find<QCheckBox>("CheckBoxZL")->click();
  EXPECT_EQ(window_->Plot().curves.size(), 2u);
  {
    Answers answers({"200G"});
    QTest::mouseClick(Image(), Qt::LeftButton, {}, PixelOf(5e9, 0));
    EXPECT_EQ(answers.asked_, QStringList{"fmax="});
  }
  EXPECT_EQ(State().x.max, 1e11);
  Answers answers({"-2M"});  // the axes meet in the corner: both minimum ends, each limited
  QTest::mouseClick(Image(), Qt::LeftButton, {}, PixelOf(State().x.min, 0));
  EXPECT_EQ(answers.asked_, (QStringList{"fmin=", "ymin="}));
  EXPECT_EQ(State().x.min, 0);
  EXPECT_EQ(State().y.min, -1e6);
}

// The page holds the whole window, tool bar and read-out included, in its proportions.
TEST_F(ImpedanceWindowTest, PrintsTheWindowAsItStands) { EXPECT_EQ(PrintedStart(), "%PDF-"); }

// A mouse move in the stability window at 3.3 GHz picks 3 GHz, the first file's nearest point,
// and marks it in an open window over its picture, which is not drawn again, or in a window opened
// later when it draws. S11 grows by 0.1 a point, so at 3 GHz S11 = 0.3: D = 1.3 - 0.2, Y11 =
// (0.7 + 0.2) / D / 50, 1/Y11 = 55 / 0.9 Ohm; k = (1 - 0.09 + 0.04) / 0.4 = 2.375 lies above the
// stability window's axis.
struct CursorCase {
  const char* window;
  void (*prepare)(TGraphForm& window);  // a display mode chosen first
  std::vector<QPointF> marked;          // world points
  bool openedLater = false;
};
void PrintTo(const CursorCase& c, std::ostream* os) { *os << c.window; }

class FrequencyCursorTest : public testing::TestWithParam<CursorCase> {
 protected:
  FrequencyCursorTest() {
    diagram::CurrentDiagram() = {};
    for (int i = 0; i < set_->pointCount; ++i) {
      set_->points[static_cast<std::size_t>(i)].s[0][0] = numerics::MakePolar(0.1 * (i + 1), 0);
    }
    inputs_.files = {{set_.get(), "/data/dut.s2p", true}};
    inputs_.mode = DisplayMode::BothTransmissions;  // the reflection window keeps both its parameters
  }
  TGraphForm& Window(const char* name) {
    for (TGraphForm* window : windows_) {
      if (window->objectName() == name) return *window;
    }
    throw std::runtime_error(std::string("no window ") + name);
  }

  std::unique_ptr<numerics::TwoPortDataSet> set_ = graphwin_test::MakeDataSet(5, 1e9, 1e9);
  plots::GraphInputs inputs_;
  TGRHilfeBox help_;
  TXmaxDlg1 axis_;
  FrequencyCursor cursor_;
  TQcircle qCircle_;
  const GraphDialogs dialogs_{&help_, &axis_, &qCircle_, &cursor_};
  const InputsSource source_ = [this] { return inputs_; };
  TFormK stability_{source_, dialogs_};
  TFormZ impedance_{source_, dialogs_};
  TFormPhi reflection_{source_, dialogs_};
  TFormVu transmission_{source_, dialogs_};
  std::vector<TGraphForm*> windows_{&impedance_, &reflection_, &transmission_};
};

TEST_P(FrequencyCursorTest, AMouseMoveInOneWindowMarksTheFrequencyInTheOthers) {
  const CursorCase& c = GetParam();
  TGraphForm& window = Window(c.window);
  if (!c.openedLater) window.ShowFromMain();
  if (c.prepare) c.prepare(window);
  stability_.ShowFromMain();
  const qint64 drawn = window.Picture().cacheKey();
  auto* image = stability_.findChild<TDiagramImage*>("Image");
  // Sent, not simulated: each row's windows are new, but the simulated pointer would not have moved.
  const QPointF at(diagram::XToPixel(image->Scale(), 3.3e9), diagram::YToPixel(image->Scale(), 1));
  QMouseEvent move(QEvent::MouseMove, at, image->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(image, &move);
  EXPECT_EQ(cursor_.Frequency(), 3e9);
  EXPECT_TRUE(image->Marks().empty());
  if (c.openedLater) window.ShowFromMain();
  auto* marked = window.findChild<TDiagramImage*>("Image");
  std::vector<QPoint> expected;
  for (const QPointF& p : c.marked) {
    expected.emplace_back(diagram::XToPixel(marked->Scale(), p.x()), diagram::YToPixel(marked->Scale(), p.y()));
  }
  EXPECT_EQ(marked->Marks(), expected);
  if (!c.openedLater) {
    EXPECT_EQ(window.Picture().cacheKey(), drawn);
  }
  EXPECT_EQ(window.findChild<QLabel*>("CursorPanel")->text(), "Cursor : f=3.00GHz");
}

INSTANTIATE_TEST_SUITE_P(
    Windows, FrequencyCursorTest,
    testing::Values(CursorCase{"FormZ", nullptr, {{3e9, 55 / 0.9}}, true},
                    CursorCase{"FormPhi", nullptr, {{0.3, 0}, {0, 0}}},  // S11 and S22 in the Smith chart
                    CursorCase{"FormVu",  // S21 and S12 magnified ten times in the polar diagram
                               [](TGraphForm& w) {
                                 w.findChild<controls::TSpinButton*>("SpinButtonS12Zoom")->UpButton()->click();
                               },
                               {{2, 0}, {1, 0}}},
                    CursorCase{"FormVu", [](TGraphForm& w) { w.findChild<QAction*>("dBSij1")->trigger(); },
                               {{3e9, 20 * std::log10(2.0)}, {3e9, -20}}}));

}  // namespace
}  // namespace graphwin
