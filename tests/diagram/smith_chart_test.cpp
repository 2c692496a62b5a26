#include "diagram/smith_chart.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <tuple>

#include "diagram/axes.h"
#include "diagram/scaling.h"
#include "diagram/smith_geometry.h"
#include "picture.h"

namespace diagram {

namespace {

// Normalised impedance of a reflection coefficient: z = (1 + r) / (1 - r).
std::complex<double> ImpedanceOf(PlanePoint p) {
  const std::complex<double> r(p.re, p.im);
  return (1.0 + r) / (1.0 - r);
}

TEST(SmithGeometry, ResistanceArcsAreTheirCirclesUpToTheirReactanceExtent) {
  for (const GridCircle c : kResistanceCircles) {
    const PlaneArc arc = ResistanceArc(c.value, c.extent);
    EXPECT_NEAR(std::hypot(1 - arc.centre.re, arc.centre.im), arc.radius, 1e-12);  // every one touches +1
    EXPECT_NEAR(arc.radius, 1 / (1 + c.value), 1e-12) << c.value;
    const std::complex<double> start = ImpedanceOf(PointOnArc(arc, 0)), end = ImpedanceOf(ArcEnd(arc));
    EXPECT_NEAR(std::abs(start - std::complex<double>(c.value, c.extent)), 0, 1e-9 * c.extent) << c.value;
    EXPECT_NEAR(std::abs(end - std::complex<double>(c.value, -c.extent)), 0, 1e-9 * c.extent) << c.value;
  }
}

TEST(SmithGeometry, ReactanceArcsRunFromTheRimToTheResistanceCircleOfTheirExtent) {
  for (const GridCircle c : kReactanceCircles) {
    for (const double x : {c.value, -c.value}) {
      const PlaneArc arc = ReactanceArc(x, c.extent);
      EXPECT_TRUE(arc.spanDegrees > 0 && arc.spanDegrees < 180) << x;
      const std::complex<double> a = ImpedanceOf(PointOnArc(arc, 0)), b = ImpedanceOf(ArcEnd(arc));
      EXPECT_NEAR(a.imag(), x, 1e-9 * c.extent);
      EXPECT_NEAR(b.imag(), x, 1e-9 * c.extent);
      EXPECT_NEAR(std::min(a.real(), b.real()), 0, 1e-9);  // one end on the rim
      EXPECT_NEAR(std::max(a.real(), b.real()), c.extent, 1e-9 * c.extent);
      EXPECT_EQ(PointOnArc(arc, arc.spanDegrees / 2).im > 0, x > 0);
    }
  }
}

TEST(SmithGeometry, EveryPointOfBothQArcsHasThatQ) {
  for (const double q : {0.01, 1.0, 10000.0}) {
    const QArcs arcs = ConstantQArcs(q);
    for (const PlaneArc* arc : {&arcs.upper, &arcs.lower}) {
      for (const double t : {0.05, 0.5, 0.95}) {
        const std::complex<double> z = ImpedanceOf(PointOnArc(*arc, t * arc->spanDegrees));
        EXPECT_NEAR(std::fabs(z.imag() / z.real()), q, 1e-7 * q) << t;
        EXPECT_EQ(z.imag() > 0, arc == &arcs.upper);
      }
      const PlanePoint a = PointOnArc(*arc, 0), b = ArcEnd(*arc);
      EXPECT_NEAR(std::fabs(a.re), 1, 1e-12);
      EXPECT_NEAR(a.re, -b.re, 1e-12);
    }
    const PlanePoint top = PointOnArc(arcs.upper, arcs.upper.spanDegrees / 2);
    EXPECT_NEAR(top.re, 0, 1e-12);
    EXPECT_NEAR(top.im, arcs.s, 1e-12);
  }
}


class SmithChartTest : public testing::Test {
 protected:
  void SetUp() override { Scale(1); }
  void Scale(double limit) {
    SetAxisModes(d_, AxisMode::Smith, AxisMode::Smith);
    SetupAxes(d_, 768, 576, limit, -limit, limit, -limit);
    SetAxisCrossing(d_, 0, 0);
  }
  // Whether the colour is near the pixel of a reflection coefficient.
  bool Has(const QImage& image, double re, double im, Colour colour = kGrey) const {
    return test::HasColourNear(image, XToPixel(d_, re), YToPixel(d_, im), 1, colour);
  }
  // The grid of the kind in grey, then the arcs of Q = 1 if asked; the pen is grey again afterwards.
  QImage Draw(ChartKind kind, bool labels, bool qArcs) {
    test::Picture picture(768, 576);
    SetDrawColour(kGrey, picture.canvas());
    DrawSmithGrid(d_, kind, picture.canvas(), labels, 50);
    if (qArcs) DrawQArcs(d_, picture.canvas(), 1);
    EXPECT_EQ(picture.canvas().PenColour(), kGrey);
    return picture.Finish();
  }
  Diagram d_;
};

// The impedance chart's unit resistance circle has its top at 0.5 + 0.5j, the admittance chart's
// unit conductance circle is its mirror image; the combined chart draws the latter in its own colour.
TEST_F(SmithChartTest, EachKindDrawsItsUnitCircleInsideTheRim) {
  const std::tuple<ChartKind, bool, Colour, bool> cases[] = {{ChartKind::Impedance, true, kGrey, false},
                                                             {ChartKind::Admittance, false, kGrey, true},
                                                             {ChartKind::Combined, true, kAdmittanceGridColour, true}};
  for (const auto& [kind, resistance, colour, conductance] : cases) {
    const QImage image = Draw(kind, true, false);
    EXPECT_TRUE(Has(image, -std::sqrt(0.5), -std::sqrt(0.5)));  // the rim
    EXPECT_FALSE(Has(image, -1.1, 0.3));                       // outside it
    EXPECT_EQ(Has(image, 0.5, 0.5), resistance);
    EXPECT_EQ(Has(image, -0.5, 0.5, colour), conductance);
  }
}

// Zoomed in, the grid and the arcs of Q = 1, which cross the imaginary axis at s = sqrt(2) - 1,
// stay inside the frame.
TEST_F(SmithChartTest, QArcsAndAZoomedChartStayInsideTheFrame) {
  Scale(0.5);
  const QImage image = Draw(ChartKind::Combined, false, true);
  const QRect frame(QPoint(d_.x.pixMin, d_.y.pixMax), QPoint(d_.x.pixMax, d_.y.pixMin));
  EXPECT_EQ(test::CountNotWhite(image, image.rect()), test::CountNotWhite(image, frame));
  EXPECT_TRUE(Has(image, 0, 0));
  EXPECT_TRUE(Has(image, 0, std::sqrt(2.0) - 1, kBlack));
}

TEST(SmithChart, EightPointLabelsOnlyForLargePictures) {
  EXPECT_EQ(SmithLabelPointSize(501, 401), 8);
  EXPECT_EQ(SmithLabelPointSize(500, 450), 6);
  EXPECT_EQ(SmithLabelPointSize(501, 400), 6);
}

}  // namespace
}  // namespace diagram
