#pragma once

#include <array>

// The Smith chart's circles as data in the plane of the reflection coefficient (real part
// right, imaginary part up), before any pixel is involved. Plain C++.
namespace diagram {

struct PlanePoint {
  double re, im;
};

// Part of a circle, counter-clockwise from startDegrees (0 = the direction of the positive
// real axis, seen from the centre) over spanDegrees.
struct PlaneArc {
  PlanePoint centre;
  double radius;
  double startDegrees;
  double spanDegrees;
};

// Normalised value of a grid circle and how far it is drawn: up to the circle of the other
// family with that value. The uneven extents keep the small circles from crowding the
// right-hand end of the chart.
struct GridCircle {
  double value;
  double extent;
};

inline constexpr std::array<GridCircle, 6> kResistanceCircles{
    {{0.1, 6}, {0.25, 9}, {0.5, 10}, {1, 15}, {2, 30}, {5, 200}}};
inline constexpr std::array<GridCircle, 6> kReactanceCircles{
    {{0.1, 4.5}, {0.25, 9}, {0.5, 13}, {1, 30}, {2, 50}, {5, 80}}};

// Reflection coefficient of the normalised impedance r + jx.
PlanePoint ReflectionOf(double r, double x);
PlanePoint PointOnArc(const PlaneArc& arc, double degreesFromStart);
PlanePoint ArcEnd(const PlaneArc& arc);

// The circle of constant resistance r (touching +1) between the reactances +extent and -extent.
PlaneArc ResistanceArc(double r, double reactanceExtent);
// The circle of constant reactance x (above the real axis for x > 0) from the rim (r = 0) to
// the resistance circle r = resistanceExtent.
PlaneArc ReactanceArc(double x, double resistanceExtent);
// The admittance chart is the impedance chart mirrored left to right.
PlaneArc MirrorLeftRight(const PlaneArc& arc);
PlanePoint MirrorLeftRight(PlanePoint p);

// The two arcs of constant |X / R| = q through -1 and +1: the upper one through (0, s), the
// lower one through (0, -s), with s = (sqrt(q^2 + 1) - 1) / q.
struct QArcs {
  double s;
  PlaneArc upper, lower;
};
QArcs ConstantQArcs(double q);

}  // namespace diagram
