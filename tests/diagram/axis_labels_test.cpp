#include "diagram/axis_labels.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diagram/scaling.h"

namespace diagram {
namespace {

std::vector<std::string> Texts(const std::vector<AxisLabel>& labels) {
  std::vector<std::string> texts;
  for (const AxisLabel& l : labels) texts.push_back(l.text);
  return texts;
}

using TextList = std::vector<std::string>;

TEST(AxisLabelTexts, FrequencyAxisGetsOneDecimalWhereAHalfStepNeedsIt) {
  Diagram d;
  SetupAxes(d, 768, 576, 10e9, 0, 1, 0);
  d.xStep = 5e8;
  EXPECT_EQ(Texts(XAxisLabels(d)), (TextList{"0.0", "2.5G", "5.0G", "7.5G", "10.0G"}));
}

TEST(AxisLabelTexts, DecadesNeedNoDecimals) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 768, 576, 1e10, 1e7, 1, 0);
  SetAxisCrossing(d, 0, 0);
  EXPECT_EQ(Texts(XAxisLabels(d)), (TextList{"10M", "100M", "1G"}));
}

TEST(AxisLabelTexts, QuarterStepsOfAReflectionCoefficientGetTwoDecimals) {
  Diagram d;
  SetupAxes(d, 768, 576, 1, -1, 1, -1);
  d.yStep = 0.05;
  EXPECT_EQ(Texts(YAxisLabels(d)), (TextList{"0.0", "0.25", "0.50", "0.75", "1.00", "-0.25", "-0.50", "-0.75", "-1.00"}));
}

TEST(AxisLabelTexts, DecibelsInWholeNumbers) {
  Diagram d;
  SetupAxes(d, 768, 576, 1, 0, 40, -20);
  d.yStep = 2;
  EXPECT_EQ(Texts(YAxisLabels(d)), (TextList{"0.0", "10", "20", "30", "40", "-10", "-20"}));
}

TEST(AxisLabelTexts, EqualLinearLimitsGetNoLabels) {
  Diagram d;
  SetupAxes(d, 768, 576, 3, 3, 1, 0);
  EXPECT_TRUE(XAxisLabels(d).empty());
}

}  // namespace
}  // namespace diagram
