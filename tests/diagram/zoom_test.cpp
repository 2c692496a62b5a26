#include "diagram/zoom.h"

#include <gtest/gtest.h>

#include "diagram/scaling.h"

namespace diagram {
namespace {

Diagram LogFrequencyAxis(double min, double max) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 768, 576, max, min, 30, 0);
  SetAxisCrossing(d, min, 0);
  return d;
}

TEST(Zoom, LogAxisLosesADecadeAtEachEndDownToOneDecade) {
  Diagram d = LogFrequencyAxis(1e6, 1e10);
  const double expected[][2] = {{1e7, 1e9}, {1e8, 1e9}, {1e8, 1e9}};
  for (const auto& range : expected) {
    ZoomIn(d);
    EXPECT_DOUBLE_EQ(d.xMin, range[0]);
    EXPECT_DOUBLE_EQ(d.xMax, range[1]);
  }
  EXPECT_DOUBLE_EQ(d.logXMin, 8);
}

TEST(Zoom, LogAxisZoomedOutMovesItsOriginToTheNewMinimum) {
  Diagram d = LogFrequencyAxis(1e7, 1e9);
  ZoomOut(d);
  EXPECT_DOUBLE_EQ(d.xMin, 1e6);
  EXPECT_DOUBLE_EQ(d.xMax, 1e10);
  EXPECT_DOUBLE_EQ(d.xCross, 1e6);
}

TEST(Zoom, LinearAxisScalesItsDistanceFromTheOrigin) {
  Diagram d;
  SetupAxes(d, 768, 576, 30, 0, 40, -20);
  SetAxisCrossing(d, 0, 10);
  ZoomIn(d);
  EXPECT_DOUBLE_EQ(d.xMin, 0);
  EXPECT_DOUBLE_EQ(d.xMax, 20);
  EXPECT_DOUBLE_EQ(d.yMin, 10 - 30 / 1.5);
  EXPECT_DOUBLE_EQ(d.yMax, 10 + 30 / 1.5);
  EXPECT_DOUBLE_EQ(d.xStep, 1);  // NiceStep(20 / 30)
  EXPECT_DOUBLE_EQ(d.yStep, 2);  // NiceStep(40 / 30)
  ZoomOut(d);
  EXPECT_DOUBLE_EQ(d.xMin, 0);
  EXPECT_DOUBLE_EQ(d.xMax, 30);
  EXPECT_DOUBLE_EQ(d.yMin, -20);
  EXPECT_DOUBLE_EQ(d.yMax, 40);
}

TEST(Zoom, SmithChartStaysRoundAndCentred) {
  Diagram d;
  SetAxisModes(d, AxisMode::Smith, AxisMode::Smith);
  SetupAxes(d, 768, 576, 1, -1, 1, -1);
  const double widerAxis = d.xMax;
  ZoomIn(d);
  EXPECT_DOUBLE_EQ(d.yMax, 1 / 1.5);
  EXPECT_DOUBLE_EQ(d.yMin, -1 / 1.5);
  EXPECT_DOUBLE_EQ(d.xMax, widerAxis / 1.5);
}

}  // namespace
}  // namespace diagram
