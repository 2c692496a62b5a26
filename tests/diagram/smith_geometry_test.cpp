#include "diagram/smith_geometry.h"

#include <gtest/gtest.h>

#include <ostream>

#include <cmath>
#include <complex>

namespace diagram {

// Found by argument-dependent lookup, so it lives beside GridCircle.
void PrintTo(const GridCircle& c, std::ostream* os) { *os << c.value << " to " << c.extent; }

namespace {

// Normalised impedance of a reflection coefficient: z = (1 + r) / (1 - r).
std::complex<double> ImpedanceOf(PlanePoint p) {
  const std::complex<double> r(p.re, p.im);
  return (1.0 + r) / (1.0 - r);
}

double DistanceFromCentre(const PlaneArc& arc, PlanePoint p) {
  return std::hypot(p.re - arc.centre.re, p.im - arc.centre.im);
}

class ResistanceArcTest : public testing::TestWithParam<GridCircle> {};

TEST_P(ResistanceArcTest, IsTheCircleOfItsResistanceUpToItsReactanceExtent) {
  const GridCircle c = GetParam();
  const PlaneArc arc = ResistanceArc(c.value, c.extent);
  EXPECT_NEAR(DistanceFromCentre(arc, {1, 0}), arc.radius, 1e-12);  // every one touches +1
  EXPECT_NEAR(arc.radius, 1 / (1 + c.value), 1e-12);
  const std::complex<double> start = ImpedanceOf(PointOnArc(arc, 0));
  const std::complex<double> end = ImpedanceOf(ArcEnd(arc));
  EXPECT_NEAR(start.real(), c.value, 1e-9);
  EXPECT_NEAR(start.imag(), c.extent, 1e-9 * c.extent);
  EXPECT_NEAR(end.real(), c.value, 1e-9);
  EXPECT_NEAR(end.imag(), -c.extent, 1e-9 * c.extent);
  // The arc passes through its left-most point on the real axis.
  const PlanePoint left = PointOnArc(arc, 180 - arc.startDegrees);
  EXPECT_NEAR(left.re, (c.value - 1) / (c.value + 1), 1e-12);
  EXPECT_NEAR(left.im, 0, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(Table, ResistanceArcTest, testing::ValuesIn(kResistanceCircles));

class ReactanceArcTest : public testing::TestWithParam<GridCircle> {};

TEST_P(ReactanceArcTest, RunsFromTheRimToTheResistanceCircleOfItsExtent) {
  const GridCircle c = GetParam();
  for (const double x : {c.value, -c.value}) {
    const PlaneArc arc = ReactanceArc(x, c.extent);
    EXPECT_GT(arc.spanDegrees, 0);
    EXPECT_LT(arc.spanDegrees, 180);
    const std::complex<double> a = ImpedanceOf(PointOnArc(arc, 0));
    const std::complex<double> b = ImpedanceOf(ArcEnd(arc));
    EXPECT_NEAR(a.imag(), x, 1e-9 * c.extent);
    EXPECT_NEAR(b.imag(), x, 1e-9 * c.extent);
    EXPECT_NEAR(std::min(a.real(), b.real()), 0, 1e-9);  // one end on the rim
    EXPECT_NEAR(std::max(a.real(), b.real()), c.extent, 1e-9 * c.extent);
    EXPECT_EQ(PointOnArc(arc, arc.spanDegrees / 2).im > 0, x > 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, ReactanceArcTest, testing::ValuesIn(kReactanceCircles));

TEST(SmithGeometry, TheUnitResistanceCirclePassesThroughTheCentre) {
  const PlaneArc arc = ResistanceArc(1, 15);
  EXPECT_DOUBLE_EQ(arc.radius, 0.5);
  EXPECT_NEAR(DistanceFromCentre(arc, {0, 0}), 0.5, 1e-15);
}

TEST(SmithGeometry, TheAdmittanceChartIsMirrored) {
  const PlaneArc z = ResistanceArc(2, 30);
  const PlaneArc y = MirrorLeftRight(z);
  EXPECT_NEAR(DistanceFromCentre(y, {-1, 0}), y.radius, 1e-12);
  for (const double t : {0.0, 0.3, 0.7, 1.0}) {
    const PlanePoint p = PointOnArc(z, t * z.spanDegrees);
    const PlanePoint q = PointOnArc(y, (1 - t) * y.spanDegrees);
    EXPECT_NEAR(q.re, -p.re, 1e-12);
    EXPECT_NEAR(q.im, p.im, 1e-12);
  }
}

class ConstantQTest : public testing::TestWithParam<double> {};

TEST_P(ConstantQTest, EveryPointOfBothArcsHasThatQ) {
  const double q = GetParam();
  const QArcs arcs = ConstantQArcs(q);
  for (const PlaneArc* arc : {&arcs.upper, &arcs.lower}) {
    for (const double t : {0.05, 0.25, 0.5, 0.75, 0.95}) {
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

INSTANTIATE_TEST_SUITE_P(Values, ConstantQTest, testing::Values(0.01, 0.5, 1.0, 5.0, 100.0, 10000.0));

TEST(ConstantQ, QOfOneCrossesTheImaginaryAxisAtPointFourOneFour) {
  const QArcs arcs = ConstantQArcs(1);
  EXPECT_NEAR(arcs.s, std::sqrt(2.0) - 1, 1e-15);
  EXPECT_NEAR(arcs.upper.radius, std::sqrt(2.0), 1e-15);
  EXPECT_NEAR(arcs.upper.centre.im, -1, 1e-15);
  EXPECT_NEAR(arcs.lower.centre.im, 1, 1e-15);
}

}  // namespace
}  // namespace diagram
