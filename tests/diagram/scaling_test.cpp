#include "diagram/scaling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "diagram/autoscale.h"
#include "diagram/axis_ends.h"
#include "diagram/zoom.h"

namespace diagram {
namespace {

TEST(LogRange, MovesBothLimitsUpToADecade) {
  const struct {
    const char* name;
    double min, max, expectedMin, expectedMax;
  } cases[] = {{"both up", 5e7, 2e9, 1e8, 1e10},
               {"equal limits", 1e9, 1e9, 1e8, 1e9},
               {"exact decades stay", 1e7, 1e10, 1e7, 1e10},
               {"negative counts as magnitude", -5e7, 2e9, 1e8, 1e10}};
  for (const auto& c : cases) {
    Diagram d;
    SetAxisModes(d, AxisMode::Log, AxisMode::Log);
    SetupAxes(d, 400, 300, c.max, c.min, c.max, c.min);
    EXPECT_DOUBLE_EQ(d.x.min, c.expectedMin) << c.name;
    EXPECT_DOUBLE_EQ(d.x.max, c.expectedMax) << c.name;
    EXPECT_DOUBLE_EQ(d.y.logMax, std::log10(c.expectedMax)) << c.name;
  }
}

TEST(AxisModes, PolarWinsThenSmith) {
  const AxisMode cases[][3] = {{AxisMode::Linear, AxisMode::Polar, AxisMode::Polar},
                               {AxisMode::Polar, AxisMode::Smith, AxisMode::Polar},
                               {AxisMode::Log, AxisMode::Smith, AxisMode::Smith}};
  for (const auto& [x, y, expected] : cases) {
    Diagram d;
    SetAxisModes(d, x, y);
    EXPECT_EQ(d.x.mode, expected);
    EXPECT_EQ(d.y.mode, expected);
  }
}

TEST(AxisCrossing, FollowsTheModeOfEachAxis) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e9, 1e6, 5, 1);
  SetAxisCrossing(d, 1e8, 4);
  EXPECT_EQ(d.x.cross, 1e6);
  EXPECT_EQ(d.y.cross, 4);
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 400, 300, 1, -1, 1, -1);
  SetAxisCrossing(d, 0.5, 0.5);
  EXPECT_EQ(d.x.cross, 0);
  EXPECT_EQ(d.y.cross, 0);
}

TEST(PixelMapping, ClampsToTheFrameAndRoundsInside) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  EXPECT_EQ(XToPixel(d, -5), 48);
  EXPECT_EQ(XToPixel(d, 1e9), 366);
  EXPECT_EQ(XToPixel(d, std::nan("")), 48);
  EXPECT_EQ(XToPixel(d, 1), 80);     // 48 + 31.8
  EXPECT_EQ(YToPixel(d, 2.5), 204);  // 263 - 59
  SetupAxes(d, 768, 576, 20, -20, 40, -20);
  EXPECT_NEAR(PixelToY(d, 162), 25, 1e-12);  // a quarter of the 484 rows below the top
  EXPECT_TRUE(IsInsideFrame(d, 66, 525));
  EXPECT_FALSE(IsInsideFrame(d, 65, 300));
  EXPECT_FALSE(IsInsideFrame(d, 300, 526));
}

// Frames: 600 x 600 has 498 columns and 506 rows, 768 x 576 650 by 484.
TEST(RoundChart, KeepsTheWholeRangeWithOnePixelScale) {
  const struct {
    const char* name;
    AxisMode mode;
    int width, height;
    double xMax, xMin, yMax, yMin;  // as asked for
    double fittedXMax, fittedYMax, centreX;
  } cases[] = {// Regression: x came out -1 .. 1, and the data beyond it was clamped to the frame.
               {"wide range in a square picture", AxisMode::Polar, 600, 600, 2, -2, 1, -1, 2, 506.0 / 249, 0},
               {"Smith chart in a landscape picture", AxisMode::Smith, 768, 576, 1, -1, 1, -1, 650.0 / 484, 1, 0},
               // y: both limits 0 give 0 .. 1; x keeps its span 0.8, widened to 650/484 about 0.1.
               {"polar range rule, then widened about the centre", AxisMode::Polar, 768, 576, 0.5, -0.3, 0, 0,
                325.0 / 484, 1, 0.1}};
  for (const auto& c : cases) {
    Diagram d;
    SetAxisModes(d, c.mode, c.mode);
    SetupAxes(d, c.width, c.height, c.xMax, c.xMin, c.yMax, c.yMin);
    EXPECT_NEAR(d.x.min, c.centreX - c.fittedXMax, 1e-12) << c.name;
    EXPECT_NEAR(d.x.max, c.centreX + c.fittedXMax, 1e-12) << c.name;
    EXPECT_NEAR(d.y.max, c.fittedYMax, 1e-12) << c.name;
    EXPECT_NEAR(d.y.min, c.yMin == 0 ? 0 : -c.fittedYMax, 1e-12) << c.name;
    const Diagram fitted = d;  // fitting a fitted range changes nothing
    SetupAxes(d, c.width, c.height, d.x.max, d.x.min, d.y.max, d.y.min);
    EXPECT_NEAR(d.x.max, fitted.x.max, 1e-12) << c.name;
    EXPECT_NEAR(d.y.max, fitted.y.max, 1e-12) << c.name;
  }
}

TEST(PixelMapping, LogAxisPutsTheMiddleDecadeInTheMiddleAndRecomputingAppliesTheRangeRule) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e10, 1e8, 1, 0);
  EXPECT_EQ(XToPixel(d, 1e9), 207);
  EXPECT_EQ(XToPixel(d, 2e8), 96);  // 48 + log10(2) / 2 * 318 = 95.86
  EXPECT_NEAR(PixelToX(d, 207), 1e9, 1e-3);
  d.x.min = 3e8;  // as typed into the axis dialog
  RecomputeXAxis(d);
  EXPECT_DOUBLE_EQ(d.x.logMin, 9);
  EXPECT_EQ(XToPixel(d, 1e9), 48);
  d.y.max = 7;
  RecomputeYAxis(d);
  EXPECT_EQ(d.y.limitCopy, 7);
  EXPECT_EQ(YToPixel(d, 7), 27);
}

// 400 x 300, both axes 0 .. 10 crossing at 0: the x axis is row 263, the y axis column 48.
TEST(AxisEnds, AnEndIsGrabbedWithinItsZone) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  const struct {
    const char* name;
    int column, row;  // where the mouse is
    bool xMax, xMin, yMin, yMax;
  } cases[] = {{"beside the x arrow", 360, 270, true, false, false, false},
               {"past the zone", 357, 263, false, false, false, false},
               {"origin holds both minimum ends", 48, 263, false, true, true, false},
               {"arrow of y", 50, 27, false, false, false, true}};
  for (const auto& c : cases) {
    const double x = PixelToX(d, c.column), y = PixelToY(d, c.row);
    EXPECT_EQ(IsAtXMaxEnd(d, x, y), c.xMax) << c.name;
    EXPECT_EQ(IsAtXMinEnd(d, x, y), c.xMin) << c.name;
    EXPECT_EQ(IsAtYMinEnd(d, x, y), c.yMin) << c.name;
    EXPECT_EQ(IsAtYMaxEnd(d, x, y), c.yMax) << c.name;
  }
}

// x on a log axis, y on a linear one crossing at 10.
TEST(Zoom, LogAxisLosesADecadeAtEachEndDownToOneDecadeLinearScalesItsDistanceFromTheOrigin) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 768, 576, 1e10, 1e6, 40, -20);
  SetAxisCrossing(d, 1e6, 10);
  ZoomIn(d);
  EXPECT_DOUBLE_EQ(d.y.min, 10 - 30 / 1.5);
  EXPECT_DOUBLE_EQ(d.y.max, 10 + 30 / 1.5);
  EXPECT_DOUBLE_EQ(d.y.step, 2);  // NiceStep(40 / 30)
  const double expected[][2] = {{1e7, 1e9}, {1e8, 1e9}, {1e8, 1e9}};
  for (const auto& range : expected) {
    EXPECT_DOUBLE_EQ(d.x.min, range[0]);
    EXPECT_DOUBLE_EQ(d.x.max, range[1]);
    ZoomIn(d);
  }
  ZoomOut(d);  // the origin moves to the new minimum
  EXPECT_DOUBLE_EQ(d.x.min, 1e7);
  EXPECT_DOUBLE_EQ(d.x.max, 1e10);
  EXPECT_DOUBLE_EQ(d.x.cross, 1e7);
  EXPECT_NEAR(d.y.min, 10 - 30 / 1.5 / 1.5 / 1.5, 1e-12);
}

TEST(Autoscale, RoundsTheDataRange) {
  const struct {
    const char* name;
    bool yAxis;  // the two axes round their data by different rules
    AxisMode mode;
    std::vector<double> data;
    double min, max, cross, step;  // worked out by hand from the rounding rules
  } cases[] = {
      // min(NiceStep(0.15), 0) = 0; RoundUpOneDigit(7.3) = 8; NiceStep(8 / 30) = 0.5
      {"x positive", false, AxisMode::Linear, {0.3, 7.3, 2}, 0, 8, 0, 0.5},
      // all negative: the halved minimum, NiceStep(-3.65) = -5, is both limit and crossing
      {"x negative", false, AxisMode::Linear, {-7.3, -2}, -5, -2, -5, 0.1},
      // RoundUpOneDigit(1.001 * 0.83) = 0.9, symmetric; NiceStep(1.8 / 30) = 0.1
      {"x polar", false, AxisMode::Polar, {-0.2, 0.83}, -0.9, 0.9, 0, 0.1},
      // a minimum of 0 on a log axis becomes max / 1000
      {"x log", false, AxisMode::Log, {0, 1e3, 1e9}, 1e6, 1e9, 1e6, 5e7},
      // a positive minimum gives 0; RoundUpOneDigit(37.037) = 40; NiceStep(40 / 30) = 2
      {"y positive", true, AxisMode::Linear, {3, 37}, 0, 40, 0, 2},
      // -3.7 rounded away from zero; RoundUpOneDigit(12.012) = 20; NiceStep(24 / 30) = 1
      {"y both signs", true, AxisMode::Linear, {-3.7, 12}, -4, 20, 0, 1},
      // negative maximum, |min| <= 1: 0.9 * -0.35 = -0.315 rounded down to -0.3; crossing at min
      {"y negative small", true, AxisMode::Linear, {-0.8, -0.35}, -0.8, -0.3, -0.8, 0.02},
      // negative maximum, |min| > 1: the maximum becomes 0
      {"y negative large", true, AxisMode::Linear, {-12, -0.5}, -20, 0, 0, 1}};
  for (const auto& c : cases) {
    Diagram d;
    d.x.mode = d.y.mode = c.mode;
    c.yAxis ? AutoscaleY(d, c.data, static_cast<int>(c.data.size()))
            : AutoscaleX(d, c.data, static_cast<int>(c.data.size()));
    const Axis& a = c.yAxis ? d.y : d.x;
    EXPECT_DOUBLE_EQ(a.min, c.min) << c.name;
    EXPECT_DOUBLE_EQ(a.max, c.max) << c.name;
    EXPECT_DOUBLE_EQ(a.cross, c.cross) << c.name;
    EXPECT_DOUBLE_EQ(a.step, c.step) << c.name;
    EXPECT_EQ(a.labelEvery, 5) << c.name;
    if (c.mode == AxisMode::Log) {
      EXPECT_DOUBLE_EQ(a.logMin, std::log10(c.min)) << c.name;
    }
  }
}

TEST(Autoscale, LooksFromFirstIndexUpToCountOnlyAndIgnoresDataWithoutFiniteValues) {
  Diagram d;
  d.firstIndex = 1;
  AutoscaleY(d, std::vector<double>{1000, 3, 7.3, -500}, 3);
  EXPECT_DOUBLE_EQ(d.y.min, 0);
  EXPECT_DOUBLE_EQ(d.y.max, 8);  // RoundUpOneDigit(7.3073)
  AutoscaleY(d, std::vector<double>{std::nan(""), std::nan(""), std::nan("")}, 3);
  EXPECT_EQ(d.y.max, 8);
}

}  // namespace
}  // namespace diagram
