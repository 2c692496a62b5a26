#include <gtest/gtest.h>

#include <tuple>

#include "../picture.h"
#include "diagram/diagram_state.h"
#include "diagram/curves.h"
#include "diagram/pages/graph_legend.h"
#include "diagram/pages/page_graphs.h"
#include "diagram/scaling.h"

namespace diagram::pages {
namespace {

using diagram::test::ColourAt;
using diagram::test::HasColourNear;

// A 400 x 300 picture has the frame columns 48 .. 366 and rows 27 .. 263; markers are
// round((366 + 263) / 500 + 1) = 2 pixels.
QImage Draw(OutputPage page, const PageScene& scene) {
  diagram::test::Picture picture(400, 300);
  RoutineOf(page)(scene, picture.canvas());
  return picture.Finish();
}

// fT 10 and 20 GHz, fmax 16 and 30 GHz at 1 and 2 mA. The x axis becomes 0 .. 3 mA (2 mA with
// its headroom rounds up to 3 mA), the y axis 0 .. 40 GHz (30 GHz * 1.001 rounds up): columns
// 48 + 318 * I / 3 mA, rows 263 - 236 * f / 40 GHz.
PageScene TwoFiles() {
  PageScene scene;
  scene.settings = series::DefaultSeriesSettings();
  scene.results = {{1e-3, 10e9, 16e9, 0, 0, 0, 0}, {2e-3, 20e9, 30e9, 0, 0, 0, 0}};
  return scene;
}

// Rings have the radius 2 * 2 + 2 = 6 pixels; the legend at the top right explains them on its third line.
TEST(PageGraphs, RingsTheDoubtfulPoints) {
  PageScene scene = TwoFiles();
  EXPECT_FALSE(HasColourNear(Draw(OutputPage::FtFmax, scene), 150, 150, 150, kBlue));  // no ring, no legend line
  scene.results[0].check.fmaxFromMsg = true;
  const QImage image = Draw(OutputPage::FtFmax, scene);
  EXPECT_TRUE(HasColourNear(image, 261, 87, 1, kRed));    // 2 mA, 30 GHz: a red circle hangs right of and below it
  EXPECT_TRUE(HasColourNear(image, 160, 169, 1, kBlue));  // right of 1 mA, 16 GHz
  EXPECT_FALSE(HasColourNear(image, 266, 86, 1, kBlue));  // right of 2 mA, 30 GHz
  EXPECT_TRUE(HasColourNear(image, 264, 67, 9, kBlue));
  EXPECT_FALSE(CheckedPointNear(CurrentDiagram(), GraphOf(OutputPage::FtFmax, scene), {200, 120}));
}

// A 400 x 300 frame of 0 .. 10 on both axes: columns 48 .. 366, rows 27 .. 263. A box of 60 x 30
// goes to the top right (302, 31), else the top left (52, 31), bottom right (302, 229), bottom left.
TEST(LegendBox, TakesTheCornerFreeOfTextsWithTheFewestPoints) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  const std::vector<QRect> titleOnTop = {QRect(40, 20, 340, 20)};
  const std::tuple<std::vector<double>, std::vector<double>, std::vector<QRect>, QPoint> cases[] = {
      {{}, {}, {}, {302, 31}},
      {{}, {}, titleOnTop, {302, 229}},
      {{9.5, 9, 0.5, 9.5, 0.5}, {9.5, 9, 9.5, 0.5, 0.5}, {}, {52, 31}}};  // two points top right, one elsewhere
  for (const auto& [x, y, texts, corner] : cases) {
    const PageGraph graph{x, {{y, kGreen, kMarkerCross, "fT"}}, "", ""};
    EXPECT_EQ(LegendBox(d, graph, QSize(60, 30), texts).topLeft(), corner) << x.size() << texts.size();
  }
}

// k 0.5 and 0.6, MAG 3 and 4 dB: 10 k reaches only 6, so the axis is raised to the least
// maximum 15, with the step NiceStep(15 / 50) = 0.5.
TEST(PageGraphs, TheGainAxisKeepsRoomUpTo15) {
  PageScene scene;
  scene.results = {{1e-3, 0, 0, 3, 0, 0.5, 0}, {2e-3, 0, 0, 4, 0, 0.6, 0}};
  Draw(OutputPage::KMag, scene);
  EXPECT_DOUBLE_EQ(CurrentDiagram().y.max, 15);
  EXPECT_DOUBLE_EQ(CurrentDiagram().y.step, 0.5);
  EXPECT_DOUBLE_EQ(CurrentDiagram().y.min, 0);
}

// Ranges without width still get a frame, with the axes where they cross at 0.
TEST(PageGraphs, AnUnstableOrEmptySeriesStillGetsAFrame) {
  EXPECT_EQ(ColourAt(Draw(OutputPage::StabilityLimit, TwoFiles()), 48, 200), kBlack);
  EXPECT_DOUBLE_EQ(CurrentDiagram().y.max, 1);
  EXPECT_EQ(ColourAt(Draw(OutputPage::FtFmax, PageScene{}), 200, 263), kBlack);
  EXPECT_DOUBLE_EQ(CurrentDiagram().x.max, 1);
}

}  // namespace
}  // namespace diagram::pages
