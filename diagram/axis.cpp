#include "axis.h"

#include <cmath>

#include "numerics/real_functions.h"

namespace diagram {

Axis XAxisOf(const Diagram& d) {
  return {d.xMode, d.xMin, d.xMax, d.logXMin, d.logXMax, d.xLimitCopy, d.xCross, d.xStep, d.xLabelEvery,
          d.pixLeft, d.pixRight};
}

Axis YAxisOf(const Diagram& d) {
  return {d.yMode, d.yMin, d.yMax, d.logYMin, d.logYMax, d.yLimitCopy, d.yCross, d.yStep, d.yLabelEvery,
          d.pixBottom, d.pixTop};
}

void StoreXAxis(Diagram& d, const Axis& a) {
  d.xMode = a.mode;
  d.xMin = a.min;
  d.xMax = a.max;
  d.logXMin = a.logMin;
  d.logXMax = a.logMax;
  d.xLimitCopy = a.limitCopy;
  d.xCross = a.cross;
  d.xStep = a.step;
  d.xLabelEvery = a.labelEvery;
}

void StoreYAxis(Diagram& d, const Axis& a) {
  d.yMode = a.mode;
  d.yMin = a.min;
  d.yMax = a.max;
  d.logYMin = a.logMin;
  d.logYMax = a.logMax;
  d.yLimitCopy = a.limitCopy;
  d.yCross = a.cross;
  d.yStep = a.step;
  d.yLabelEvery = a.labelEvery;
}

double ToPixelExact(const Axis& a, double v) {
  const double t = a.mode == AxisMode::Log ? (numerics::Log10(v) - a.logMin) / (a.logMax - a.logMin)
                                           : (v - a.min) / (a.max - a.min);
  return t * (a.pixMax - a.pixMin) + a.pixMin;
}

int ToPixel(const Axis& a, double v) {
  // Written so that NaN lands on the minimum end as well.
  if (!(v > a.min)) return a.pixMin;
  if (v >= a.max) return a.pixMax;
  return static_cast<int>(std::nearbyint(ToPixelExact(a, v)));
}

double FromPixel(const Axis& a, double pixel) {
  const double t = (pixel - a.pixMin) / (a.pixMax - a.pixMin);
  if (a.mode == AxisMode::Log) return std::pow(10.0, a.logMin + t * (a.logMax - a.logMin));
  return a.min + t * (a.max - a.min);
}

bool IsRoundMode(AxisMode mode) { return mode == AxisMode::Polar || mode == AxisMode::Smith; }

}  // namespace diagram
