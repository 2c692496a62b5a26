#include "spline.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <vector>

#include "numerics/extended.h"

namespace diagram {
namespace {

using numerics::Extended;

// ln of a zero value would be -infinity and spoil every coefficient; this keeps it finite.
constexpr double kSmallestLogArgument = 1e-300;
// Elimination steps with a smaller multiplier change nothing and are skipped.
constexpr Extended kNegligiblePivotRatio = 1e-20L;

struct Cubic {
  Extended a, b, c, d;  // a + b t + c t^2 + d t^3 with t = x - x_j
};

void ToLog(std::span<double> v, int last) {
  for (int i = 0; i <= last; ++i) {
    double& value = v[static_cast<std::size_t>(i)];
    value = std::log(std::max(std::fabs(value), kSmallestLogArgument));
  }
}

void FromLog(std::span<double> v, int last) {
  for (int i = 0; i <= last; ++i) v[static_cast<std::size_t>(i)] = std::exp(v[static_cast<std::size_t>(i)]);
}

// Natural cubic spline (zero second derivative at both ends) through (x_i, y_i), i = 0..n.
std::vector<Cubic> NaturalSpline(const std::vector<Extended>& x, const std::vector<Extended>& y) {
  const std::size_t n = x.size() - 1;
  std::vector<Extended> h(n), diag(n + 1, 1), rhs(n + 1, 0), c(n + 1, 0);
  for (std::size_t i = 0; i < n; ++i) h[i] = x[i + 1] - x[i];
  for (std::size_t i = 1; i < n; ++i) {
    diag[i] = 2 * (h[i - 1] + h[i]);
    rhs[i] = 3 * ((y[i + 1] - y[i]) / h[i] - (y[i] - y[i - 1]) / h[i - 1]);
  }
  for (std::size_t i = 2; i < n; ++i) {
    const Extended ratio = h[i - 1] / diag[i - 1];
    if (std::fabs(ratio) <= kNegligiblePivotRatio) continue;
    diag[i] -= ratio * h[i - 1];
    rhs[i] -= ratio * rhs[i - 1];
  }
  for (std::size_t i = n - 1; i >= 1; --i) c[i] = (rhs[i] - h[i] * c[i + 1]) / diag[i];
  std::vector<Cubic> cubics(n);
  for (std::size_t j = 0; j < n; ++j) {
    cubics[j] = {y[j], (y[j + 1] - y[j]) / h[j] - h[j] * (2 * c[j] + c[j + 1]) / 3, c[j],
                 (c[j + 1] - c[j]) / (3 * h[j])};
  }
  return cubics;
}

std::vector<Extended> Copy(std::span<const double> v, int last) {
  return {v.begin(), v.begin() + last + 1};
}

}  // namespace

void SplineResample(std::span<double> x, std::span<double> y, int& lastIndex, bool logX, bool logY, int maxPoints) {
  assert(x.size() >= kSplineCapacity && y.size() >= kSplineCapacity);
  assert(lastIndex <= kSplineMaxPoints);
  const int n = lastIndex;
  if (n < 4) return;
  const int k = std::min(maxPoints, kSplineMaxPoints) / n;
  if (k < 2) return;
  if (logX) ToLog(x, n);
  if (logY) ToLog(y, n);
  const std::vector<Extended> xs = Copy(x, n), ys = Copy(y, n);
  const std::vector<Cubic> cubics = NaturalSpline(xs, ys);
  for (int j = 0; j < n; ++j) {
    const Cubic& p = cubics[static_cast<std::size_t>(j)];
    const Extended width = xs[static_cast<std::size_t>(j) + 1] - xs[static_cast<std::size_t>(j)];
    for (int m = 0; m < k; ++m) {
      const Extended t = width * m / k;
      const auto index = static_cast<std::size_t>(j * k + m);
      x[index] = static_cast<double>(xs[static_cast<std::size_t>(j)] + t);
      y[index] = static_cast<double>(p.a + t * (p.b + t * (p.c + t * p.d)));
    }
  }
  lastIndex = n * k;
  x[static_cast<std::size_t>(lastIndex)] = static_cast<double>(xs.back());
  y[static_cast<std::size_t>(lastIndex)] = static_cast<double>(ys.back());
  if (logX) FromLog(x, lastIndex);
  if (logY) FromLog(y, lastIndex);
}

}  // namespace diagram
