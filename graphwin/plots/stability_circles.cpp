#include "stability_circles.h"

#include <cmath>
#include <limits>

#include "diagram/axes.h"
#include "diagram/axis.h"
#include "frequency_plot.h"
#include "numerics/figures.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

using diagram::Canvas;
using diagram::Diagram;
using diagram::PlanePoint;

// A circle this large crosses the chart as a straight line; its path would not stay exact.
constexpr double kLargestDrawnRadius = 1000;
constexpr int kMatchMarkRadius = 4;

PlanePoint PlaneOf(const numerics::ComplexValue& z) { return {numerics::Re(z), numerics::Im(z)}; }

// The chart's centre lies inside the circle or not; it is stable when the port's own reflection
// stays below 1.
StabilityCircle CircleOf(const numerics::Circle& circle, double portReflection) {
  const PlanePoint centre = PlaneOf(circle.centre);
  const bool centreInside = std::hypot(centre.re, centre.im) < circle.radius;
  const bool centreStable = portReflection < 1;
  return {centre, circle.radius, centreInside != centreStable};
}

std::optional<PlanePoint> MatchOf(const numerics::ComplexValue& gamma) {
  const PlanePoint p = PlaneOf(gamma);
  if (std::isnan(p.re)) return std::nullopt;
  return p;
}

struct PixelMap {
  explicit PixelMap(const Diagram& d) : x(d.x), y(d.y) {}
  QPointF At(PlanePoint p) const { return {diagram::ToPixelExact(x, p.re), diagram::ToPixelExact(y, p.im)}; }
  QRectF Box(PlanePoint centre, double radius) const {
    return QRectF(At({centre.re - radius, centre.im + radius}), At({centre.re + radius, centre.im - radius}));
  }
  diagram::Axis x, y;
};

void DrawCircle(const PixelMap& map, const StabilityCircle& circle, diagram::Colour colour, Canvas& c) {
  if (!(circle.radius <= kLargestDrawnRadius)) return;
  QPainterPath rim, inside;
  rim.addEllipse(map.Box({0, 0}, 1));
  inside.addEllipse(map.Box(circle.centre, circle.radius));
  c.Hatch(circle.unstableInside ? rim.intersected(inside) : rim.subtracted(inside), colour);
  c.SetPenColour(colour);
  const QRectF box = inside.boundingRect();
  c.Ellipse(box.left(), box.top(), box.right(), box.bottom());
}

void DrawMatch(const PixelMap& map, const std::optional<PlanePoint>& match, const char* name, diagram::Colour colour,
               Canvas& c) {
  if (!match) return;
  const QPointF at = map.At(*match);
  diagram::SetDrawColour(colour, c);
  c.SetBrushStyle(diagram::BrushStyle::Solid);
  c.SetBrushColour(colour);
  c.Ellipse(at.x() - kMatchMarkRadius, at.y() - kMatchMarkRadius, at.x() + kMatchMarkRadius, at.y() + kMatchMarkRadius);
  c.SetBrushStyle(diagram::BrushStyle::Clear);
  c.TextOut(static_cast<int>(at.x()) + kMatchMarkRadius + 2, static_cast<int>(at.y()) - kMatchMarkRadius, name);
}

Legend CircleLegend(double frequency) {
  return {"Circles at f=" + numerics::TrimLeftText(numerics::FormatPrefixed(2, frequency)) + "Hz",
          {{"input stability (source)", kInputCircleColour}, {"output stability (load)", kOutputCircleColour}},
          "hatched: unstable side"};
}

}  // namespace

MatchCircles MatchCirclesOf(const numerics::SParameters& point, double frequency) {
  numerics::TwoPortState st;
  numerics::CopyPointToState(point, st);
  numerics::TwoPortFigures figures;
  // The figures leave the matches as they were where none exists.
  const double unset = std::numeric_limits<double>::quiet_NaN();
  figures.gammaMS = figures.gammaML = numerics::MakeCartesian(unset, unset);
  numerics::ComputeTwoPortFigures(st, numerics::FigureInputs{}, figures);
  return {frequency, CircleOf(figures.sourceStability, numerics::Abs(st.s.m22)),
          CircleOf(figures.loadStability, numerics::Abs(st.s.m11)), MatchOf(figures.gammaMS), MatchOf(figures.gammaML)};
}

void DrawMatchCircles(const Diagram& d, const MatchCircles& circles, Canvas& c) {
  const PixelMap map(d);
  c.SetPenStyle(diagram::PenStyle::Solid);
  c.SetBrushStyle(diagram::BrushStyle::Clear);
  c.SetClipRect(d.x.pixMin, d.y.pixMax, d.x.pixMax + 1, d.y.pixMin + 1);
  DrawCircle(map, circles.input, kInputCircleColour, c);
  DrawCircle(map, circles.output, kOutputCircleColour, c);
  DrawMatch(map, circles.sourceMatch, "\u0393MS", kInputCircleColour, c);
  DrawMatch(map, circles.loadMatch, "\u0393ML", kOutputCircleColour, c);
  c.ClearClip();
  DrawLegend(d, CircleLegend(circles.frequency), LegendCorner::LowerLeft, c);
}

}  // namespace graphwin::plots
