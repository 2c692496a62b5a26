#include "autoscale.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

#include "axis.h"
#include "numerics/real_functions.h"
#include "numerics/rounding.h"

namespace diagram {
namespace {

using numerics::NiceStep;
using numerics::RoundDownOneDigit;
using numerics::RoundUpOneDigit;

// Loads the axis with the data's extremes; false when there are none.
bool TakeExtremes(const Diagram& d, std::span<const double> values, int count, Axis& a) {
  assert(count >= 0 && static_cast<std::size_t>(count) <= values.size());
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (int i = 0; i < count; ++i) {
    const double v = values[static_cast<std::size_t>(i)];
    if (v < low) low = v;
    if (v > high) high = v;
  }
  if (!(low <= high) || !std::isfinite(low) || !std::isfinite(high)) return false;
  a.min = low;
  a.max = high;
  return true;
}

void ScaleSymmetric(Axis& a) {
  const double r = RoundUpOneDigit(1.001 * std::max(std::fabs(a.min), std::fabs(a.max)));
  a.min = -r;
  a.max = r;
  a.cross = 0;
}

void ScaleLog(Axis& a) {
  if (a.min <= 0) a.min = a.max / 1000;
  a.cross = a.min;
}

void FinishAxis(Axis& a) {
  a.step = NiceStep((a.max - a.min) / 30);
  a.labelEvery = 5;
  if (a.mode == AxisMode::Log) {
    a.logMin = numerics::Log10(a.min);
    a.logMax = numerics::Log10(a.max);
  }
}

void ScaleLinearX(Axis& a) {
  a.cross = a.max >= 0 ? 0 : NiceStep(a.min / 2);
  a.min = std::min(NiceStep(a.min / 2), 0.0);
  a.max = RoundUpOneDigit(a.max);
}

void ScaleLinearY(Axis& a) {
  // A negative minimum is rounded away from zero so that the lowest value stays on the grid.
  const double lower = a.min >= 0 ? RoundDownOneDigit(a.min / 2) : RoundUpOneDigit(a.min);
  a.min = std::min(0.0, lower);
  if (a.max >= 0) {
    a.max = RoundUpOneDigit(1.001 * a.max);
  } else {
    a.max = std::fabs(a.min) <= 1 ? RoundDownOneDigit(0.9 * a.max) : 0;
  }
  a.cross = a.min <= 0 && a.max >= 0 ? 0 : a.min;
}

void ScaleByMode(Axis& a, void (*linearRule)(Axis&)) {
  switch (a.mode) {
    case AxisMode::Linear:
      linearRule(a);
      break;
    case AxisMode::Log:
      ScaleLog(a);
      break;
    case AxisMode::Polar:
    case AxisMode::Smith:
      ScaleSymmetric(a);
      break;
  }
  FinishAxis(a);
}

}  // namespace

void AutoscaleX(Diagram& d, std::span<const double> values, int count) {
  if (!TakeExtremes(d, values, count, d.x)) return;
  ScaleByMode(d.x, ScaleLinearX);
}

void AutoscaleY(Diagram& d, std::span<const double> values, int count) {
  if (!TakeExtremes(d, values, count, d.y)) return;
  ScaleByMode(d.y, ScaleLinearY);
}

}  // namespace diagram
