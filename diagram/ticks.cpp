#include "ticks.h"

#include <cmath>

namespace diagram {
namespace {

// A degenerate step (zero, NaN, or tiny against the range) must not stall a redraw.
constexpr int kMaxMarks = 2000;

bool UsableStep(const Axis& a, double step) {
  return step > 0 && std::isfinite(step) && (a.max - a.min) / step < kMaxMarks;
}

void AddMultiples(std::vector<double>& out, double from, double step, int firstK, double below, double above) {
  for (int k = firstK; k < kMaxMarks; ++k) {
    const double v = from + k * step;
    if (!(v < below)) break;
    out.push_back(v);
  }
  for (int k = 1; k < kMaxMarks; ++k) {
    const double v = from - k * step;
    if (!(v > above)) break;
    out.push_back(v);
  }
}

std::vector<double> Decades(double from, double upTo) {
  std::vector<double> out;
  if (!(from > 0)) return out;
  for (double d = from; d <= upTo * (1 + 1e-12) && out.size() < kMaxMarks; d *= 10) out.push_back(d);
  return out;
}

}  // namespace

std::vector<double> TickValues(const Axis& a, double step) {
  std::vector<double> out;
  if (a.mode == AxisMode::Log) {
    for (const double d : Decades(a.cross, a.max)) {
      if (d < a.max) out.push_back(d);
    }
    return out;
  }
  if (UsableStep(a, step)) AddMultiples(out, a.cross, step, 0, a.max - step, a.min);
  return out;
}

std::vector<double> LabelValues(const Axis& a) {
  if (a.mode == AxisMode::Log) return Decades(a.cross, a.max / 10);
  std::vector<double> out;
  const double spacing = a.labelEvery * a.step;
  const double slack = 1e-9 * (a.max - a.min);  // keeps a label that lands on max or min
  if (UsableStep(a, spacing)) AddMultiples(out, a.cross, spacing, 0, a.max + slack, a.min - slack);
  return out;
}

std::vector<double> GridValues(const Axis& a, double spacing) {
  std::vector<double> out;
  if (a.mode == AxisMode::Log) {
    for (const double d : Decades(a.cross, a.max)) {
      if (d > a.cross) out.push_back(d);
      for (int m = 2; m <= 9; ++m) {
        if (m * d < a.max) out.push_back(m * d);
      }
    }
    return out;
  }
  if (a.mode == AxisMode::Linear && UsableStep(a, spacing)) {
    AddMultiples(out, a.cross, spacing, 1, a.max, a.min);
  }
  return out;
}

}  // namespace diagram
