// The reflection and transmission windows driven through their controls by name, offscreen.
#include <QToolButton>

#include "controls/message_box.h"
#include "controls/spin_button.h"
#include "graphwin/phiwin.h"
#include "graphwin/vuwin.h"
#include "window_fixture.h"

namespace graphwin {
namespace {

using graphwin_test::Answers;
using ReflectionWindowTest = graphwin_test::WindowTest<TFormPhi, DisplayMode::InputReflection>;
using TransmissionWindowTest = graphwin_test::WindowTest<TFormVu, DisplayMode::BothTransmissions>;

// The x-log refusal's text, with the check mark left as it was.
QString RefusedLogX(const QWidget& window) {
  auto* xlog = window.findChild<QAction*>("xlog1");
  QString said;
  controls::MessageInterception messages([&](const QString& text) { said = text; });
  xlog->trigger();
  EXPECT_FALSE(xlog->isChecked());
  return said;
}

TEST_F(ReflectionWindowTest, OpensAtTheSmithChartOfTheChosenParameter) {
  EXPECT_EQ(window_->windowTitle(), "S-Parameters");
  EXPECT_TRUE(Find<QAction>("SmithDiagramm1")->isChecked());
  EXPECT_EQ(window_->Plot().curves.legendHeading, "S11");
  EXPECT_EQ(State().x.mode, diagram::AxisMode::Smith);
  EXPECT_EQ(State().x.step, 0.05);  // NiceStep(2 / 50)
  EXPECT_EQ(RefusedLogX(*window_), "log not available for Smith chart!");
  Find<QAction>("Polar1")->trigger();
  EXPECT_FALSE(Find<QAction>("SmithDiagramm1")->isChecked());
  EXPECT_EQ(RefusedLogX(*window_), "log not available for polar diagram!");
  Find<QAction>("Sii11")->trigger();  // |S11| = 0 up to 5 GHz
  EXPECT_EQ(State().x.max, 5e9);
  EXPECT_EQ(State().y.max, 1);
  Find<QAction>("xlog1")->trigger();
  EXPECT_EQ(State().x.mode, diagram::AxisMode::Log);
  window_->ShowFromMain();
  EXPECT_TRUE(Find<QAction>("SmithDiagramm1")->isChecked());
  EXPECT_FALSE(Find<QAction>("xlog1")->isChecked());
}

// The Smith chart fits one pixel scale to its picture; sizes that come and go change nothing.
TEST_F(ReflectionWindowTest, ResizingKeepsTheRange) {
  window_->resize(900, 420);
  const diagram::Diagram wide = State();
  window_->resize(420, 900);
  window_->resize(900, 420);
  EXPECT_EQ(State().x.min, wide.x.min);
  EXPECT_EQ(State().y.max, wide.y.max);
  EXPECT_EQ(State().y.max, 1);
}

TEST_F(ReflectionWindowTest, QDialogFillsTheTableAndDoubleClickDefinesTheOrigin) {
  {
    Answers answers({"0", "20k"});
    Find<QAction>("constantQ1")->trigger();
    Find<QAction>("constantQ1")->trigger();
    EXPECT_EQ(answers.asked_, (QStringList{"Constant Q Circle", "Constant Q Circle"}));
  }
  EXPECT_EQ(window_->QTable().Values(), (std::vector<double>{0.01, 10000}));
  EXPECT_TRUE(Find<QAction>("DelAllQ")->isEnabled());
  Find<QAction>("DeleteQ")->trigger();
  Find<QAction>("DeleteQ")->trigger();
  EXPECT_FALSE(Find<QAction>("DeleteQ")->isEnabled());
  EXPECT_FALSE(Find<QAction>("DelAllQ")->isEnabled());
  Answers origin({"0.5", "0.2"});  // also in the Smith chart, unlike the other windows
  QTest::mouseDClick(Image(), Qt::LeftButton);
  EXPECT_EQ(origin.asked_, (QStringList{"xo=", "yo="}));
}

TEST_F(ReflectionWindowTest, CirclesFollowTheChosenPoint) {
  auto* spin = Find<controls::TSpinButton>("SpinButtonCircles");
  EXPECT_FALSE(spin->isEnabled());
  Find<QAction>("StabilityCircles1")->trigger();
  EXPECT_EQ(Find<QLabel>("LabelCircles")->text(), "f=1.00GHz");
  spin->DownButton()->click();  // round to the last point
  EXPECT_EQ(Find<QLabel>("LabelCircles")->text(), "f=5.00GHz");
  const QImage before = window_->Picture();
  Find<QAction>("StabilityCircles1")->trigger();
  EXPECT_NE(window_->Picture(), before);
}

TEST_F(TransmissionWindowTest, OpensPolarAtTheLargestMagnitudeAndZoomsS12) {
  EXPECT_EQ(State().x.mode, diagram::AxisMode::Polar);
  EXPECT_EQ(State().y.max, 2);  // RoundUpOneDigit(|S21| = 2)
  EXPECT_EQ(window_->Plot().curves.legendHeading, "S21 & S12");
  auto* spin = Find<controls::TSpinButton>("SpinButtonS12Zoom");
  spin->UpButton()->click();
  spin->UpButton()->click();
  EXPECT_EQ(window_->S12ZoomFactor(), 100);
  EXPECT_TRUE(spin->toolTip().endsWith("now 100.0"));
  EXPECT_EQ(window_->Plot().curves.curves[1].name, "dut.s2p, S12 x100.0");
}

TEST_F(TransmissionWindowTest, PrintsAndExportsTheLocus) {
  EXPECT_EQ(PrintedStart(), "%PDF-");
  QTemporaryDir dir;
  controls::DialogInterception answers([&](const controls::SaveDialogSetup&) { return dir.filePath("curves.csv"); },
                                       nullptr);
  Find<QAction>("ExportCurves1")->trigger();
  QFile csv(dir.filePath("curves.csv"));
  ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
  EXPECT_EQ(csv.readLine(), "f_Hz,Re(S21) (dut.s2p),Im(S21) (dut.s2p),Re(S12) (dut.s2p),Im(S12) (dut.s2p)\n");
  EXPECT_EQ(csv.readLine(), "1000000000,2,0,0.1,0\n");
}

}  // namespace
}  // namespace graphwin
