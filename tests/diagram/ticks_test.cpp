#include "diagram/ticks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diagram/axis_labels.h"
#include "diagram/scaling.h"

namespace diagram {
namespace {

Axis LinearAxis(double min, double max, double cross, double step) {
  return {.min = min, .max = max, .cross = cross, .step = step};
}

Axis LogAxis(double min, double max) { return {.mode = AxisMode::Log, .min = min, .max = max, .cross = min}; }

void ExpectValues(const std::vector<double>& actual, const std::vector<double>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_DOUBLE_EQ(actual[i], expected[i]) << i;
}

// A linear axis ticks from the crossing up to one step before the arrow, then down to the minimum;
// a log axis at the decades below its end; a step of (almost) nothing gives no ticks.
TEST(Ticks, FromTheCrossingUpToOneStepBeforeTheArrowThenDown) {
  ExpectValues(TickValues(LinearAxis(-10, 10, 5, 4), 4), {5, 1, -3, -7});
  ExpectValues(TickValues(LogAxis(1e7, 1e10), 1), {1e7, 1e8, 1e9});
  EXPECT_TRUE(TickValues(LinearAxis(0, 10, 0, 0), 0).empty());
  EXPECT_TRUE(TickValues(LinearAxis(0, 10, 0, 1e-9), 1e-9).empty());
}

// Grid lines leave out the crossing of a linear axis; a log axis has them at 2 .. 9 times each decade.
TEST(GridLines, EveryNthStepButTheCrossingOrEveryDigitOfADecade) {
  ExpectValues(GridValues(LinearAxis(-10, 10, 0, 1), 5), {5, -5});
  ExpectValues(GridValues(LogAxis(1e7, 1e9), 1),
               {2e7, 3e7, 4e7, 5e7, 6e7, 7e7, 8e7, 9e7, 1e8, 2e8, 3e8, 4e8, 5e8, 6e8, 7e8, 8e8, 9e8, 1e9});
}

TEST(AxisLabelTexts, TakeTheFewestDecimalsThatReadBackExactlyOrDiffer) {
  const struct {
    const char* name;
    AxisMode mode;
    bool yAxis;
    double min, max, step;
    std::vector<std::string> expected;
  } cases[] = {
      {"frequency, a half step needs one decimal", AxisMode::Linear, false, 0, 10e9, 5e8,
       {"0.0", "2.5G", "5.0G", "7.5G", "10.0G"}},
      {"decades need none", AxisMode::Log, false, 1e7, 1e10, 1, {"10M", "100M", "1G"}},
      {"quarter steps of a reflection coefficient", AxisMode::Linear, true, -1, 1, 0.05,
       {"0.0", "0.25", "0.50", "0.75", "1.00", "-0.25", "-0.50", "-0.75", "-1.00"}},
      // Regression: three decimals read "1.000G" twice on a 2 MHz wide axis.
      {"narrow span far from zero", AxisMode::Linear, false, 1e9, 1.002e9, 1e5,
       {"1.0000G", "1.0005G", "1.0010G", "1.0015G", "1.0020G"}},
      {"equal linear limits get none", AxisMode::Linear, false, 3, 3, 1, {}}};
  for (const auto& c : cases) {
    Diagram d;
    SetAxisModes(d, c.mode, AxisMode::Linear);
    SetupAxes(d, 768, 576, c.yAxis ? 1 : c.max, c.yAxis ? 0 : c.min, c.yAxis ? c.max : 1, c.yAxis ? c.min : 0);
    SetAxisCrossing(d, 0, 0);
    (c.yAxis ? d.y.step : d.x.step) = c.step;
    std::vector<std::string> texts;
    for (const AxisLabel& l : c.yAxis ? YAxisLabels(d) : XAxisLabels(d)) texts.push_back(l.text);
    EXPECT_EQ(texts, c.expected) << c.name;
  }
}

}  // namespace
}  // namespace diagram
