#include <gtest/gtest.h>

#include <cmath>

#include "diagram/axes.h"
#include "diagram/grid.h"
#include "diagram/scaling.h"
#include "picture.h"

namespace diagram {
namespace {

using test::ColourAt;
using test::CountNotWhite;
using test::HasColourNear;
using test::Picture;

// Counts the grey pixels of a column between two rows, and any pixel of another colour.
struct ColumnInk {
  int grey = 0, other = 0;
};

ColumnInk InkOfColumn(const QImage& image, int column, int top, int bottom) {
  ColumnInk ink;
  for (int y = top; y <= bottom; ++y) {
    const Colour c = ColourAt(image, column, y);
    ink.grey += c == kGrey;
    ink.other += c != kGrey && c != kWhite;
  }
  return ink;
}

TEST(Grid, LinearLinesAreDottedGreyAtEveryNthStepButNotOnTheAxis) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  d.xStep = d.yStep = 1;
  Picture p(400, 300);
  SetDrawColour(kGrey, p.canvas());
  DrawGrid(d, 2, 5, p.canvas());
  EXPECT_EQ(p.canvas().CurrentPenStyle(), PenStyle::Solid);
  const QImage& image = p.Finish();
  for (const double x : {2.0, 4.0, 6.0, 8.0}) {
    const ColumnInk ink = InkOfColumn(image, 48 + static_cast<int>(std::lround(x * 31.8)), 27, 263);
    EXPECT_GT(ink.grey, 236 / 4) << x;
    EXPECT_LT(ink.grey, 236) << x;  // dotted
    EXPECT_EQ(ink.other, 0) << x;
  }
  // Below the one horizontal line (y = 5, row 145): nothing at x = 5, nor on or beside the axis.
  EXPECT_EQ(InkOfColumn(image, 48 + 159, 150, 262).grey, 0);
  EXPECT_EQ(CountNotWhite(image, QRect(48, 150, 2, 100)), 0);
  EXPECT_GT(CountNotWhite(image, QRect(48, 145, 318, 1)), 318 / 4);  // y = 5
}

TEST(Grid, LogLinesStandAtTwoToNineTimesEachDecade) {
  Diagram d;
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, 400, 300, 1e9, 1e7, 10, 0);
  SetAxisCrossing(d, 0, 0);
  d.yStep = 10;  // no horizontal lines
  Picture p(400, 300);
  SetDrawColour(kGrey, p.canvas());
  DrawGrid(d, 5, 5, p.canvas());
  const QImage& image = p.Finish();
  for (const double v : {2e7, 5e7, 9e7, 1e8, 3e8, 7e8}) {
    const int column = static_cast<int>(std::lround(48 + std::log10(v / 1e7) / 2 * 318));
    EXPECT_GT(InkOfColumn(image, column, 27, 263).grey, 236 / 4) << v;
  }
  EXPECT_EQ(InkOfColumn(image, static_cast<int>(std::lround(48 + std::log10(1.5) / 2 * 318)), 28, 262).grey, 0);
}

TEST(Grid, PolarCirclesStayOneStepInsideTheSmallerRange) {
  Diagram d;
  SetAxisModes(d, AxisMode::Polar, AxisMode::Polar);
  SetupAxes(d, 768, 576, 1, -1, 1, -1);
  SetAxisCrossing(d, 0, 0);
  d.xStep = d.yStep = 0.05;
  Picture p(768, 576);
  SetDrawColour(kGrey, p.canvas());
  DrawGrid(d, 5, 5, p.canvas());
  const QImage& image = p.Finish();
  const int column = XToPixel(d, 0);
  for (const double r : {0.25, 0.5, 0.75}) {
    EXPECT_TRUE(HasColourNear(image, column, YToPixel(d, r), 2, kGrey)) << r;
    EXPECT_TRUE(HasColourNear(image, XToPixel(d, -r), YToPixel(d, 0), 2, kGrey)) << r;
  }
  EXPECT_FALSE(HasColourNear(image, column, YToPixel(d, 1), 2, kGrey));  // the range's edge
}

TEST(Axes, ArrowHeadsAndTicksWhereTheFormulasPutThem) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  Picture p(400, 300);
  DrawAxes(d, false, false, p.canvas(), 1, 1);
  const QImage& image = p.Finish();
  EXPECT_EQ(ColourAt(image, 200, 263), kBlack);  // horizontal axis on the row of y = 0
  EXPECT_EQ(ColourAt(image, 48, 150), kBlack);   // vertical axis on the column of x = 0
  // Arrow of x: back round(0.006 * 400 + 1) = 3, sideways round(0.003 * 300 + 1) = 2.
  EXPECT_EQ(ColourAt(image, 363, 261), kBlack);
  EXPECT_EQ(ColourAt(image, 363, 265), kBlack);
  // Arrow of y: back round(0.01 * 300 + 1) = 4, sideways round(0.003 * 400 + 1) = 2.
  EXPECT_EQ(ColourAt(image, 46, 31), kBlack);
  EXPECT_EQ(ColourAt(image, 50, 31), kBlack);
  // Ticks of x hang round(sqrt(263 / 20)) = 4 pixels below the axis at x = 1 .. 8.
  EXPECT_EQ(ColourAt(image, 80, 267), kBlack);
  EXPECT_EQ(ColourAt(image, 80, 268), kWhite);
  EXPECT_EQ(ColourAt(image, 334, 266), kWhite);  // no tick at x = 9, one step before the arrow
  // Ticks of y point left by round(sqrt(366 / 30)) = 3 pixels.
  EXPECT_EQ(ColourAt(image, 45, YToPixel(d, 3)), kBlack);
  EXPECT_EQ(ColourAt(image, 44, YToPixel(d, 3)), kWhite);
}

TEST(Axes, FlippedTicksPointIntoTheDiagram) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  Picture p(400, 300);
  DrawAxes(d, true, true, p.canvas(), 1, 1);
  const QImage& image = p.Finish();
  EXPECT_EQ(ColourAt(image, 80, 259), kBlack);
  EXPECT_EQ(ColourAt(image, 80, 265), kWhite);
  EXPECT_EQ(ColourAt(image, 51, YToPixel(d, 3)), kBlack);
}

}  // namespace
}  // namespace diagram
