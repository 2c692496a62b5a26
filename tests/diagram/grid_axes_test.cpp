#include <gtest/gtest.h>

#include "diagram/axes.h"
#include "diagram/axis_labels.h"
#include "diagram/grid.h"
#include "diagram/scaling.h"
#include "picture.h"

namespace diagram {
namespace {

using test::ColourAt;
using test::CountNotWhite;
using test::HasColourNear;
using test::Picture;

// A rotated text starting at (60, 110) runs up from there: nothing left of or below the start.
TEST(Canvas, ARotatedFontWritesUpwards) {
  Picture p(120, 120);
  p.canvas().SetFont({.orientation = 900});
  p.canvas().TextOut(60, 110, "Gain in dB");
  const QImage& image = p.Finish();
  EXPECT_EQ(CountNotWhite(image, QRect(0, 0, 60, 120)) + CountNotWhite(image, QRect(0, 111, 120, 9)), 0);
  EXPECT_GT(CountNotWhite(image, QRect(60, 0, 20, 70)), 0);
}

// Regression: a dB axis crossed at 0 had no "0" beside it.
TEST(AxisLabels, TheVerticalAxisIsLabelledAtTheCrossing) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 40, -20);
  SetAxisCrossing(d, 0, 0);
  d.x.step = d.y.step = 10;
  d.x.labelEvery = d.y.labelEvery = 1;
  Picture p(400, 300);
  DrawAxisLabels(d, {}, p.canvas());
  const QImage& image = p.Finish();
  const int row = YToPixel(d, 0);
  EXPECT_GT(CountNotWhite(image, QRect(d.x.pixMin - 20, row - 5, 16, 9)), 5);
}

TEST(Grid, PolarCirclesStayOneStepInsideTheSmallerRange) {
  Diagram d;
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 768, 576, 1, -1, 1, -1);
  SetAxisCrossing(d, 0, 0);
  d.x.step = d.y.step = 0.05;
  Picture p(768, 576);
  SetDrawColour(kGrey, p.canvas());
  DrawGrid(d, 5, 5, p.canvas());
  const QImage& image = p.Finish();
  const int column = XToPixel(d, 0);
  EXPECT_TRUE(HasColourNear(image, column, YToPixel(d, 0.75), 2, kGrey));
  EXPECT_TRUE(HasColourNear(image, XToPixel(d, -0.25), YToPixel(d, 0), 2, kGrey));
  EXPECT_FALSE(HasColourNear(image, column, YToPixel(d, 1), 2, kGrey));  // the range's edge
}

// 400 x 300, both axes 0 .. 10 crossing at 0: frame 48 .. 366 by 27 .. 263, y = 3 on row 192.
// Under the axes a grey grid line at every second step of x and every fifth of y.
QImage AxesPicture(bool flipped) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  d.x.step = d.y.step = 1;
  Picture p(400, 300);
  SetDrawColour(kGrey, p.canvas());
  DrawGrid(d, 2, 5, p.canvas());
  EXPECT_EQ(p.canvas().CurrentPenStyle(), PenStyle::Solid);
  SetDrawColour(kBlack, p.canvas());
  DrawAxes(d, flipped, flipped, p.canvas(), 1, 1);
  return p.Finish();
}

// Ticks of x hang round(sqrt(263 / 20)) = 4 pixels below the axis at x = 1 .. 8 and those of y point
// round(sqrt(366 / 30)) = 3 pixels left; flipped, both point into the diagram. The arrow of x goes
// back round(0.006 * 400 + 1) = 3 and sideways round(0.003 * 300 + 1) = 2 pixels, that of y
// back round(0.01 * 300 + 1) = 4 and sideways round(0.003 * 400 + 1) = 2.
TEST(Axes, ArrowHeadsAndTicksWhereTheFormulasPutThem) {
  const QImage image = AxesPicture(false), flipped = AxesPicture(true);
  EXPECT_EQ(ColourAt(image, 363, 261), kBlack);
  EXPECT_EQ(ColourAt(image, 50, 31), kBlack);
  EXPECT_EQ(ColourAt(image, 80, 267), kBlack);
  EXPECT_EQ(ColourAt(image, 80, 268), kWhite);
  EXPECT_EQ(ColourAt(image, 334, 266), kWhite);  // no tick at x = 9, one step before the arrow
  EXPECT_EQ(ColourAt(image, 45, 192), kBlack);
  EXPECT_EQ(ColourAt(flipped, 80, 259), kBlack);
  EXPECT_EQ(ColourAt(flipped, 51, 192), kBlack);
}

// Grid lines are dotted: x = 2 (column 112) is inked on more than a quarter of its rows but not
// on all; y = 5 (row 145) has one too.
TEST(Grid, LinearLinesAreDotted) {
  const QImage image = AxesPicture(false);
  const int ink = CountNotWhite(image, QRect(112, 27, 1, 236));
  EXPECT_TRUE(ink > 236 / 4 && ink < 236) << ink;
  EXPECT_TRUE(HasColourNear(image, 250, 145, 1, kGrey));
}

}  // namespace
}  // namespace diagram
