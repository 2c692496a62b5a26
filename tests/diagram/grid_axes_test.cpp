#include <gtest/gtest.h>

#include <QFontInfo>
#include <cmath>

#include "diagram/axes.h"
#include "diagram/axis_labels.h"
#include "diagram/canvas.h"
#include "diagram/fonts.h"
#include "diagram/grid.h"
#include "diagram/scaling.h"
#include "picture.h"

namespace diagram {
namespace {

using test::ColourAt;
using test::CountNotWhite;
using test::HasColourNear;
using test::Picture;

TEST(Canvas, ColoursAreBlueGreenRedFromTheHighByteDown) {
  Picture p(20, 20);
  p.canvas().SetBrushColour(255);
  p.canvas().FillRect(0, 0, 10, 10);
  p.canvas().SetBrushColour(32768);
  p.canvas().FillRect(10, 0, 20, 10);
  const QImage& image = p.Finish();
  EXPECT_EQ(image.pixel(5, 5), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(15, 5), qRgb(0, 128, 0));
  EXPECT_EQ(image.pixel(5, 15), qRgb(255, 255, 255));  // right and bottom edges excluded
}

TEST(Canvas, TheHistoricSansSerifIsSubstituted) {
  InstallFontSubstitutions();
  const QFontInfo info(MakeQFont(DiagramFont{}));
  EXPECT_EQ(info.family(), kSubstituteFontName);
}

TEST(Canvas, ARotatedFontWritesUpwards) {
  Picture p(120, 120);
  DiagramFont rotated;
  rotated.orientation = 900;
  p.canvas().SetFont(rotated);
  p.canvas().TextOut(60, 110, "Gain in dB");
  const QImage& image = p.Finish();
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (ColourAt(image, x, y) != kWhite) inked |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_GT(inked.height(), 3 * inked.width());
  EXPECT_LE(inked.bottom(), 110);
  EXPECT_GE(inked.left(), 60);
}

TEST(Grid, LinearLinesAreDottedGreyAtEveryNthStepButNotOnTheAxis) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  d.x.step = d.y.step = 1;
  Picture p(400, 300);
  SetDrawColour(kGrey, p.canvas());
  DrawGrid(d, 2, 5, p.canvas());
  EXPECT_EQ(p.canvas().CurrentPenStyle(), PenStyle::Solid);
  const QImage& image = p.Finish();
  for (const double x : {2.0, 4.0, 6.0, 8.0}) {
    const int column = 48 + static_cast<int>(std::lround(x * 31.8));
    const int ink = CountNotWhite(image, QRect(column, 27, 1, 237));
    EXPECT_GT(ink, 236 / 4) << x;
    EXPECT_LT(ink, 236) << x;  // dotted
    EXPECT_TRUE(HasColourNear(image, column, 100, 1, kGrey)) << x;
  }
  // Below the one horizontal line (y = 5, row 145): nothing at x = 5, nor on or beside the axis.
  EXPECT_EQ(CountNotWhite(image, QRect(48 + 159, 150, 1, 113)), 0);
  EXPECT_EQ(CountNotWhite(image, QRect(48, 150, 2, 100)), 0);
  EXPECT_GT(CountNotWhite(image, QRect(48, 145, 318, 1)), 318 / 4);  // y = 5
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
  for (const double r : {0.25, 0.5, 0.75}) {
    EXPECT_TRUE(HasColourNear(image, column, YToPixel(d, r), 2, kGrey)) << r;
    EXPECT_TRUE(HasColourNear(image, XToPixel(d, -r), YToPixel(d, 0), 2, kGrey)) << r;
  }
  EXPECT_FALSE(HasColourNear(image, column, YToPixel(d, 1), 2, kGrey));  // the range's edge
}

// 400 x 300, both axes 0 .. 10 crossing at 0: frame 48 .. 366 by 27 .. 263, y = 3 on row 192.
QImage AxesPicture(bool flipped) {
  Diagram d;
  SetupAxes(d, 400, 300, 10, 0, 10, 0);
  SetAxisCrossing(d, 0, 0);
  Picture p(400, 300);
  DrawAxes(d, flipped, flipped, p.canvas(), 1, 1);
  return p.Finish();
}

TEST(Axes, ArrowHeadsAndTicksWhereTheFormulasPutThem) {
  const QImage image = AxesPicture(false);
  EXPECT_EQ(ColourAt(image, 200, 263), kBlack);  // horizontal axis on the row of y = 0
  EXPECT_EQ(ColourAt(image, 48, 150), kBlack);   // vertical axis on the column of x = 0
  // Arrow of x: back round(0.006 * 400 + 1) = 3, sideways round(0.003 * 300 + 1) = 2.
  EXPECT_EQ(ColourAt(image, 363, 261), kBlack);
  // Arrow of y: back round(0.01 * 300 + 1) = 4, sideways round(0.003 * 400 + 1) = 2.
  EXPECT_EQ(ColourAt(image, 50, 31), kBlack);
  // Ticks of x hang round(sqrt(263 / 20)) = 4 pixels below the axis at x = 1 .. 8.
  EXPECT_EQ(ColourAt(image, 80, 267), kBlack);
  EXPECT_EQ(ColourAt(image, 80, 268), kWhite);
  EXPECT_EQ(ColourAt(image, 334, 266), kWhite);  // no tick at x = 9, one step before the arrow
  // Ticks of y point left by round(sqrt(366 / 30)) = 3 pixels.
  EXPECT_EQ(ColourAt(image, 45, 192), kBlack);
  EXPECT_EQ(ColourAt(image, 44, 192), kWhite);
}

TEST(Axes, FlippedTicksPointIntoTheDiagram) {
  const QImage image = AxesPicture(true);
  EXPECT_EQ(ColourAt(image, 80, 259), kBlack);
  EXPECT_EQ(ColourAt(image, 80, 265), kWhite);
  EXPECT_EQ(ColourAt(image, 51, 192), kBlack);
}

}  // namespace
}  // namespace diagram
