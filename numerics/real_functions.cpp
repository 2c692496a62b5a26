#include "real_functions.h"

#include <cmath>

#include "guards.h"

namespace numerics {
namespace {


}  // namespace

SineCosine SinCosDeg(double degrees) {
  if (!std::isfinite(degrees)) return {NAN, NAN};
  // Reduce to r in [-45, 45] and a quarter turn, so that multiples of 90 give exact zeros and
  // ones instead of 6e-17. The remainder is exact (Sterbenz); the sine and cosine of the small
  // remainder are taken in double, which the stored doubles cannot tell from extended.
  double r = 0;
  long long quarter = 0;
  if (std::fabs(degrees) < 1e15) {
    const double turns = std::nearbyint(degrees / 90);
    r = degrees - 90 * turns;
    quarter = static_cast<long long>(turns);
  } else {
    int q = 0;
    r = std::remquo(degrees, 90.0, &q);
    quarter = q;
  }
  const double radians = r * (3.14159265358979323846 / 180);
  const double s = std::sin(radians);
  const double c = std::cos(radians);
  switch (static_cast<unsigned long long>(quarter) & 3U) {
    case 0: return {s, c};
    case 1: return {c, -s};
    case 2: return {-s, -c};
    default: return {-c, s};
  }
}

double Max(double a, double b) { return b > a ? b : a; }
double Min(double a, double b) { return b < a ? b : a; }
int Max(int a, int b) { return b > a ? b : a; }
int Min(int a, int b) { return b < a ? b : a; }

double ClampValue(double upper, double lower, double x) {
  if (x >= upper) return upper;
  if (x >= lower) return x;
  return lower;  // also for NaN, which fails both comparisons
}

double Log10(double x) {
  if (x == 0) return kLogOfZero;
  return std::log10(std::fabs(x));
}

double Decibels(double powerRatio) { return 10 * Log10(powerRatio); }

double Power(double x, double base) {
  if (base == 0) return 0;
  return static_cast<double>(std::exp(static_cast<Extended>(x) * std::log(std::fabs(static_cast<Extended>(base)))));
}

double ArcSinh(double x) {
  const Extended e = x;
  return static_cast<double>(std::log(std::fabs(std::sqrt(e * e + 1) + e)));
}

double SinDeg(double degrees) { return SinCosDeg(degrees).sine; }

double CosDeg(double degrees) { return SinCosDeg(degrees).cosine; }

Extended ArcTanDeg(Extended t) { return std::atan(t) * Extended{kDegreesPerRadian}; }

int Sign(double x) {
  if (x > 0) return 1;
  if (x < 0) return -1;
  return 0;
}

}  // namespace numerics
