#include "diagram/autoscale.h"

#include <gtest/gtest.h>

#include <ostream>

#include <cmath>
#include <vector>

#include "diagram/scaling.h"

namespace diagram {
namespace {

struct AutoscaleCase {
  const char* name;
  AxisMode mode;
  std::vector<double> data;
  double min, max, cross, step;  // worked out by hand from the rounding rules
};
void PrintTo(const AutoscaleCase& c, std::ostream* os) { *os << c.name; }

class AutoscaleXTest : public testing::TestWithParam<AutoscaleCase> {};
class AutoscaleYTest : public testing::TestWithParam<AutoscaleCase> {};

TEST_P(AutoscaleXTest, RoundsTheDataRange) {
  const AutoscaleCase& c = GetParam();
  Diagram d;
  d.xMode = c.mode;
  AutoscaleX(d, c.data, static_cast<int>(c.data.size()));
  EXPECT_DOUBLE_EQ(d.xMin, c.min) << c.name;
  EXPECT_DOUBLE_EQ(d.xMax, c.max) << c.name;
  EXPECT_DOUBLE_EQ(d.xCross, c.cross) << c.name;
  EXPECT_DOUBLE_EQ(d.xStep, c.step) << c.name;
  EXPECT_EQ(d.xLabelEvery, 5) << c.name;
}

TEST_P(AutoscaleYTest, RoundsTheDataRange) {
  const AutoscaleCase& c = GetParam();
  Diagram d;
  d.yMode = c.mode;
  AutoscaleY(d, c.data, static_cast<int>(c.data.size()));
  EXPECT_DOUBLE_EQ(d.yMin, c.min) << c.name;
  EXPECT_DOUBLE_EQ(d.yMax, c.max) << c.name;
  EXPECT_DOUBLE_EQ(d.yCross, c.cross) << c.name;
  EXPECT_DOUBLE_EQ(d.yStep, c.step) << c.name;
  EXPECT_EQ(d.yLabelEvery, 5) << c.name;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AutoscaleXTest,
    testing::Values(
        // min(NiceStep(0.15), 0) = 0; RoundUpOneDigit(7.3) = 8; NiceStep(8 / 30) = 0.5
        AutoscaleCase{"positive", AxisMode::Linear, {0.3, 7.3, 2}, 0, 8, 0, 0.5},
        // all negative: the halved minimum, NiceStep(-3.65) = -5, is both limit and crossing
        AutoscaleCase{"negative", AxisMode::Linear, {-7.3, -2}, -5, -2, -5, 0.1},
        // RoundUpOneDigit(1.001 * 0.83) = 0.9, symmetric; NiceStep(1.8 / 30) = 0.1
        AutoscaleCase{"polar", AxisMode::Polar, {-0.2, 0.83}, -0.9, 0.9, 0, 0.1},
        AutoscaleCase{"smith", AxisMode::Smith, {-0.95, 0.5}, -1, 1, 0, 0.1},
        // a minimum of 0 on a log axis becomes max / 1000
        AutoscaleCase{"log", AxisMode::Log, {0, 1e3, 1e9}, 1e6, 1e9, 1e6, 5e7}));

INSTANTIATE_TEST_SUITE_P(
    Cases, AutoscaleYTest,
    testing::Values(
        // a positive minimum gives 0; RoundUpOneDigit(37.037) = 40; NiceStep(40 / 30) = 2
        AutoscaleCase{"positive", AxisMode::Linear, {3, 37}, 0, 40, 0, 2},
        // -3.7 rounded away from zero; RoundUpOneDigit(12.012) = 20; NiceStep(24 / 30) = 1
        AutoscaleCase{"both signs", AxisMode::Linear, {-3.7, 12}, -4, 20, 0, 1},
        // negative maximum, |min| <= 1: 0.9 * -0.35 = -0.315 rounded down to -0.3; crossing at min
        AutoscaleCase{"negative small", AxisMode::Linear, {-0.8, -0.35}, -0.8, -0.3, -0.8, 0.02},
        // negative maximum, |min| > 1: the maximum becomes 0
        AutoscaleCase{"negative large", AxisMode::Linear, {-12, -0.5}, -20, 0, 0, 1},
        AutoscaleCase{"polar", AxisMode::Polar, {-0.83, 0.2}, -0.9, 0.9, 0, 0.1},
        AutoscaleCase{"log", AxisMode::Log, {-1, 20, 500}, 0.5, 500, 0.5, 20}));

TEST(Autoscale, LooksFromFirstIndexUpToCountOnly) {
  Diagram d;
  d.firstIndex = 1;
  const std::vector<double> values = {1000, 3, 7.3, -500};
  AutoscaleY(d, values, 3);
  EXPECT_DOUBLE_EQ(d.yMin, 0);
  EXPECT_DOUBLE_EQ(d.yMax, 8);  // RoundUpOneDigit(7.3073)
}

TEST(Autoscale, DataWithoutFiniteValuesChangeNothing) {
  Diagram d;
  d.yMin = -3;
  d.yMax = 4;
  const std::vector<double> values = {std::nan(""), std::nan("")};
  AutoscaleY(d, values, 2);
  AutoscaleY(d, values, 0);
  EXPECT_EQ(d.yMin, -3);
  EXPECT_EQ(d.yMax, 4);
}

TEST(Autoscale, LogLimitsCarryTheirLogarithms) {
  Diagram d;
  d.xMode = AxisMode::Log;
  const std::vector<double> f = {1e7, 1e10};
  AutoscaleX(d, f, 2);
  EXPECT_DOUBLE_EQ(d.logXMin, 7);
  EXPECT_DOUBLE_EQ(d.logXMax, 10);
}

}  // namespace
}  // namespace diagram
