#include "sweep_angles.h"

#include <cmath>

namespace numerics {
namespace {

double Unwrap(double a, double prev) {
  const double d = std::fabs(a - prev);
  const double dp = std::fabs(a - prev + 360);
  const double dm = std::fabs(a - prev - 360);
  if (dp < d) a += 360;
  if (dm < d) a -= 360;
  return a;
}

}  // namespace

double FoldOnce(double angle) {
  if (angle > 180) return angle - 360;
  if (angle < -180) return angle + 360;
  return angle;
}

void UnwrapAgainst(SParameters& point, const SParameters& previous) {
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 2; ++column) {
      double& angle = point.s[row][column].second;
      angle = Unwrap(angle, previous.s[row][column].second);
    }
  }
}

}  // namespace numerics
