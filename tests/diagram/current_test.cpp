#include "diagram/current.h"

#include <gtest/gtest.h>

#include <vector>

#include "picture.h"

namespace diagram {
namespace {

// The argument-free entry points pass their arguments on in the order the names give them.
TEST(CurrentDiagram, EntryPointsWorkOnTheProgramWideState) {
  test::Picture p(400, 300);
  SetAxisModes(AxisMode::Linear, AxisMode::Linear);
  SetupAxes(p.canvas(), 10, 0, 5, -5);  // xMax, xMin, yMax, yMin
  const Diagram& d = CurrentDiagram();
  EXPECT_EQ(d.width, 400);
  EXPECT_EQ(XToPixel(10), 366);
  EXPECT_EQ(XToPixel(0), 48);
  EXPECT_EQ(YToPixel(5), 27);
  EXPECT_EQ(YToPixel(-5), 263);
  SetAxisCrossing(3, 9);
  EXPECT_EQ(d.xCross, 3);
  EXPECT_EQ(d.yCross, -5);
  const std::vector<double> x = {1, 7.3}, y = {-1.5, 3};
  AutoscaleX(x, 2);
  AutoscaleY(y, 2);
  EXPECT_EQ(d.xMax, 8);
  EXPECT_EQ(d.yMin, -2);
  SetupAxes(p.canvas(), d.xMax, d.xMin, d.yMax, d.yMin);
  DrawCurve(x, y, 2, p.canvas());
  const QImage& image = p.Finish();
  EXPECT_TRUE(test::HasColourNear(image, XToPixel(4.15), YToPixel(0.75), 1, kBlack));
}

}  // namespace
}  // namespace diagram
