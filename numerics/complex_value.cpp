#include "complex_value.h"

#include <cmath>

#include "extended.h"
#include "guards.h"
#include "real_functions.h"

namespace numerics {
namespace {

bool IsPolar(const ComplexValue& z) { return z.form == ComplexForm::Polar; }

ComplexValue PolarResult(Extended magnitude, Extended angle) {
  return MakePolar(static_cast<double>(magnitude), FoldPolarAngle(static_cast<double>(angle)));
}

// Angle of (x, y) by quadrant, as the conversion table of the program defines it; the
// quotient's arctangent is taken in double, which is what the stored angle keeps.
double CartesianAngle(double x, double y) {
  if (y == 0) return x < 0 ? 180 : 0;
  if (x == 0) return y < 0 ? -90 : 90;
  const double a = std::atan(y / x) * kDegreesPerRadian;
  if (x > 0) return a;
  return y < 0 ? a - 180 : a + 180;
}

}  // namespace

double FoldPolarAngle(double degrees) {
  if (degrees >= 360) return degrees - 360;
  if (degrees < -360) return degrees + 360;
  return degrees;
}

ComplexValue MakeCartesian(double re, double im) { return {ComplexForm::Cartesian, re, im}; }
ComplexValue MakePolar(double magnitude, double angleDegrees) {
  return {ComplexForm::Polar, magnitude, angleDegrees};
}

void ToggleForm(ComplexValue& z) {
  if (IsPolar(z)) {
    const SineCosine t = SinCosDeg(z.second);
    z = MakeCartesian(z.first * t.cosine, z.first * t.sine);
    return;
  }
  const Extended x = z.first;
  const Extended y = z.second;
  z = PolarResult(std::sqrt(x * x + y * y), CartesianAngle(z.first, z.second));
}

ComplexValue AsCartesian(ComplexValue z) {
  if (IsPolar(z)) ToggleForm(z);
  return z;
}

ComplexValue AsPolar(ComplexValue z) {
  if (!IsPolar(z)) ToggleForm(z);
  return z;
}

void SetMagnitude(ComplexValue& z, double magnitude) {
  z = AsPolar(z);
  z.first = magnitude;
}

double Re(const ComplexValue& z) {
  if (!IsPolar(z)) return z.first;
  return z.first * CosDeg(z.second);
}

double Im(const ComplexValue& z) {
  if (!IsPolar(z)) return z.second;
  return z.first * SinDeg(z.second);
}

double Abs(const ComplexValue& z) {
  if (IsPolar(z)) return z.first;
  const Extended x = z.first;
  const Extended y = z.second;
  return static_cast<double>(std::sqrt(x * x + y * y));
}

double AbsSqr(const ComplexValue& z) {
  const Extended a = z.first;
  const Extended b = z.second;
  if (IsPolar(z)) return static_cast<double>(a * a);
  return static_cast<double>(a * a + b * b);
}

double AngleOf(const ComplexValue& z) { return AsPolar(z).second; }

ComplexValue Conj(ComplexValue z) {
  z.second = -z.second;
  return z;
}

ComplexValue Add(const ComplexValue& a, const ComplexValue& b) {
  const ComplexValue x = AsCartesian(a);
  const ComplexValue y = AsCartesian(b);
  return MakeCartesian(static_cast<double>(Extended{x.first} + y.first),
                       static_cast<double>(Extended{x.second} + y.second));
}

ComplexValue Sub(const ComplexValue& a, const ComplexValue& b) {
  const ComplexValue x = AsCartesian(a);
  const ComplexValue y = AsCartesian(b);
  return MakeCartesian(static_cast<double>(Extended{x.first} - y.first),
                       static_cast<double>(Extended{x.second} - y.second));
}

ComplexValue Mul(const ComplexValue& a, const ComplexValue& b) {
  if (IsPolar(a)) {
    const ComplexValue y = AsPolar(b);
    return PolarResult(Extended{a.first} * y.first, Extended{a.second} + y.second);
  }
  const ComplexValue y = AsCartesian(b);
  const Extended ar = a.first, ai = a.second, br = y.first, bi = y.second;
  return MakeCartesian(static_cast<double>(ar * br - ai * bi), static_cast<double>(ar * bi + ai * br));
}

ComplexValue Div(const ComplexValue& a, const ComplexValue& b) {
  const ComplexValue x = AsPolar(a);
  const ComplexValue y = AsPolar(b);
  const Extended divisor = y.first == 0 ? Extended{kQuotientGuard} : Extended{y.first};
  return PolarResult(x.first / divisor, Extended{x.second} - y.second);
}

ComplexValue Inverse(const ComplexValue& z) {
  const ComplexValue p = AsPolar(z);
  const Extended magnitude = p.first == 0 ? Extended{kInverseOfZero} : 1 / Extended{p.first};
  return PolarResult(magnitude, -Extended{p.second});
}

ComplexValue Sqrt(const ComplexValue& z) {
  const ComplexValue p = AsPolar(z);
  return PolarResult(std::sqrt(Extended{p.first}), Extended{p.second} / 2);
}

ComplexValue Ln(const ComplexValue& z) {
  const ComplexValue p = AsPolar(z);
  return MakeCartesian(static_cast<double>(std::log(Extended{p.first})), p.second);
}

ComplexValue ACosh(const ComplexValue& z) {
  const ComplexValue root = Sqrt(AddReal(Mul(z, z), -1));
  return Ln(Add(z, root));
}

ComplexValue Scale(const ComplexValue& z, double x) {
  if (!IsPolar(z)) {
    return MakeCartesian(static_cast<double>(Extended{z.first} * x), static_cast<double>(Extended{z.second} * x));
  }
  const bool positive = x > 0;
  return PolarResult(Extended{z.first} * std::fabs(x), Extended{z.second} + (positive ? 0 : 180));
}

ComplexValue AddReal(const ComplexValue& z, double x) {
  const ComplexValue c = AsCartesian(z);
  return MakeCartesian(static_cast<double>(Extended{x} + c.first), c.second);
}

ComplexValue RealMinus(double x, const ComplexValue& z) {
  const ComplexValue c = AsCartesian(z);
  return MakeCartesian(static_cast<double>(Extended{x} - c.first), -c.second);
}

void LiftIfTiny(ComplexValue& z) {
  if (Abs(z) < kTinyMagnitude) z = AddReal(z, kTinyMagnitude);
}

void ShrinkIfUnit(ComplexValue& z) {
  if (std::fabs(Abs(z) - 1) < kTinyMagnitude) z = Scale(z, kUnitShrinkFactor);
}

}  // namespace numerics
