#include "diagram/scaling.h"

#include <gtest/gtest.h>

#include <ostream>

#include <cmath>
#include <vector>

#include "diagram/autoscale.h"
#include "diagram/axis_ends.h"
#include "diagram/zoom.h"

namespace diagram {
namespace {

struct LogCase {
  const char* name;
  double min, max, expectedMin, expectedMax;
};
void PrintTo(const LogCase& c, std::ostream* os) { *os << c.name; }

class LogRangeTest : public testing::TestWithParam<LogCase> {};

TEST_P(LogRangeTest, MovesBothLimitsUpToADecade) {
  const LogCase& c = GetParam();
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Log);
  SetupAxes(d, 400, 300, c.max, c.min, c.max, c.min);
  EXPECT_DOUBLE_EQ(d.x.min, c.expectedMin) << c.name;
  EXPECT_DOUBLE_EQ(d.x.max, c.expectedMax) << c.name;
  EXPECT_DOUBLE_EQ(d.x.logMin, std::log10(c.expectedMin)) << c.name;
  EXPECT_DOUBLE_EQ(d.y.logMax, std::log10(c.expectedMax)) << c.name;
  EXPECT_DOUBLE_EQ(d.x.limitCopy, c.expectedMax) << c.name;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LogRangeTest,
    testing::Values(LogCase{"both up", 5e7, 2e9, 1e8, 1e10}, LogCase{"equal limits", 1e9, 1e9, 1e8, 1e9},
                    LogCase{"exact decades stay", 1e7, 1e10, 1e7, 1e10},
                    LogCase{"negative counts as magnitude", -5e7, 2e9, 1e8, 1e10}));

struct CouplingCase {
  AxisMode x, y, expected;
};
void PrintTo(const CouplingCase& c, std::ostream* os) { *os << static_cast<int>(c.x) << "," << static_cast<int>(c.y); }

class ModeCouplingTest : public testing::TestWithParam<CouplingCase> {};

TEST_P(ModeCouplingTest, PolarWinsThenSmith) {
  Diagram d;
  SetAxisModes(d, GetParam().x, GetParam().y);
  EXPECT_EQ(d.x.mode, GetParam().expected);
  EXPECT_EQ(d.y.mode, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, ModeCouplingTest,
                         testing::Values(CouplingCase{AxisMode::Linear, AxisMode::Polar, AxisMode::Polar},
                                         CouplingCase{AxisMode::Polar, AxisMode::Smith, AxisMode::Polar},
                                         CouplingCase{AxisMode::Log, AxisMode::Smith, AxisMode::Smith}));

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
}

TEST(PixelMapping, LogAxisPutsTheMiddleDecadeInTheMiddle) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e10, 1e8, 1, 0);
  EXPECT_EQ(XToPixel(d, 1e9), 207);
  EXPECT_EQ(XToPixel(d, 2e8), 96);  // 48 + log10(2) / 2 * 318 = 95.86
  EXPECT_NEAR(PixelToX(d, 207), 1e9, 1e-3);
}

TEST(PixelMapping, PixelToWorldInvertsTheLinearMapping) {
  Diagram d;
  SetupAxes(d, 768, 576, 20, -20, 40, -20);
  EXPECT_NEAR(PixelToY(d, 162), 25, 1e-12);  // a quarter of the 484 rows below the top
  EXPECT_TRUE(IsInsideFrame(d, 66, 525));
  EXPECT_FALSE(IsInsideFrame(d, 65, 300));
  EXPECT_FALSE(IsInsideFrame(d, 300, 526));
}

struct RoundCase {
  const char* name;
  AxisMode mode;
  int width, height;
  double xMax, xMin, yMax, yMin;  // as asked for
  double fittedXMin, fittedXMax, fittedYMin, fittedYMax;
};
void PrintTo(const RoundCase& c, std::ostream* os) { *os << c.name; }

class RoundChartTest : public testing::TestWithParam<RoundCase> {};

// Frames: 600 x 600 has 498 columns and 506 rows, 768 x 576 650 by 484.
TEST_P(RoundChartTest, KeepsTheWholeRangeWithOnePixelScale) {
  const RoundCase& c = GetParam();
  Diagram d;
  SetAxisModes(d, c.mode, c.mode);
  SetupAxes(d, c.width, c.height, c.xMax, c.xMin, c.yMax, c.yMin);
  EXPECT_NEAR(d.x.min, c.fittedXMin, 1e-12);
  EXPECT_NEAR(d.x.max, c.fittedXMax, 1e-12);
  EXPECT_NEAR(d.y.min, c.fittedYMin, 1e-12);
  EXPECT_NEAR(d.y.max, c.fittedYMax, 1e-12);
  const double across = (d.x.pixMax - d.x.pixMin) / (d.x.max - d.x.min);
  const double down = (d.y.pixMin - d.y.pixMax) / (d.y.max - d.y.min);
  EXPECT_NEAR(across, down, 1e-9);
  const Diagram fitted = d;  // fitting a fitted range changes nothing
  SetupAxes(d, c.width, c.height, d.x.max, d.x.min, d.y.max, d.y.min);
  EXPECT_NEAR(d.x.max, fitted.x.max, 1e-12);
  EXPECT_NEAR(d.y.max, fitted.y.max, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RoundChartTest,
    testing::Values(
        // Regression: x came out -1 .. 1, and the data beyond it was clamped to the frame.
        RoundCase{"wide range in a square picture", AxisMode::Polar, 600, 600, 2, -2, 1, -1,
                  -2, 2, -506.0 / 249, 506.0 / 249},
        RoundCase{"Smith chart in a landscape picture", AxisMode::Smith, 768, 576, 1, -1, 1, -1,
                  -650.0 / 484, 650.0 / 484, -1, 1},
        // y: both limits 0 give 0 .. 1; x keeps its span 0.8, widened to 650/484 about 0.1.
        RoundCase{"polar range rule, then widened about the centre", AxisMode::Polar, 768, 576, 0.5, -0.3, 0, 0,
                  0.1 - 325.0 / 484, 0.1 + 325.0 / 484, 0, 1}));

TEST(RecomputeAxis, AppliesTheRangeRuleInTheLastFrame) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e10, 1e8, 1, 0);
  d.x.min = 3e8;  // as typed into the axis dialog
  RecomputeXAxis(d);
  EXPECT_DOUBLE_EQ(d.x.min, 1e9);
  EXPECT_DOUBLE_EQ(d.x.logMin, 9);
  EXPECT_EQ(XToPixel(d, 1e9), 48);
  d.y.max = 7;
  RecomputeYAxis(d);
  EXPECT_EQ(d.y.limitCopy, 7);
  EXPECT_EQ(YToPixel(d, 7), 27);
}

struct EndCase {
  const char* name;
  int column, row;  // where the mouse is
  bool xMax, xMin, yMin, yMax;
};
void PrintTo(const EndCase& c, std::ostream* os) { *os << c.name; }

class AxisEndTest : public testing::TestWithParam<EndCase> {};

// 400 x 300, both axes 0 .. 10 crossing at 0: the x axis is row 263, the y axis column 48.
TEST_P(AxisEndTest, GrabsAnEndWithinTheZone) {
  const EndCase& c = GetParam();
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  const double x = PixelToX(d, c.column), y = PixelToY(d, c.row);
  EXPECT_EQ(IsAtXMaxEnd(d, x, y), c.xMax) << c.name;
  EXPECT_EQ(IsAtXMinEnd(d, x, y), c.xMin) << c.name;
  EXPECT_EQ(IsAtYMinEnd(d, x, y), c.yMin) << c.name;
  EXPECT_EQ(IsAtYMaxEnd(d, x, y), c.yMax) << c.name;
}

INSTANTIATE_TEST_SUITE_P(Cases, AxisEndTest,
                         testing::Values(EndCase{"beside the x arrow", 360, 270, true, false, false, false},
                                         EndCase{"past the zone", 357, 263, false, false, false, false},
                                         EndCase{"origin holds both minimum ends", 48, 263, false, true, true, false},
                                         EndCase{"arrow of y", 50, 27, false, false, false, true}));

TEST(Zoom, LogAxisLosesADecadeAtEachEndDownToOneDecadeAndGainsThemBack) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 768, 576, 1e10, 1e6, 30, 0);
  SetAxisCrossing(d, 1e6, 0);
  const double expected[][2] = {{1e7, 1e9}, {1e8, 1e9}, {1e8, 1e9}};
  for (const auto& range : expected) {
    ZoomIn(d);
    EXPECT_DOUBLE_EQ(d.x.min, range[0]);
    EXPECT_DOUBLE_EQ(d.x.max, range[1]);
  }
  EXPECT_DOUBLE_EQ(d.x.logMin, 8);
  ZoomOut(d);  // the origin moves to the new minimum
  EXPECT_DOUBLE_EQ(d.x.min, 1e7);
  EXPECT_DOUBLE_EQ(d.x.max, 1e10);
  EXPECT_DOUBLE_EQ(d.x.cross, 1e7);
}

TEST(Zoom, LinearAxisScalesItsDistanceFromTheOrigin) {
  Diagram d;
  SetupAxes(d, 768, 576, 30, 0, 40, -20);
  SetAxisCrossing(d, 0, 10);
  ZoomIn(d);
  EXPECT_DOUBLE_EQ(d.x.min, 0);
  EXPECT_DOUBLE_EQ(d.x.max, 20);
  EXPECT_DOUBLE_EQ(d.y.min, 10 - 30 / 1.5);
  EXPECT_DOUBLE_EQ(d.y.max, 10 + 30 / 1.5);
  EXPECT_DOUBLE_EQ(d.y.step, 2);  // NiceStep(40 / 30)
  ZoomOut(d);
  EXPECT_DOUBLE_EQ(d.x.max, 30);
  EXPECT_DOUBLE_EQ(d.y.min, -20);
}

struct AutoscaleCase {
  const char* name;
  bool yAxis;  // the two axes round their data by different rules
  AxisMode mode;
  std::vector<double> data;
  double min, max, cross, step;  // worked out by hand from the rounding rules
};
void PrintTo(const AutoscaleCase& c, std::ostream* os) { *os << (c.yAxis ? "y " : "x ") << c.name; }

class AutoscaleTest : public testing::TestWithParam<AutoscaleCase> {};

TEST_P(AutoscaleTest, RoundsTheDataRange) {
  const AutoscaleCase& c = GetParam();
  Diagram d;
  d.x.mode = d.y.mode = c.mode;
  const int count = static_cast<int>(c.data.size());
  c.yAxis ? AutoscaleY(d, c.data, count) : AutoscaleX(d, c.data, count);
  EXPECT_DOUBLE_EQ(c.yAxis ? d.y.min : d.x.min, c.min);
  EXPECT_DOUBLE_EQ(c.yAxis ? d.y.max : d.x.max, c.max);
  EXPECT_DOUBLE_EQ(c.yAxis ? d.y.cross : d.x.cross, c.cross);
  EXPECT_DOUBLE_EQ(c.yAxis ? d.y.step : d.x.step, c.step);
  EXPECT_EQ(c.yAxis ? d.y.labelEvery : d.x.labelEvery, 5);
  if (c.mode == AxisMode::Log) {  // log limits carry their logarithms
    EXPECT_DOUBLE_EQ(c.yAxis ? d.y.logMin : d.x.logMin, std::log10(c.min));
    EXPECT_DOUBLE_EQ(c.yAxis ? d.y.logMax : d.x.logMax, std::log10(c.max));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AutoscaleTest,
    testing::Values(
        // min(NiceStep(0.15), 0) = 0; RoundUpOneDigit(7.3) = 8; NiceStep(8 / 30) = 0.5
        AutoscaleCase{"positive", false, AxisMode::Linear, {0.3, 7.3, 2}, 0, 8, 0, 0.5},
        // all negative: the halved minimum, NiceStep(-3.65) = -5, is both limit and crossing
        AutoscaleCase{"negative", false, AxisMode::Linear, {-7.3, -2}, -5, -2, -5, 0.1},
        // RoundUpOneDigit(1.001 * 0.83) = 0.9, symmetric; NiceStep(1.8 / 30) = 0.1
        AutoscaleCase{"polar", false, AxisMode::Polar, {-0.2, 0.83}, -0.9, 0.9, 0, 0.1},
        // a minimum of 0 on a log axis becomes max / 1000
        AutoscaleCase{"log", false, AxisMode::Log, {0, 1e3, 1e9}, 1e6, 1e9, 1e6, 5e7},
        // a positive minimum gives 0; RoundUpOneDigit(37.037) = 40; NiceStep(40 / 30) = 2
        AutoscaleCase{"positive", true, AxisMode::Linear, {3, 37}, 0, 40, 0, 2},
        // -3.7 rounded away from zero; RoundUpOneDigit(12.012) = 20; NiceStep(24 / 30) = 1
        AutoscaleCase{"both signs", true, AxisMode::Linear, {-3.7, 12}, -4, 20, 0, 1},
        // negative maximum, |min| <= 1: 0.9 * -0.35 = -0.315 rounded down to -0.3; crossing at min
        AutoscaleCase{"negative small", true, AxisMode::Linear, {-0.8, -0.35}, -0.8, -0.3, -0.8, 0.02},
        // negative maximum, |min| > 1: the maximum becomes 0
        AutoscaleCase{"negative large", true, AxisMode::Linear, {-12, -0.5}, -20, 0, 0, 1}));

TEST(Autoscale, LooksFromFirstIndexUpToCountOnly) {
  Diagram d;
  d.firstIndex = 1;
  const std::vector<double> values = {1000, 3, 7.3, -500};
  AutoscaleY(d, values, 3);
  EXPECT_DOUBLE_EQ(d.y.min, 0);
  EXPECT_DOUBLE_EQ(d.y.max, 8);  // RoundUpOneDigit(7.3073)
}

TEST(Autoscale, DataWithoutFiniteValuesChangeNothing) {
  Diagram d;
  d.y.min = -3;
  d.y.max = 4;
  const std::vector<double> values = {std::nan(""), std::nan("")};
  AutoscaleY(d, values, 2);
  EXPECT_EQ(d.y.min, -3);
  EXPECT_EQ(d.y.max, 4);
}

}  // namespace
}  // namespace diagram
