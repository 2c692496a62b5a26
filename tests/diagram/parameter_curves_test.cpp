#include "diagram/parameter_curves.h"

#include <gtest/gtest.h>

#include <memory>

#include "diagram/scaling.h"
#include "numerics/complex_value.h"
#include "picture.h"

namespace diagram {
namespace {

using test::CountNotWhite;
using test::HasColourNear;
using test::Picture;

TEST(ParameterLabel, LongAndShortForms) {
  EXPECT_EQ(ParameterLabel(kParameterS11, false), ", S11 ");
  EXPECT_EQ(ParameterLabel(kParameterS12, false), ", S12 ");
  EXPECT_EQ(ParameterLabel(kParameterS21, true), ",S21");
  EXPECT_EQ(ParameterLabel(kParameterS22, true), ",S22");
  EXPECT_EQ(ParameterLabel(4, false), "");
  EXPECT_EQ(ParameterLabel(-1, true), "");
}

// A polar diagram of -1 .. 1 at 768 x 576 and a data set whose four parameters lie apart.
class ParameterCurvesTest : public testing::Test {
 protected:
  ParameterCurvesTest() : set_(std::make_unique<numerics::TwoPortDataSet>()) {
    SetAxisModes(d_, AxisMode::Polar, AxisMode::Polar);
    SetupAxes(d_, 768, 576, 1, -1, 1, -1);
    SetAxisCrossing(d_, 0, 0);
  }
  void Fill(int points) {
    set_->pointCount = points;
    for (int i = 0; i < points; ++i) {
      const double angle = -10.0 * i;
      numerics::SParameters& p = set_->points[static_cast<std::size_t>(i)];
      p.s[0][0] = numerics::MakePolar(0.6, angle);
      p.s[0][1] = numerics::MakePolar(0.05, angle);
      p.s[1][0] = numerics::MakePolar(0.3, 180 + angle);
      p.s[1][1] = numerics::MakePolar(0.9, angle);
      set_->frequency[static_cast<std::size_t>(i)] = 1e9 * (i + 1);
    }
  }
  bool RedNear(const QImage& image, double re, double im) const {
    return HasColourNear(image, XToPixel(d_, re), YToPixel(d_, im), 1, kRed);
  }
  void Draw(int parameter, const ParameterCurveOptions& options) {
    const LoadedFile file{set_.get(), "dut.s2p", true, kRed};
    DrawParameterCurves(d_, picture_.canvas(), std::span(&file, 1), parameter, options);
  }
  Diagram d_;
  std::unique_ptr<numerics::TwoPortDataSet> set_;
  Picture picture_{768, 576};
};

TEST_F(ParameterCurvesTest, DrawsTheChosenParameterOnly) {
  Fill(10);
  Draw(kParameterS22, {});
  const QImage& image = picture_.Finish();
  EXPECT_TRUE(RedNear(image, 0.9, 0));
  EXPECT_TRUE(RedNear(image, 0.9 * std::cos(-0.7), 0.9 * std::sin(-0.7)));  // -40 degrees, a measured point
  EXPECT_FALSE(RedNear(image, 0.6, 0));
  EXPECT_FALSE(RedNear(image, -0.3, 0));
}

TEST_F(ParameterCurvesTest, MagnificationScalesBothParts) {
  Fill(10);
  ParameterCurveOptions options;
  options.magnification = 10;
  Draw(kParameterS12, options);
  const QImage& image = picture_.Finish();
  EXPECT_TRUE(RedNear(image, 0.5, 0));
  EXPECT_FALSE(RedNear(image, 0.05, 0));
}

TEST_F(ParameterCurvesTest, ASinglePointIsItsLabelAlone) {
  Fill(1);
  Draw(kParameterS21, {});
  const QImage& image = picture_.Finish();
  const int x = XToPixel(d_, -0.3), y = YToPixel(d_, 0);
  const int inked = CountNotWhite(image, QRect(0, 0, 768, 576));
  EXPECT_EQ(inked, CountNotWhite(image, QRect(x, y, 100, 20)));  // all of it right of and below the point
  EXPECT_GT(inked, 30);
}

TEST_F(ParameterCurvesTest, UnknownParametersAndHiddenFilesDrawNothing) {
  Fill(10);
  Draw(7, {});
  const LoadedFile hidden{set_.get(), "dut.s2p", false, kRed};
  DrawParameterCurves(d_, picture_.canvas(), std::span(&hidden, 1), kParameterS11, {});
  EXPECT_EQ(CountNotWhite(picture_.Finish(), QRect(0, 0, 768, 576)), 0);
}

TEST_F(ParameterCurvesTest, TheSplineFollowsTheLocusBetweenMeasuredPoints) {
  Fill(10);  // nine intervals of 10 degrees: 300 div 9 = 33 new points each
  ParameterCurveOptions options;
  options.markPoints = false;
  Draw(kParameterS22, options);
  const QImage& image = picture_.Finish();
  const double between = -0.5 * 10 / 57.29577951308232;  // -5 degrees, halfway to the second point
  EXPECT_TRUE(RedNear(image, 0.9 * std::cos(between), 0.9 * std::sin(between)));
}

}  // namespace
}  // namespace diagram
