#include "diagram/scaling.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <tuple>
#include <vector>

#include "diagram/autoscale.h"
#include "diagram/axis_ends.h"
#include "diagram/zoom.h"

namespace diagram {
namespace {

// Asked minimum and maximum, then the limits they become: both moved up, equal limits, exact
// decades kept, a negative minimum taken by its magnitude.
TEST(LogRange, MovesBothLimitsUpToADecade) {
  const double cases[][4] = {
      {5e7, 2e9, 1e8, 1e10}, {1e9, 1e9, 1e8, 1e9}, {1e7, 1e10, 1e7, 1e10}, {-5e7, 2e9, 1e8, 1e10}};
  for (const auto& [min, max, expectedMin, expectedMax] : cases) {
    Diagram d;
    SetAxisModes(d, AxisMode::Log, AxisMode::Log);
    SetupAxes(d, 400, 300, max, min, max, min);
    EXPECT_DOUBLE_EQ(d.x.min, expectedMin) << min;
    EXPECT_DOUBLE_EQ(d.x.max, expectedMax) << min;
    EXPECT_DOUBLE_EQ(d.y.logMax, std::log10(expectedMax)) << min;
  }
}

// The crossing of a log axis is its minimum, that of a polar diagram the centre.
TEST(AxisModes, PolarWinsThenSmithAndTheCrossingFollowsTheMode) {
  const AxisMode cases[][3] = {{AxisMode::Linear, AxisMode::Polar, AxisMode::Polar},
                               {AxisMode::Polar, AxisMode::Smith, AxisMode::Polar},
                               {AxisMode::Log, AxisMode::Smith, AxisMode::Smith}};
  Diagram d;
  for (const auto& [x, y, expected] : cases) {
    SetAxisModes(d, x, y);
    EXPECT_TRUE(d.x.mode == expected && d.y.mode == expected);
  }
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e9, 1e6, 5, 1);
  SetAxisCrossing(d, 1e8, 4);
  EXPECT_TRUE(d.x.cross == 1e6 && d.y.cross == 4);
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 400, 300, 1, -1, 1, -1);
  SetAxisCrossing(d, 0.5, 0.5);
  EXPECT_TRUE(d.x.cross == 0 && d.y.cross == 0);
}

TEST(PixelMapping, ClampsToTheFrameAndRoundsInside) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  EXPECT_EQ(XToPixel(d, -5), 48);
  EXPECT_EQ(XToPixel(d, 1e9), 366);
  EXPECT_EQ(XToPixel(d, std::nan("")), 48);
  SetupAxes(d, 768, 576, 20, -20, 40, -20);
  EXPECT_NEAR(PixelToY(d, 162), 25, 1e-12);  // a quarter of the 484 rows below the top
  EXPECT_TRUE(IsInsideFrame(d, 66, 525));
  EXPECT_FALSE(IsInsideFrame(d, 65, 300));
  EXPECT_FALSE(IsInsideFrame(d, 300, 526));
}

// Frames: 600 x 600 has 498 columns and 506 rows, 768 x 576 650 by 484.
TEST(RoundChart, KeepsTheWholeRangeWithOnePixelScale) {
  Diagram d;
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 600, 600, 2, -2, 1, -1);  // regression: x came out -1 .. 1, the data beyond it clamped
  EXPECT_NEAR(d.x.min, -2, 1e-12);
  EXPECT_NEAR(d.x.max, 2, 1e-12);
  EXPECT_NEAR(d.y.min, -506.0 / 249, 1e-12);
  EXPECT_NEAR(d.y.max, 506.0 / 249, 1e-12);
  SetupAxes(d, 768, 576, 0.5, -0.3, 0, 0);  // y: both limits 0 give 0 .. 1; x widened about its centre 0.1
  EXPECT_NEAR(d.x.min, 0.1 - 325.0 / 484, 1e-12);
  EXPECT_NEAR(d.x.max, 0.1 + 325.0 / 484, 1e-12);
  EXPECT_NEAR(d.y.min, 0, 1e-12);
  EXPECT_NEAR(d.y.max, 1, 1e-12);
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

// 400 x 300, both axes 0 .. 10 crossing at 0: the x axis is row 263 up to column 366, the y axis
// column 48. Each row: where the mouse is and whether it grabs the end x max, x min, y min, y max.
TEST(AxisEnds, AnEndIsGrabbedWithinItsZone) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  const std::tuple<int, int, std::array<bool, 4>> cases[] = {{357, 263, {false, false, false, false}},
                                                             {50, 27, {false, false, false, true}}};
  for (const auto& [column, row, ends] : cases) {
    const double x = PixelToX(d, column), y = PixelToY(d, row);
    const std::array grabbed{IsAtXMaxEnd(d, x, y), IsAtXMinEnd(d, x, y), IsAtYMinEnd(d, x, y), IsAtYMaxEnd(d, x, y)};
    EXPECT_EQ(grabbed, ends) << column << " " << row;
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
      // all negative: the halved minimum, NiceStep(-3.65) = -5, is both limit and crossing
      {"x negative", false, AxisMode::Linear, {-7.3, -2}, -5, -2, -5, 0.1},
      // RoundUpOneDigit(1.001 * 0.83) = 0.9, symmetric; NiceStep(1.8 / 30) = 0.1
      {"x polar", false, AxisMode::Polar, {-0.2, 0.83}, -0.9, 0.9, 0, 0.1},
      // a minimum of 0 on a log axis becomes max / 1000
      {"x log", false, AxisMode::Log, {0, 1e3, 1e9}, 1e6, 1e9, 1e6, 5e7},
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

TEST(Autoscale, LooksUpToCountOnlyAndIgnoresDataWithoutFiniteValues) {
  Diagram d;
  AutoscaleY(d, std::vector<double>{3, 7.3, -500}, 2);
  EXPECT_DOUBLE_EQ(d.y.min, 0);
  EXPECT_DOUBLE_EQ(d.y.max, 8);  // RoundUpOneDigit(7.3073)
  AutoscaleY(d, std::vector<double>{std::nan(""), std::nan(""), std::nan("")}, 3);
  EXPECT_EQ(d.y.max, 8);
}

}  // namespace
}  // namespace diagram
