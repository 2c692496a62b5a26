#include "smith_geometry.h"

#include <cmath>
#include <complex>
#include <numbers>

namespace diagram {
namespace {

constexpr double kDegreesPerRadian = 180 / std::numbers::pi;

double AngleFrom(PlanePoint centre, PlanePoint p) {
  return std::atan2(p.im - centre.im, p.re - centre.re) * kDegreesPerRadian;
}

double Normalised(double degrees) {
  const double d = std::fmod(degrees, 360.0);
  return d < 0 ? d + 360 : d;
}

// The shorter counter-clockwise arc between two points of a circle.
PlaneArc ShortArcBetween(PlanePoint centre, double radius, PlanePoint a, PlanePoint b) {
  const double fromA = AngleFrom(centre, a);
  const double span = Normalised(AngleFrom(centre, b) - fromA);
  if (span <= 180) return {centre, radius, Normalised(fromA), span};
  return {centre, radius, Normalised(fromA + span), 360 - span};
}

}  // namespace

PlanePoint ReflectionOf(double r, double x) {
  const std::complex<double> z(r, x);
  const std::complex<double> gamma = (z - 1.0) / (z + 1.0);
  return {gamma.real(), gamma.imag()};
}

PlanePoint PointOnArc(const PlaneArc& arc, double degreesFromStart) {
  const double a = (arc.startDegrees + degreesFromStart) / kDegreesPerRadian;
  return {arc.centre.re + arc.radius * std::cos(a), arc.centre.im + arc.radius * std::sin(a)};
}

PlanePoint ArcEnd(const PlaneArc& arc) { return PointOnArc(arc, arc.spanDegrees); }

PlaneArc ResistanceArc(double r, double reactanceExtent) {
  // The point of reactance +extent lies at the angle pi - 2 atan(extent / (1 + r)) seen from
  // the centre; the arc runs from there through the left-most point to its mirror image.
  const double a = 180 - 2 * std::atan(reactanceExtent / (1 + r)) * kDegreesPerRadian;
  return {{r / (1 + r), 0}, 1 / (1 + r), a, 360 - 2 * a};
}

PlaneArc ReactanceArc(double x, double resistanceExtent) {
  const PlanePoint centre{1, 1 / x};
  return ShortArcBetween(centre, std::fabs(1 / x), ReflectionOf(0, x), ReflectionOf(resistanceExtent, x));
}

PlanePoint MirrorLeftRight(PlanePoint p) { return {-p.re, p.im}; }

PlaneArc MirrorLeftRight(const PlaneArc& arc) {
  return {MirrorLeftRight(arc.centre), arc.radius, Normalised(180 - arc.startDegrees - arc.spanDegrees),
          arc.spanDegrees};
}

QArcs ConstantQArcs(double q) {
  const double s = (std::sqrt(q * q + 1) - 1) / q;
  const double radius = (1 + s * s) / (2 * s);
  const double rightEnd = AngleFrom({0, s - radius}, {1, 0});
  const PlaneArc upper{{0, s - radius}, radius, rightEnd, 180 - 2 * rightEnd};
  const PlaneArc lower{{0, radius - s}, radius, 180 + rightEnd, 180 - 2 * rightEnd};
  return {s, upper, lower};
}

}  // namespace diagram
