#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <tuple>

#include "diagram/current.h"
#include "diagram/curves.h"
#include "diagram/pages/graph_legend.h"
#include "diagram/pages/page_graphs.h"
#include "diagram/scaling.h"

namespace diagram::pages {
namespace {

// A 400 x 300 picture has the frame columns 48 .. 366 and rows 27 .. 263; markers are
// round((366 + 263) / 500 + 1) = 2 pixels.
constexpr int kWidth = 400;
constexpr int kHeight = 300;
const QRgb kGreenPixel = qRgb(0, 128, 0);
const QRgb kRedPixel = qRgb(255, 0, 0);
const QRgb kBluePixel = qRgb(0, 0, 255);

QImage Draw(OutputPage page, const PageScene& scene) {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  QPainter painter(&image);
  diagram::Canvas canvas(painter, kWidth, kHeight);
  RoutineOf(page)(scene, canvas);
  return image;
}

// fT 10 and 20 GHz, fmax 16 and 30 GHz at 1 and 2 mA. The x axis becomes 0 .. 3 mA (2 mA with
// its headroom rounds up to 3 mA), the y axis 0 .. 40 GHz (30 GHz * 1.001 rounds up): columns
// 48 + 318 * I / 3 mA, rows 263 - 236 * f / 40 GHz.
PageScene TwoFiles(double secondCurrent = 2e-3) {
  PageScene scene;
  scene.settings = series::DefaultSeriesSettings();
  scene.results = {{1e-3, 10e9, 16e9, 0, 0, 0, 0}, {secondCurrent, 20e9, 30e9, 0, 0, 0, 0}};
  return scene;
}

bool AnyIn(const QImage& image, int left, int top, int size, QRgb colour) {
  for (int x = left; x < left + size; ++x) {
    for (int y = top; y < top + size; ++y) {
      if (image.pixel(x, y) == colour) return true;
    }
  }
  return false;
}

// Rings have the radius 2 * 2 + 2 = 6 pixels; the legend at the top right explains them on its third line.
TEST(PageGraphs, RingsTheDoubtfulPointsAndFindsTheirChecks) {
  PageScene scene = TwoFiles();
  EXPECT_FALSE(AnyIn(Draw(OutputPage::FtFmax, scene), 0, 0, kHeight, kBluePixel));  // no ring, no legend line
  scene.results[0].check.fmaxFromMsg = true;
  const QImage image = Draw(OutputPage::FtFmax, scene);
  EXPECT_TRUE(AnyIn(image, 260, 86, 3, kRedPixel));    // 2 mA, 30 GHz: a red circle hangs right of and below it
  EXPECT_TRUE(AnyIn(image, 159, 168, 3, kBluePixel));   // right of 1 mA, 16 GHz
  EXPECT_FALSE(AnyIn(image, 265, 85, 3, kBluePixel));   // right of 2 mA, 30 GHz
  EXPECT_TRUE(AnyIn(image, 255, 58, 18, kBluePixel));
  const PageGraph graph = GraphOf(OutputPage::FtFmax, scene);
  const diagram::Diagram& d = diagram::CurrentDiagram();
  const std::optional<CheckedPoint> fT = CheckedPointNear(d, graph, {263, 142});
  ASSERT_TRUE(fT);
  EXPECT_EQ(fT->figure, series::CheckedFigure::FT);
  EXPECT_EQ(fT->file, 1u);
  EXPECT_FALSE(CheckedPointNear(d, graph, {200, 120}));
}

// A 400 x 300 frame of 0 .. 10 on both axes: columns 48 .. 366, rows 27 .. 263. A box of 60 x 30
// goes to the top right (302, 31), else the top left (52, 31), bottom right (302, 229), bottom left.
TEST(LegendBox, TakesTheCornerFreeOfTextsWithTheFewestPoints) {
  diagram::Diagram d;
  diagram::SetupAxes(d, kWidth, kHeight, 10, 0, 10, 0);
  const std::vector<QRect> titleOnTop = {QRect(40, 20, 340, 20)};
  const std::tuple<std::vector<double>, std::vector<double>, std::vector<QRect>, QPoint> cases[] = {
      {{}, {}, {}, {302, 31}},
      {{}, {}, titleOnTop, {302, 229}},
      {{9.5, 9, 0.5, 9.5, 0.5}, {9.5, 9, 9.5, 0.5, 0.5}, {}, {52, 31}}};  // two points top right, one elsewhere
  for (const auto& [x, y, texts, corner] : cases) {
    const PageGraph graph{x, {{y, diagram::kGreen, diagram::kMarkerCross, "fT"}}, "", ""};
    EXPECT_EQ(LegendBox(d, graph, QSize(60, 30), texts).topLeft(), corner) << x.size() << texts.size();
  }
}

TEST(PageGraphs, TheLargestCurrentKeepsItsMarker) {
  // 4 mA would be the axis end without headroom, where markers are left out; with it the axis
  // reaches 5 mA and 4 mA is column 48 + 318 * 0.8 = 302.
  const QImage image = Draw(OutputPage::FtFmax, TwoFiles(4e-3));
  EXPECT_EQ(image.pixel(302, 145), kGreenPixel);
}

// k 0.5 and 0.6, MAG 3 and 4 dB: 10 k reaches only 6, so the axis is raised to 15 with the
// step NiceStep(15 / 50) = 0.5; k alone rounds 0.6 * 1.001 up to 0.7, step NiceStep(0.014).
TEST(PageGraphs, TheGainAxisKeepsRoomUpTo15UnlessOnlyKIsShown) {
  PageScene scene;
  scene.results = {{1e-3, 0, 0, 3, 0, 0.5, 0}, {2e-3, 0, 0, 4, 0, 0.6, 0}};
  const std::tuple<GraphicChoice, double, double> cases[] = {{{}, 15, 0.5}, {{false, false, false, true}, 0.7, 0.02}};
  for (const auto& [choice, yMax, yStep] : cases) {
    scene.choice = choice;
    Draw(OutputPage::KMag, scene);
    EXPECT_DOUBLE_EQ(diagram::CurrentDiagram().y.max, yMax);
    EXPECT_DOUBLE_EQ(diagram::CurrentDiagram().y.step, yStep);
    EXPECT_DOUBLE_EQ(diagram::CurrentDiagram().y.min, 0);
  }
}

// Ranges without width still get a frame, with the axes where they cross at 0.
TEST(PageGraphs, AnUnstableOrEmptySeriesStillGetsAFrame) {
  EXPECT_EQ(Draw(OutputPage::StabilityLimit, TwoFiles()).pixel(48, 200), qRgb(0, 0, 0));
  EXPECT_DOUBLE_EQ(diagram::CurrentDiagram().y.max, 1);
  EXPECT_EQ(Draw(OutputPage::FtFmax, PageScene{}).pixel(200, 263), qRgb(0, 0, 0));
  EXPECT_DOUBLE_EQ(diagram::CurrentDiagram().x.max, 1);
}

}  // namespace
}  // namespace diagram::pages
