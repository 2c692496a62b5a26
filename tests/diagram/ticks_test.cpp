#include "diagram/ticks.h"

#include <gtest/gtest.h>

#include <vector>

namespace diagram {
namespace {

Axis LinearAxis(double min, double max, double cross, double step, int labelEvery = 5) {
  Axis a;
  a.min = min;
  a.max = max;
  a.cross = cross;
  a.step = step;
  a.labelEvery = labelEvery;
  return a;
}

Axis LogAxis(double min, double max) {
  Axis a = LinearAxis(min, max, min, 1);
  a.mode = AxisMode::Log;
  return a;
}

void ExpectValues(const std::vector<double>& actual, const std::vector<double>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_DOUBLE_EQ(actual[i], expected[i]) << i;
}

TEST(Ticks, StopOneStepBeforeTheArrowThenRunDownToTheMinimum) {
  ExpectValues(TickValues(LinearAxis(0, 10, 0, 2), 2), {0, 2, 4, 6});
  ExpectValues(TickValues(LinearAxis(-10, 10, 5, 4), 4), {5, 1, -3, -7});
}

TEST(Ticks, LogAxisHasTicksAtTheDecadesBelowItsEnd) {
  ExpectValues(TickValues(LogAxis(1e7, 1e10), 1), {1e7, 1e8, 1e9});
}

TEST(Ticks, DegenerateStepsGiveNoTicks) {
  EXPECT_TRUE(TickValues(LinearAxis(0, 10, 0, 0), 0).empty());
  EXPECT_TRUE(TickValues(LinearAxis(0, 10, 0, 1e-9), 1e-9).empty());
  EXPECT_TRUE(TickValues(LinearAxis(0, 10, 0, -1), -1).empty());
}

TEST(Labels, EveryFifthTickFromTheCrossingUpToMaxThenDownToMin) {
  ExpectValues(LabelValues(LinearAxis(-20, 40, 0, 1)), {0, 5, 10, 15, 20, 25, 30, 35, 40, -5, -10, -15, -20});
  ExpectValues(LabelValues(LinearAxis(0, 1, 0, 0.1, 2)), {0, 0.2, 0.4, 0.6, 0.8, 1.0});
}

TEST(Labels, LogAxisLeavesTheDecadeAtTheArrowUnlabelled) {
  ExpectValues(LabelValues(LogAxis(1e7, 1e10)), {1e7, 1e8, 1e9});
  ExpectValues(LabelValues(LogAxis(1e8, 1e9)), {1e8});
}

TEST(GridLines, LinearAxisLeavesOutTheCrossing) {
  ExpectValues(GridValues(LinearAxis(-10, 10, 0, 1), 5), {5, -5});
  ExpectValues(GridValues(LinearAxis(0, 10, 0, 1), 2.5), {2.5, 5, 7.5});
}

TEST(GridLines, LogAxisHasTwoToNineTimesEachDecade) {
  ExpectValues(GridValues(LogAxis(1e7, 1e9), 1),
               {2e7, 3e7, 4e7, 5e7, 6e7, 7e7, 8e7, 9e7, 1e8, 2e8, 3e8, 4e8, 5e8, 6e8, 7e8, 8e8, 9e8, 1e9});
}

TEST(GridLines, RoundModesHaveCirclesInstead) {
  Axis a = LinearAxis(-1, 1, 0, 0.05);
  a.mode = AxisMode::Smith;
  EXPECT_TRUE(GridValues(a, 0.25).empty());
}

}  // namespace
}  // namespace diagram
