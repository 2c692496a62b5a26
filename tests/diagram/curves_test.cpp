#include "diagram/curves.h"

#include <gtest/gtest.h>

#include <vector>

#include "diagram/scaling.h"
#include "picture.h"

namespace diagram {
namespace {

using test::CountNotWhite;

// 400 x 300 picture, both axes 0 .. 10: frame 48 .. 366 by 27 .. 263.
class CurveTest : public testing::Test {
 protected:
  CurveTest() { SetupAxes(d_, 400, 300, 10, 0, 10, 0); }
  Diagram d_;
  test::Picture picture_{400, 300};
};

TEST_F(CurveTest, APointAboveTheRangeBreaksTheCurveInTwo) {
  const std::vector<double> x = {1, 2, 3, 4, 5}, y = {2, 3, 20, 3, 2};
  DrawCurve(d_, x, y, 5, picture_.canvas());
  const QImage& image = picture_.Finish();
  const int x2 = XToPixel(d_, 2), x4 = XToPixel(d_, 4);
  EXPECT_EQ(test::ColourAt(image, (XToPixel(d_, 1) + x2) / 2, YToPixel(d_, 2.5)), kBlack);
  EXPECT_EQ(CountNotWhite(image, QRect(QPoint(x2 + 1, 0), QPoint(x4 - 1, 299))), 0);
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

// Asked to, the name ends at the curve's first point instead of starting there.
TEST_F(CurveTest, TheTextCanEndAtTheFirstPoint) {
  const std::vector<double> x = {8, 9}, y = {8, 7};
  DrawCurveWithText(d_, x, y, true, 2, picture_.canvas(), "second");
  const QImage& image = picture_.Finish();
  EXPECT_GT(CountNotWhite(image, QRect(XToPixel(d_, 8) - 30, YToPixel(d_, 8) + 1, 29, 10)), 10);
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

}  // namespace
}  // namespace diagram
