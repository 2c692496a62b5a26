#include "diagram/smith_chart.h"

#include <gtest/gtest.h>

#include <ostream>

#include <cmath>

#include "diagram/axes.h"
#include "diagram/scaling.h"
#include "picture.h"

namespace diagram {
namespace {

using test::CountNotWhiteOutside;
using test::HasColourNear;
using test::Picture;

class SmithChartTest : public testing::Test {
 protected:
  void SetUp() override { Scale(1); }
  void Scale(double limit) {
    SetAxisModes(d_, AxisMode::Smith, AxisMode::Smith);
    SetupAxes(d_, 768, 576, limit, -limit, limit, -limit);
    SetAxisCrossing(d_, 0, 0);
  }
  // Pixel of a reflection coefficient, on the one scale of both axes.
  QPoint At(double re, double im) const { return {XToPixel(d_, re), YToPixel(d_, im)}; }
  bool Grey(const QImage& image, double re, double im) const {
    return HasColourNear(image, At(re, im).x(), At(re, im).y(), 1, kGrey);
  }
  QRect Frame() const { return QRect(QPoint(d_.pixLeft, d_.pixTop), QPoint(d_.pixRight, d_.pixBottom)); }
  Diagram d_;
  Picture picture_{768, 576};
};

TEST_F(SmithChartTest, TheRimIsTheUnitCircleOfTheDiagramsScale) {
  SetDrawColour(kGrey, picture_.canvas());
  DrawSmithGrid(d_, ChartKind::Impedance, picture_.canvas(), false, 50);
  const QImage& image = picture_.Finish();
  const double h = std::sqrt(0.5);
  for (const auto& [re, im] : {std::pair{0.0, 1.0}, {0.0, -1.0}, {-1.0, 0.0}, {h, h}, {-h, -h}}) {
    EXPECT_TRUE(Grey(image, re, im)) << re << " " << im;
  }
  EXPECT_FALSE(Grey(image, -1.1, 0.3));  // outside the rim
  EXPECT_FALSE(Grey(image, 1.1, -0.3));
}

TEST_F(SmithChartTest, TheUnitResistanceCircleRunsThroughTheCentre) {
  SetDrawColour(kGrey, picture_.canvas());
  DrawSmithGrid(d_, ChartKind::Impedance, picture_.canvas(), false, 50);
  const QImage& image = picture_.Finish();
  EXPECT_TRUE(Grey(image, 0, 0));
  EXPECT_TRUE(Grey(image, 0.5, 0.5));  // top of the circle of centre 0.5 and radius 0.5
  EXPECT_TRUE(Grey(image, 0.5, -0.5));
  EXPECT_FALSE(Grey(image, -0.5, 0.5));
}

TEST_F(SmithChartTest, TheAdmittanceChartIsTheMirrorImage) {
  SetDrawColour(kGrey, picture_.canvas());
  DrawSmithGrid(d_, ChartKind::Admittance, picture_.canvas(), false, 50);
  const QImage& image = picture_.Finish();
  EXPECT_TRUE(Grey(image, -0.5, 0.5));
  EXPECT_FALSE(Grey(image, 0.5, 0.5));
}

TEST_F(SmithChartTest, TheCombinedChartDrawsTheAdmittanceGridInItsOwnColour) {
  SetDrawColour(kGrey, picture_.canvas());
  DrawSmithGrid(d_, ChartKind::Combined, picture_.canvas(), true, 50);
  EXPECT_EQ(picture_.canvas().PenColour(), kGrey);
  const QImage& image = picture_.Finish();
  EXPECT_TRUE(Grey(image, 0.5, 0.5));
  EXPECT_TRUE(HasColourNear(image, At(-0.5, 0.5).x(), At(-0.5, 0.5).y(), 1, kAdmittanceGridColour));
}

TEST_F(SmithChartTest, AZoomedChartStaysInsideTheFrame) {
  Scale(0.4);
  SetDrawColour(kGrey, picture_.canvas());
  DrawSmithGrid(d_, ChartKind::Combined, picture_.canvas(), false, 50);
  DrawQArcs(d_, picture_.canvas(), 1);
  const QImage& image = picture_.Finish();
  EXPECT_EQ(CountNotWhiteOutside(image, Frame()), 0);
  EXPECT_TRUE(Grey(image, 0, 0));
}

TEST_F(SmithChartTest, QArcsCrossTheImaginaryAxisAtS) {
  picture_.canvas().SetPenColour(kGrey);
  DrawQArcs(d_, picture_.canvas(), 1);
  EXPECT_EQ(picture_.canvas().PenColour(), kGrey);
  const QImage& image = picture_.Finish();
  const double s = std::sqrt(2.0) - 1;
  for (const double im : {s, -s}) {
    EXPECT_TRUE(HasColourNear(image, At(0, im).x(), At(0, im).y(), 1, kBlack)) << im;
  }
  EXPECT_TRUE(HasColourNear(image, At(-1, 0).x(), At(-1, 0).y(), 2, kBlack));
  EXPECT_FALSE(HasColourNear(image, At(0, 0.5).x(), At(0, 0.5).y(), 2, kBlack));
}

struct SizeCase {
  int width, height, points;
};
void PrintTo(const SizeCase& c, std::ostream* os) { *os << c.width << "x" << c.height; }

class LabelSizeTest : public testing::TestWithParam<SizeCase> {};

TEST_P(LabelSizeTest, EightPointsOnlyForLargePictures) {
  EXPECT_EQ(SmithLabelPointSize(GetParam().width, GetParam().height), GetParam().points);
}

INSTANTIATE_TEST_SUITE_P(Sizes, LabelSizeTest,
                         testing::Values(SizeCase{600, 450, 8}, SizeCase{500, 450, 6}, SizeCase{501, 401, 8},
                                         SizeCase{501, 400, 6}, SizeCase{768, 576, 8}));

}  // namespace
}  // namespace diagram
