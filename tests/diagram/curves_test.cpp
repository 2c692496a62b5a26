#include "diagram/curves.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "diagram/current.h"
#include "diagram/curve_names.h"
#include "diagram/scaling.h"
#include "picture.h"

namespace diagram {
namespace {

using test::ColourAt;
using test::CountNotWhite;
using test::Picture;

// 400 x 300 picture, both axes 0 .. 10: frame 48 .. 366 by 27 .. 263.
class CurveTest : public testing::Test {
 protected:
  CurveTest() { SetupAxes(d_, 400, 300, 10, 0, 10, 0); }
  Diagram d_;
  Picture picture_{400, 300};
};

TEST_F(CurveTest, APointAboveTheRangeBreaksTheCurveInTwo) {
  const std::vector<double> x = {1, 2, 3, 4, 5}, y = {2, 3, 20, 3, 2};
  DrawCurve(d_, x, y, 5, picture_.canvas());
  const QImage& image = picture_.Finish();
  const int x2 = XToPixel(d_, 2), x4 = XToPixel(d_, 4);
  EXPECT_EQ(ColourAt(image, (XToPixel(d_, 1) + x2) / 2, YToPixel(d_, 2.5)), kBlack);
  EXPECT_EQ(CountNotWhite(image, QRect(QPoint(x2 + 1, 0), QPoint(x4 - 1, 299))), 0);
}

TEST_F(CurveTest, CurvesStartAtFirstIndex) {
  d_.firstIndex = 1;
  const std::vector<double> x = {1, 5, 9}, y = {1, 5, 9};
  DrawCurve(d_, x, y, 3, picture_.canvas());
  const QImage& image = picture_.Finish();
  EXPECT_TRUE(test::HasColourNear(image, XToPixel(d_, 7), YToPixel(d_, 7), 1, kBlack));
  EXPECT_EQ(CountNotWhite(image, QRect(QPoint(0, YToPixel(d_, 4.5)), QPoint(XToPixel(d_, 4.5), 299))), 0);
}

TEST_F(CurveTest, NothingIsDrawnOutsideTheFrame) {
  const std::vector<double> x = {-50, 1, 2, 30, 4, 5, 6, -1e9, 8, 9}, y = {5, -40, 3, 4, 1e6, 6, -2, 8, 9, 40};
  DrawCurve(d_, x, y, 10, picture_.canvas());
  for (const std::uint8_t kind : {kMarkerSquare, kMarkerCircle, kMarkerCross, std::uint8_t{0}}) {
    DrawMarkers(d_, x, y, kind, 10, picture_.canvas());
  }
  const QImage& image = picture_.Finish();
  const QRect frame(QPoint(d_.x.pixMin, d_.y.pixMax), QPoint(d_.x.pixMax, d_.y.pixMin));
  EXPECT_EQ(CountNotWhite(image, image.rect()), CountNotWhite(image, frame));
  EXPECT_GT(CountNotWhite(image, frame), 0);
}

// A cross is centred on its point, a square hangs below it; the point on the left end has none.
TEST_F(CurveTest, MarkersGrowWithThePictureAndSkipTheEdge) {
  EXPECT_EQ(MarkerSize(d_), 2);  // round((366 + 263) / 500 + 1)
  const std::vector<double> x = {0, 5}, y = {5, 5}, square = {5}, below = {2};
  DrawMarkers(d_, x, y, kMarkerCross, 2, picture_.canvas());
  DrawMarkers(d_, square, below, kMarkerSquare, 1, picture_.canvas());
  const QImage& image = picture_.Finish();
  const int cx = XToPixel(d_, 5), cy = YToPixel(d_, 5), sy = YToPixel(d_, 2);
  EXPECT_EQ(ColourAt(image, cx - 2, cy - 2), kBlack);
  EXPECT_EQ(ColourAt(image, cx + 2, cy), kWhite);
  EXPECT_EQ(CountNotWhite(image, QRect(40, 0, 15, 300)), 0);
  EXPECT_EQ(CountNotWhite(image, QRect(cx - 3, cy + 3, 7, sy - cy - 3)), 0);
  EXPECT_EQ(ColourAt(image, cx - 2, sy + 2), kBlack);
}

TEST_F(CurveTest, TheTextStartsOrEndsAtTheFirstPoint) {
  const std::vector<double> x = {2, 3}, y = {2, 3};
  DrawCurveWithText(d_, x, y, false, 2, picture_.canvas(), "first");
  const std::vector<double> x2 = {8, 9}, y2 = {8, 7};
  DrawCurveWithText(d_, x2, y2, true, 2, picture_.canvas(), "second");
  const QImage& image = picture_.Finish();
  const int row2 = YToPixel(d_, 2), row8 = YToPixel(d_, 8);
  EXPECT_GT(CountNotWhite(image, QRect(XToPixel(d_, 2) + 1, row2 + 1, 25, 10)), 10);
  EXPECT_GT(CountNotWhite(image, QRect(XToPixel(d_, 8) - 30, row8 + 1, 29, 10)), 10);
  EXPECT_EQ(CountNotWhite(image, QRect(XToPixel(d_, 2) - 30, row2 + 1, 29, 10)), 0);
}

// Four loci starting at one point by the right edge, on a tick label: every name stays whole
// inside the picture, clear of the label and of the other names.
TEST_F(CurveTest, NamesOfCurvesStartingTogetherStayInsideAndApart) {
  Canvas& c = picture_.canvas();
  c.TextOut(350, 140, "1k");
  const std::vector<double> x = {9.8, 9}, y = {5, 6};
  for (const char* name : {"first.s2p, S11 ", "second.s2p, S11 ", "third.s2p, S11 ", "fourth.s2p, S11 "}) {
    DrawCurveWithText(d_, x, y, false, 2, c, name);
  }
  const std::vector<QRect>& texts = c.WrittenTexts();
  ASSERT_EQ(texts.size(), 1u + 4 * 9);  // each name over a halo of eight copies
  for (std::size_t a = 0; a < texts.size(); a += 9) {
    EXPECT_TRUE(QRect(0, 0, 400, 300).contains(texts[a])) << a;
    for (std::size_t b = 0; b < a; b += 9) EXPECT_FALSE(texts[a].intersects(texts[b])) << a << " " << b;
  }
}

// Names of 60 x 13 pixels in a picture of 400 x 300: where they are wanted, the texts there
// already, and where they go.
TEST(PlaceText, TakesTheNearestFreePlaceInsideThePicture) {
  const std::tuple<QRect, std::vector<QRect>, QPoint> cases[] = {
      {{-30, 100, 60, 13}, {}, {0, 100}},  // regression: a name at the left rim of a Smith chart was cut off
      {{100, 100, 60, 13}, {{150, 105, 20, 13}}, {100, 87}},  // a line up
      {{100, 100, 60, 13}, {{100, 80, 60, 30}}, {100, 113}},  // else a line down
      {{-5, 100, 60, 13}, {{0, 0, 400, 300}}, {0, 100}}};     // nowhere free: inside at least
  for (const auto& [wanted, taken, expected] : cases) {
    const QRect placed = PlaceText(wanted, QRect(0, 0, 400, 300), taken);
    EXPECT_EQ(placed, QRect(expected, wanted.size())) << wanted.x() << " " << taken.size();
  }
}

// The argument-free entry points pass their arguments on in the order the names give them.
TEST(CurrentDiagram, EntryPointsWorkOnTheProgramWideState) {
  test::Picture p(400, 300);
  SetAxisModes(AxisMode::Linear, AxisMode::Linear);
  SetupAxes(p.canvas(), 10, 0, 5, -5);  // xMax, xMin, yMax, yMin
  EXPECT_EQ(XToPixel(10), 366);
  EXPECT_EQ(YToPixel(5), 27);
  SetAxisCrossing(3, 9);
  const Diagram& d = CurrentDiagram();
  EXPECT_EQ(d.x.cross, 3);
  EXPECT_EQ(d.y.cross, -5);
}

}  // namespace
}  // namespace diagram
