#include "diagram/scaling.h"

#include <gtest/gtest.h>

#include <ostream>

#include <cmath>

namespace diagram {
namespace {

struct FrameCase {
  int width, height;
  PixelFrame expected;  // 0.05 W + 28, 0.95 W - 14, 0.05 H + 12, 0.95 H - 22, rounded by hand
};
void PrintTo(const FrameCase& c, std::ostream* os) { *os << c.width << "x" << c.height; }

class FrameTest : public testing::TestWithParam<FrameCase> {};

TEST_P(FrameTest, HasUnequalMargins) {
  const FrameCase& c = GetParam();
  Diagram d;
  SetupAxes(d, c.width, c.height, 1, 0, 1, 0);
  EXPECT_EQ(d.pixLeft, c.expected.left);
  EXPECT_EQ(d.pixRight, c.expected.right);
  EXPECT_EQ(d.pixTop, c.expected.top);
  EXPECT_EQ(d.pixBottom, c.expected.bottom);
  EXPECT_EQ(d.width, c.width);
  EXPECT_EQ(d.height, c.height);
}

INSTANTIATE_TEST_SUITE_P(Sizes, FrameTest,
                         testing::Values(FrameCase{400, 300, {48, 366, 27, 263}},
                                         FrameCase{768, 576, {66, 716, 41, 525}},
                                         FrameCase{1000, 500, {78, 936, 37, 453}}));

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
  EXPECT_DOUBLE_EQ(d.xMin, c.expectedMin) << c.name;
  EXPECT_DOUBLE_EQ(d.xMax, c.expectedMax) << c.name;
  EXPECT_DOUBLE_EQ(d.yMin, c.expectedMin) << c.name;
  EXPECT_DOUBLE_EQ(d.logXMin, std::log10(c.expectedMin)) << c.name;
  EXPECT_DOUBLE_EQ(d.logYMax, std::log10(c.expectedMax)) << c.name;
  EXPECT_DOUBLE_EQ(d.xLimitCopy, c.expectedMax) << c.name;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LogRangeTest,
    testing::Values(LogCase{"both up", 5e7, 2e9, 1e8, 1e10}, LogCase{"equal limits", 1e9, 1e9, 1e8, 1e9},
                    LogCase{"exact decades stay", 1e7, 1e10, 1e7, 1e10},
                    LogCase{"within tolerance of a decade", 1.0005e7, 1e10, 1e7, 1e10},
                    LogCase{"below one", 0.0015, 0.3, 0.01, 1}, LogCase{"negative counts as magnitude", -5e7, 2e9, 1e8, 1e10}));

struct CouplingCase {
  AxisMode x, y, expected;
};
void PrintTo(const CouplingCase& c, std::ostream* os) {
  *os << static_cast<int>(c.x) << "," << static_cast<int>(c.y);
}

class ModeCouplingTest : public testing::TestWithParam<CouplingCase> {};

TEST_P(ModeCouplingTest, PolarWinsThenSmith) {
  Diagram d;
  SetAxisModes(d, GetParam().x, GetParam().y);
  EXPECT_EQ(d.xMode, GetParam().expected);
  EXPECT_EQ(d.yMode, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, ModeCouplingTest,
                         testing::Values(CouplingCase{AxisMode::Linear, AxisMode::Polar, AxisMode::Polar},
                                         CouplingCase{AxisMode::Polar, AxisMode::Smith, AxisMode::Polar},
                                         CouplingCase{AxisMode::Smith, AxisMode::Log, AxisMode::Smith},
                                         CouplingCase{AxisMode::Log, AxisMode::Smith, AxisMode::Smith}));

TEST(ModeCoupling, LinearAndLogMix) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  EXPECT_EQ(d.xMode, AxisMode::Log);
  EXPECT_EQ(d.yMode, AxisMode::Linear);
}

TEST(AxisCrossing, FollowsTheModeOfEachAxis) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, -10, 5, 1);
  SetAxisCrossing(d, 3, 0);  // 0 is outside 1..5
  EXPECT_EQ(d.xCross, 3);
  EXPECT_EQ(d.yCross, 1);
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e9, 1e6, 5, 1);
  SetAxisCrossing(d, 1e8, 4);
  EXPECT_EQ(d.xCross, 1e6);
  EXPECT_EQ(d.yCross, 4);
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 400, 300, 1, -1, 1, -1);
  SetAxisCrossing(d, 0.5, 0.5);
  EXPECT_EQ(d.xCross, 0);
  EXPECT_EQ(d.yCross, 0);
}

TEST(PixelMapping, ClampsToTheFrameAndRoundsInside) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  EXPECT_EQ(XToPixel(d, 0), 48);
  EXPECT_EQ(XToPixel(d, -5), 48);
  EXPECT_EQ(XToPixel(d, 1e9), 366);
  EXPECT_EQ(XToPixel(d, std::nan("")), 48);
  EXPECT_EQ(XToPixel(d, 5), 207);  // 48 + 0.5 * 318
  EXPECT_EQ(XToPixel(d, 1), 80);   // 48 + 31.8
  EXPECT_EQ(YToPixel(d, 10), 27);
  EXPECT_EQ(YToPixel(d, -1), 263);
  EXPECT_EQ(YToPixel(d, 2.5), 204);  // 263 - 59
}

TEST(PixelMapping, LogAxisPutsTheMiddleDecadeInTheMiddle) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e10, 1e8, 1, 0);
  EXPECT_EQ(XToPixel(d, 1e9), 207);
  EXPECT_EQ(XToPixel(d, 2e8), 96);  // 48 + log10(2) / 2 * 318 = 95.86
  EXPECT_NEAR(PixelToX(d, 207), 1e9, 1e-3);
  EXPECT_NEAR(PixelToX(d, 366), 1e10, 1e-2);
}

TEST(PixelMapping, PixelToWorldInvertsTheLinearMapping) {
  Diagram d;
  SetupAxes(d, 768, 576, 20, -20, 40, -20);
  for (const double x : {-20.0, -7.5, 0.0, 12.25, 20.0}) {
    EXPECT_NEAR(PixelToX(d, XToPixel(d, x)), x, 0.5 * 40 / 650) << x;
  }
  EXPECT_NEAR(PixelToY(d, 41), 40, 1e-12);
  EXPECT_NEAR(PixelToY(d, 525), -20, 1e-12);
  EXPECT_TRUE(IsInsideFrame(d, 66, 525));
  EXPECT_FALSE(IsInsideFrame(d, 65, 300));
  EXPECT_FALSE(IsInsideFrame(d, 300, 526));
}

TEST(PolarRange, KeepsTheOriginInsideAndAPositiveMaximum) {
  Diagram d;
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 768, 576, 0.5, -0.3, 0, 0);  // y limits both 0: the range becomes 0 .. 1
  EXPECT_DOUBLE_EQ(d.yMin, 0);
  EXPECT_GT(d.yMax, 0);
  EXPECT_DOUBLE_EQ(d.xMin / d.xMax, -0.6);  // widened about the origin, not shifted
  SetupAxes(d, 768, 576, -0.5, -2, 0, -2);  // x max negative: its magnitude; y max 0: |min|
  EXPECT_DOUBLE_EQ(d.xMin / d.xMax, -4);
  EXPECT_DOUBLE_EQ(d.yMin / d.yMax, -1);
}

TEST(RoundChart, OnePixelScaleOnBothAxes) {
  Diagram d;
  SetAxisModes(d, AxisMode::Smith, AxisMode::Smith);
  SetupAxes(d, 768, 576, 1, -1, 1, -1);
  // 484 rows hold -1 .. 1, so 650 columns hold -650/484 .. 650/484.
  EXPECT_DOUBLE_EQ(d.yMin, -1);
  EXPECT_DOUBLE_EQ(d.yMax, 1);
  EXPECT_DOUBLE_EQ(d.xMax, 650.0 / 484);
  EXPECT_DOUBLE_EQ(d.xMin, -650.0 / 484);
  const int across = XToPixel(d, 1) - XToPixel(d, -1);
  const int down = YToPixel(d, -1) - YToPixel(d, 1);
  EXPECT_LE(std::abs(across - down), 1);
}

TEST(RoundChart, StaysPutWhenTheWindowTurnsAndTurnsBack) {
  Diagram d;
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 768, 576, 1, -1, 1, -1);
  const Diagram landscape = d;
  SetupAxes(d, 576, 768, d.xMax, d.xMin, d.yMax, d.yMin);
  EXPECT_DOUBLE_EQ(d.xMax, 1);  // 0.9 * 576 - 42 = 476 columns for -1 .. 1
  EXPECT_DOUBLE_EQ(d.yMax, (708.0 - 50) / 476);
  SetupAxes(d, 768, 576, d.xMax, d.xMin, d.yMax, d.yMin);
  EXPECT_DOUBLE_EQ(d.xMax, landscape.xMax);
  EXPECT_DOUBLE_EQ(d.yMax, landscape.yMax);
  SetupAxes(d, 768, 576, d.xMax, d.xMin, d.yMax, d.yMin);
  EXPECT_DOUBLE_EQ(d.xMax, landscape.xMax);
}

TEST(RecomputeAxis, AppliesTheRangeRuleInTheLastFrame) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e10, 1e8, 1, 0);
  d.xMin = 3e8;  // as typed into the axis dialog
  RecomputeXAxis(d);
  EXPECT_DOUBLE_EQ(d.xMin, 1e9);
  EXPECT_DOUBLE_EQ(d.logXMin, 9);
  EXPECT_EQ(XToPixel(d, 1e9), 48);
  d.yMax = 7;
  RecomputeYAxis(d);
  EXPECT_EQ(d.yLimitCopy, 7);
  EXPECT_EQ(YToPixel(d, 7), 27);
}

}  // namespace
}  // namespace diagram
