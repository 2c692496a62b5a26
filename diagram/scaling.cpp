#include "scaling.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "axis.h"
#include "numerics/real_functions.h"

namespace diagram {
namespace {

int RoundToInt(double v) { return static_cast<int>(std::nearbyint(v)); }

// Rounded up to the next decade, with 0.1 % tolerance so that an exact decade stays.
double DecadeAbove(double v) {
  const double n = std::nearbyint(numerics::Log10(0.999 * std::fabs(v)) + 0.5);
  return std::pow(10.0, n);
}

void ApplyRangeRule(Axis& a) {
  if (a.mode == AxisMode::Log) {
    a.min = DecadeAbove(a.min);
    a.max = DecadeAbove(a.max);
    if (a.max <= a.min) a.min = a.max / 10;
    a.logMin = numerics::Log10(a.min);
    a.logMax = numerics::Log10(a.max);
  } else if (IsRoundMode(a.mode)) {
    a.min = std::min(0.0, a.min);
    a.max = std::fabs(a.max);
    if (a.max == 0) a.max = a.min == 0 ? 1 : std::fabs(a.min);
  }
  a.limitCopy = a.max;
}

void WidenAboutCentre(double& min, double& max, double span) {
  const double centre = (min + max) / 2;
  min = centre - span / 2;
  max = centre + span / 2;
}

// One pixel scale on both axes, the largest with which both requested ranges stay whole in the
// frame; the axis with pixels to spare is widened about its centre.
void FitRoundChart(Diagram& d) {
  const double columns = d.x.pixMax - d.x.pixMin;
  const double rows = d.y.pixMin - d.y.pixMax;
  const double xSpan = d.x.max - d.x.min;
  const double ySpan = d.y.max - d.y.min;
  if (columns / xSpan > rows / ySpan) {
    WidenAboutCentre(d.x.min, d.x.max, columns * ySpan / rows);
  } else {
    WidenAboutCentre(d.y.min, d.y.max, rows * xSpan / columns);
  }
  d.x.limitCopy = d.x.max;
  d.y.limitCopy = d.y.max;
}

double CrossingOf(const Axis& a, double wanted) {
  if (a.mode == AxisMode::Log) return a.min;
  if (IsRoundMode(a.mode)) return 0;
  return wanted >= a.min && wanted <= a.max ? wanted : a.min;
}

void RecomputeAxes(Diagram& d, bool x, bool y) {
  if (x) ApplyRangeRule(d.x);
  if (y) ApplyRangeRule(d.y);
  if (IsRoundMode(d.x.mode)) FitRoundChart(d);
}

}  // namespace

PixelFrame FrameOf(int width, int height) {
  return {RoundToInt(0.05 * width + 28), RoundToInt(0.95 * width - 14), RoundToInt(0.05 * height + 12),
          RoundToInt(0.95 * height - 22)};
}

void SetAxisModes(Diagram& d, AxisMode xMode, AxisMode yMode) {
  if (xMode == AxisMode::Polar || yMode == AxisMode::Polar) {
    xMode = yMode = AxisMode::Polar;
  } else if (xMode == AxisMode::Smith || yMode == AxisMode::Smith) {
    xMode = yMode = AxisMode::Smith;
  }
  d.x.mode = xMode;
  d.y.mode = yMode;
}

void SetupAxes(Diagram& d, int width, int height, double xMax, double xMin, double yMax, double yMin) {
  const PixelFrame f = FrameOf(width, height);
  assert(f.right > f.left && f.bottom > f.top && "picture too small for a diagram frame");
  d.width = width;
  d.height = height;
  d.x.pixMin = f.left;
  d.x.pixMax = f.right;
  d.y.pixMax = f.top;
  d.y.pixMin = f.bottom;
  d.x.min = xMin;
  d.x.max = xMax;
  d.y.min = yMin;
  d.y.max = yMax;
  RecomputeAxes(d, true, true);
}

void RecomputeXAxis(Diagram& d) { RecomputeAxes(d, true, false); }
void RecomputeYAxis(Diagram& d) { RecomputeAxes(d, false, true); }

void SetAxisCrossing(Diagram& d, double xCross, double yCross) {
  d.x.cross = CrossingOf(d.x, xCross);
  d.y.cross = CrossingOf(d.y, yCross);
}

int XToPixel(const Diagram& d, double x) { return ToPixel(d.x, x); }
int YToPixel(const Diagram& d, double y) { return ToPixel(d.y, y); }
double PixelToX(const Diagram& d, double column) { return FromPixel(d.x, column); }
double PixelToY(const Diagram& d, double row) { return FromPixel(d.y, row); }

bool IsInsideFrame(const Diagram& d, int column, int row) {
  return column >= d.x.pixMin && column <= d.x.pixMax && row >= d.y.pixMax && row <= d.y.pixMin;
}

}  // namespace diagram
