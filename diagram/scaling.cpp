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
  const double columns = d.pixRight - d.pixLeft;
  const double rows = d.pixBottom - d.pixTop;
  const double xSpan = d.xMax - d.xMin;
  const double ySpan = d.yMax - d.yMin;
  if (columns / xSpan > rows / ySpan) {
    WidenAboutCentre(d.xMin, d.xMax, columns * ySpan / rows);
  } else {
    WidenAboutCentre(d.yMin, d.yMax, rows * xSpan / columns);
  }
  d.xLimitCopy = d.xMax;
  d.yLimitCopy = d.yMax;
}

double CrossingOf(const Axis& a, double wanted) {
  if (a.mode == AxisMode::Log) return a.min;
  if (IsRoundMode(a.mode)) return 0;
  return wanted >= a.min && wanted <= a.max ? wanted : a.min;
}

void RecomputeAxes(Diagram& d, bool x, bool y) {
  Axis xa = XAxisOf(d), ya = YAxisOf(d);
  if (x) ApplyRangeRule(xa);
  if (y) ApplyRangeRule(ya);
  StoreXAxis(d, xa);
  StoreYAxis(d, ya);
  if (IsRoundMode(d.xMode)) FitRoundChart(d);
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
  d.xMode = xMode;
  d.yMode = yMode;
}

void SetupAxes(Diagram& d, int width, int height, double xMax, double xMin, double yMax, double yMin) {
  const PixelFrame f = FrameOf(width, height);
  assert(f.right > f.left && f.bottom > f.top && "picture too small for a diagram frame");
  d.width = width;
  d.height = height;
  d.pixLeft = f.left;
  d.pixRight = f.right;
  d.pixTop = f.top;
  d.pixBottom = f.bottom;
  d.xMin = xMin;
  d.xMax = xMax;
  d.yMin = yMin;
  d.yMax = yMax;
  RecomputeAxes(d, true, true);
}

void RecomputeXAxis(Diagram& d) { RecomputeAxes(d, true, false); }
void RecomputeYAxis(Diagram& d) { RecomputeAxes(d, false, true); }

void SetAxisCrossing(Diagram& d, double xCross, double yCross) {
  d.xCross = CrossingOf(XAxisOf(d), xCross);
  d.yCross = CrossingOf(YAxisOf(d), yCross);
}

int XToPixel(const Diagram& d, double x) { return ToPixel(XAxisOf(d), x); }
int YToPixel(const Diagram& d, double y) { return ToPixel(YAxisOf(d), y); }
double PixelToX(const Diagram& d, double column) { return FromPixel(XAxisOf(d), column); }
double PixelToY(const Diagram& d, double row) { return FromPixel(YAxisOf(d), row); }

bool IsInsideFrame(const Diagram& d, int column, int row) {
  return column >= d.pixLeft && column <= d.pixRight && row >= d.pixTop && row <= d.pixBottom;
}

}  // namespace diagram
