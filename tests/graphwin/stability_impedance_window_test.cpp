// The stability and impedance windows driven through their controls by name, and the frequency
// cursor across the open windows, on the offscreen platform.
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include "graphwin/frequency_cursor.h"
#include "graphwin/gwin.h"
#include "graphwin/kwin.h"
#include "graphwin/zwin.h"
#include "window_fixture.h"

namespace graphwin {
namespace {

using graphwin_test::AxisAnswers;
using StabilityWindowTest = graphwin_test::WindowTest<TFormK>;
using ImpedanceWindowTest = graphwin_test::WindowTest<TFormZ>;

// The gain fixture has k = 2.6 and mu = (1 - 0) / (0 + 0.2) = 5 at every point.
TEST_F(StabilityWindowTest, ChecksKAgainAndPlotsTheFiguresAsTheyAre) {
  EXPECT_EQ(State().yMin, 0);
  EXPECT_EQ(State().yMax, 2);
  Find<QCheckBox>("CheckBoxk")->click();
  EXPECT_TRUE(Find<QCheckBox>("CheckBoxk")->isChecked());
  Find<QCheckBox>("CheckBoxMu")->click();
  const plots::FrequencyPlot& plot = window_->Plot();
  ASSERT_EQ(plot.curves.size(), 2u);
  EXPECT_EQ(plot.title, "k(f) and µ(f)");
  EXPECT_DOUBLE_EQ(plot.curves[0].value[4], 2.6);
  EXPECT_DOUBLE_EQ(plot.curves[1].value[4], 5);
  QTest::mouseMove(Image(), PixelOf(2.5e9, 1.5));
  const QString readOut = Find<QLabel>("CurrentPanel")->text();
  EXPECT_TRUE(readOut.startsWith("Position : f=2.") && readOut.contains("Hz, y=1.5")) << readOut.toStdString();
}

// With S11 = S22 = 0, S21 = 2, S12 = 0.1: D = 1 - 0.2, Y11 = (1 + 0.2) / D / 50, so 1/Y11 = 33.33 Ohm.
TEST_F(ImpedanceWindowTest, ModesBoxesAndTheFrequencyLimits) {
  EXPECT_EQ(State().xMin, 5e6);  // NiceStep(5 GHz) / 1000
  EXPECT_EQ(State().yMax, 1000);
  EXPECT_NEAR(window_->Plot().curves[0].value[0], 100.0 / 3, 1e-9);
  Find<QAction>("RealteilZ1")->trigger();
  EXPECT_FALSE(Find<QAction>("BetragZ1")->isChecked());
  EXPECT_EQ(window_->Plot().title, "Impedance Re(Z(f))");
  Find<QCheckBox>("CheckBoxTor1")->click();
  EXPECT_TRUE(Find<QCheckBox>("CheckBoxTor1")->isChecked());
  Find<QCheckBox>("CheckBoxZL")->click();
  EXPECT_EQ(window_->Plot().curves.size(), 2u);
  {
    AxisAnswers answers("200G");
    QTest::mouseClick(Image(), Qt::LeftButton, {}, PixelOf(5e9, 0));
    EXPECT_EQ(answers.labels_, QStringList{"fmax="});
  }
  EXPECT_EQ(State().xMax, 1e11);
  AxisAnswers answers("-2M");  // the axes meet in the corner: both minimum ends, each limited
  QTest::mouseClick(Image(), Qt::LeftButton, {}, PixelOf(State().xMin, 0));
  EXPECT_EQ(answers.labels_, (QStringList{"fmin=", "ymin="}));
  EXPECT_EQ(State().xMin, 0);
  EXPECT_EQ(State().yMin, -1e6);
}

// The page holds the whole window, tool bar and read-out included, in its proportions.
TEST_F(ImpedanceWindowTest, PrintsTheWindowAsItStands) {
  QTemporaryDir dir;
  controls::DialogInterception printer(nullptr, [&](controls::PrinterDialog, QPrinter& p) {
    p.setOutputFormat(QPrinter::PdfFormat);
    p.setOutputFileName(dir.filePath("page.pdf"));
    return true;
  });
  Find<QAction>("Print1")->trigger();
  QFile pdf(dir.filePath("page.pdf"));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.read(5) == "%PDF-");
}

// A mouse move in one window marks the nearest frequency of the first file in every open window,
// over its picture, which is not drawn again; a window opened later takes the cursor up.
TEST(FrequencyCursor, AMouseMoveMarksTheFrequencyInEveryOpenWindow) {
  diagram::CurrentDiagram() = {};
  const auto set = graphwin_test::MakeDataSet(5, 1e9, 1e9);
  plots::GraphInputs inputs;
  inputs.files = {{set.get(), "/data/dut.s2p", true}};
  TGRHilfeBox help;
  TXmaxDlg1 axis;
  FrequencyCursor cursor;
  const GraphDialogs dialogs{&help, &axis, nullptr, &cursor};
  TFormK stability([&] { return inputs; }, dialogs);
  TFormZ impedance([&] { return inputs; }, dialogs);
  TFormG gain([&] { return inputs; }, dialogs);
  impedance.ShowFromMain();
  stability.ShowFromMain();
  const qint64 drawn = impedance.Picture().cacheKey();
  auto* image = stability.findChild<TDiagramImage*>("Image");
  const QPoint at(diagram::XToPixel(image->Scale(), 3.3e9), diagram::YToPixel(image->Scale(), 1));
  QTest::mouseMove(image, at);
  EXPECT_EQ(cursor.Frequency(), 3e9);
  auto* marked = impedance.findChild<TDiagramImage*>("Image");
  const diagram::Diagram& d = marked->Scale();
  EXPECT_EQ(marked->Marks(), (std::vector<QPoint>{{diagram::XToPixel(d, 3e9), diagram::YToPixel(d, 100.0 / 3)}}));
  EXPECT_EQ(impedance.Picture().cacheKey(), drawn);
  EXPECT_EQ(impedance.findChild<QLabel*>("CursorPanel")->text(), "Cursor : f=3.00GHz");
  EXPECT_TRUE(image->Marks().empty());  // k = 2.6 lies above the axis
  gain.ShowFromMain();
  EXPECT_EQ(gain.findChild<TDiagramImage*>("Image")->Marks().size(), 1u);
}

}  // namespace
}  // namespace graphwin
