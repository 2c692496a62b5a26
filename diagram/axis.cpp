#include "axis.h"

#include <cmath>

#include "numerics/real_functions.h"

namespace diagram {

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
