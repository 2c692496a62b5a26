#pragma once

#include <cmath>

#include "complex_value.h"
#include "guards.h"
#include "real_functions.h"

// Complex arithmetic in doubles on the Cartesian form, for the conversions and figures that run
// once per frequency point: no form tags and no trigonometry inside the formulas. The guards
// are those of the ComplexValue operations, so the results agree with them.
namespace numerics {

struct Cartesian {
  double re = 0;
  double im = 0;
};

constexpr Cartesian operator+(Cartesian a, Cartesian b) { return {a.re + b.re, a.im + b.im}; }
constexpr Cartesian operator-(Cartesian a, Cartesian b) { return {a.re - b.re, a.im - b.im}; }
constexpr Cartesian operator*(Cartesian a, Cartesian b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
constexpr Cartesian operator*(Cartesian a, double x) { return {a.re * x, a.im * x}; }
constexpr Cartesian operator+(double x, Cartesian a) { return {x + a.re, a.im}; }
constexpr Cartesian operator-(double x, Cartesian a) { return {x - a.re, -a.im}; }
constexpr bool IsZero(Cartesian a) { return a.re == 0 && a.im == 0; }
constexpr Cartesian Conj(Cartesian a) { return {a.re, -a.im}; }
constexpr double Norm(Cartesian a) { return a.re * a.re + a.im * a.im; }
inline double Magnitude(Cartesian a) { return std::sqrt(Norm(a)); }

// 1/z, and kInverseOfZero for z = 0. A quotient a/b is taken as a * Reciprocal(b), which gives
// Div's guard too: a zero divisor divides by kQuotientGuard = 1 / kInverseOfZero. Scaled by the
// larger part (Smith), so that no square overflows or underflows.
inline Cartesian Reciprocal(Cartesian z) {
  static_assert(kInverseOfZero * kQuotientGuard == 1);
  if (IsZero(z)) return {kInverseOfZero, 0};
  if (std::fabs(z.re) >= std::fabs(z.im)) {
    const double r = z.im / z.re;
    const double d = z.re + z.im * r;
    return {1 / d, -r / d};
  }
  const double r = z.re / z.im;
  const double d = z.im + z.re * r;
  return {r / d, -1 / d};
}

// The guards of the conversions and figures, in place.
inline void LiftIfTiny(Cartesian& z) {
  if (Magnitude(z) < kTinyMagnitude) z.re += kTinyMagnitude;
}
inline void ShrinkIfUnit(Cartesian& z) {
  if (std::fabs(Magnitude(z) - 1) < kTinyMagnitude) z = z * kUnitShrinkFactor;
}

// A Polar value costs one sine and cosine, as ToggleForm takes them; a Cartesian one nothing.
inline Cartesian ToCartesian(const ComplexValue& z) {
  if (z.form == ComplexForm::Cartesian) return {z.first, z.second};
  const SineCosine t = SinCosDeg(z.second);
  return {z.first * t.cosine, z.first * t.sine};
}
inline ComplexValue ToValue(Cartesian z) { return MakeCartesian(z.re, z.im); }

}  // namespace numerics
