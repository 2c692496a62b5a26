#include "diagram/axis_ends.h"

#include <gtest/gtest.h>

#include <ostream>

#include "diagram/scaling.h"

namespace diagram {
namespace {

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

INSTANTIATE_TEST_SUITE_P(
    Cases, AxisEndTest,
    testing::Values(EndCase{"arrow of x", 366, 263, true, false, false, false},
                    EndCase{"beside the x arrow", 360, 270, true, false, false, false},
                    EndCase{"past the zone", 357, 263, false, false, false, false},
                    EndCase{"origin holds both minimum ends", 48, 263, false, true, true, false},
                    EndCase{"arrow of y", 50, 27, false, false, false, true},
                    EndCase{"middle", 200, 150, false, false, false, false}));

}  // namespace
}  // namespace diagram
