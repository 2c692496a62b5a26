#include "diagram/parameter_curves.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>

#include "diagram/scaling.h"
#include "diagram/spline.h"
#include "numerics/complex_value.h"
#include "picture.h"

namespace diagram {
namespace {

using test::CountNotWhite;

TEST(ParameterLabel, LongAndShortForms) {
  EXPECT_EQ(ParameterLabel(kParameterS12, false), ", S12 ");
  EXPECT_EQ(ParameterLabel(kParameterS21, true), ",S21");
  EXPECT_EQ(ParameterLabel(4, false), "");
}

// A polar diagram of -1 .. 1 at 768 x 576 and ten points whose parameters lie apart.
class ParameterCurvesTest : public testing::Test {
 protected:
  ParameterCurvesTest() : set_(std::make_unique<numerics::TwoPortDataSet>()) {
    SetAxisModes(d_, AxisMode::Polar, AxisMode::Polar);
    SetupAxes(d_, 768, 576, 1, -1, 1, -1);
    SetAxisCrossing(d_, 0, 0);
    set_->pointCount = 10;
    for (int i = 0; i < 10; ++i) {
      const double angle = -10.0 * i;
      numerics::SParameters& p = set_->points[static_cast<std::size_t>(i)];
      p.s[0][0] = numerics::MakePolar(0.6, angle);
      p.s[0][1] = numerics::MakePolar(0.05, angle);
      p.s[1][0] = numerics::MakePolar(0.3, 180 + angle);
      set_->frequency[static_cast<std::size_t>(i)] = 1e9 * (i + 1);
    }
  }
  bool RedNear(const QImage& image, double re, double im) const {
    return test::HasColourNear(image, XToPixel(d_, re), YToPixel(d_, im), 1, kRed);
  }
  void Draw(int parameter, const ParameterCurveOptions& options) {
    const LoadedFile file{set_.get(), "dut.s2p", true, kRed};
    DrawParameterCurves(d_, picture_.canvas(), std::span(&file, 1), parameter, options);
  }
  Diagram d_;
  std::unique_ptr<numerics::TwoPortDataSet> set_;
  test::Picture picture_{768, 576};
};

TEST_F(ParameterCurvesTest, DrawsTheChosenParameterOnlyMagnified) {
  Draw(kParameterS12, {.magnification = 10, .markPoints = false});  // no crosses: the curve passes the points
  const QImage& image = picture_.Finish();
  EXPECT_TRUE(RedNear(image, 0.5, 0));
  EXPECT_TRUE(RedNear(image, 0.5 * std::cos(-0.7), 0.5 * std::sin(-0.7)));  // -40 degrees, a measured point
  EXPECT_FALSE(RedNear(image, 0.05, 0));
  EXPECT_FALSE(RedNear(image, 0.6, 0));  // S11
}

TEST_F(ParameterCurvesTest, ASinglePointIsItsLabelAlone) {
  set_->pointCount = 1;
  Draw(kParameterS21, {});
  const QImage& image = picture_.Finish();
  const int x = XToPixel(d_, -0.3), y = YToPixel(d_, 0);
  const int inked = CountNotWhite(image, QRect(0, 0, 768, 576));
  EXPECT_EQ(inked, CountNotWhite(image, QRect(x, y, 100, 20)));  // all of it right of and below the point
  EXPECT_GT(inked, 30);
}

TEST_F(ParameterCurvesTest, UnknownParametersAndHiddenFilesDrawNothing) {
  Draw(7, {});
  const LoadedFile hidden{set_.get(), "dut.s2p", false, kRed};
  DrawParameterCurves(d_, picture_.canvas(), std::span(&hidden, 1), kParameterS11, {});
  EXPECT_EQ(CountNotWhite(picture_.Finish(), QRect(0, 0, 768, 576)), 0);
}

using Samples = std::array<double, kSplineCapacity>;

// Nothing happens with fewer than five points or fewer than two parts an interval.
TEST(Spline, LeavesShortOrDenseCurvesAlone) {
  for (const int lastIndex : {3, 200}) {
    Samples x{}, y{};
    int last = lastIndex;
    SplineResample(x, y, last, false, false, 300);
    EXPECT_EQ(last, lastIndex);
  }
}

TEST(Spline, MatchesANaturalSplineWorkedOutByHand) {
  // Knots 0..4 with a single bump at 2. The second derivatives solve
  // 4 M1 + M2 = 6, M1 + 4 M2 + M3 = -12, M2 + 4 M3 = 6: M1 = M3 = 18/7, M2 = -30/7, so
  // S(0.5) = M1 / 48 - 0.5 M1 / 6 = -9/56 and S(1.5) = (M1 + M2) / 48 + 0.5 (1 - (M1 + M2) / 6) = 17/28.
  Samples x{0, 1, 2, 3, 4}, y{0, 0, 1, 0, 0};
  int last = 4;
  SplineResample(x, y, last, false, false, 11);
  ASSERT_EQ(last, 8);  // 11 div 4 = 2 parts an interval
  EXPECT_DOUBLE_EQ(x[1], 0.5);
  EXPECT_NEAR(y[1], -9.0 / 56, 1e-15);
  EXPECT_NEAR(y[3], 17.0 / 28, 1e-15);
  EXPECT_EQ(y[4], 1);  // the knots stay
}

// y = log10 x is a straight line in log x, so the spline keeps it, also between uneven knots.
// More than 300 points asked count as 300: 75 parts an interval.
TEST(Spline, LogXSpacesTheNewPointsGeometrically) {
  Samples x{1e6, 1e7, 1e9, 1e10, 1e12}, y{6, 7, 9, 10, 12};
  int last = 4;
  SplineResample(x, y, last, true, false, 1000);
  ASSERT_EQ(last, 300);
  EXPECT_NEAR(x[1], 1e6 * std::pow(10.0, 1.0 / 75), 1e-3);
  for (std::size_t i = 0; i <= 300; ++i) EXPECT_NEAR(y[i], std::log10(x[i]), 1e-9) << i;
}

}  // namespace
}  // namespace diagram
