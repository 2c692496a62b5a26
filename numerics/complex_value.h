#pragma once

#include <cstdint>

// The one complex type of the program. It remembers the form it was made in, so measured
// magnitude/angle pairs are used without needless conversion. Angles are degrees.
namespace numerics {

enum class ComplexForm : std::uint8_t { Cartesian = 0, Polar = 1 };

struct ComplexValue {
  ComplexForm form = ComplexForm::Cartesian;
  double first = 0;   // real part, or magnitude
  double second = 0;  // imaginary part, or angle in degrees
};

ComplexValue MakeCartesian(double re, double im);
ComplexValue MakePolar(double magnitude, double angleDegrees);

// Converts z to Polar if needed, then sets its magnitude.
void SetMagnitude(ComplexValue& z, double magnitude);
// Cartesian to Polar or Polar to Cartesian, in place.
void ToggleForm(ComplexValue& z);

ComplexValue AsCartesian(ComplexValue z);
ComplexValue AsPolar(ComplexValue z);

double Re(const ComplexValue& z);
double Im(const ComplexValue& z);
double Abs(const ComplexValue& z);
double AbsSqr(const ComplexValue& z);
double AngleOf(const ComplexValue& z);  // degrees, through the Polar form

ComplexValue Conj(ComplexValue z);
ComplexValue Add(const ComplexValue& a, const ComplexValue& b);
ComplexValue Sub(const ComplexValue& a, const ComplexValue& b);
// b is taken in a's form; the result has a's form.
ComplexValue Mul(const ComplexValue& a, const ComplexValue& b);
// Polar result; a zero divisor magnitude divides by kQuotientGuard instead.
ComplexValue Div(const ComplexValue& a, const ComplexValue& b);
// Polar result; the inverse of zero has magnitude kInverseOfZero.
ComplexValue Inverse(const ComplexValue& z);
ComplexValue Sqrt(const ComplexValue& z);
// Cartesian (ln|z|, angle in degrees): the imaginary part stays in degrees.
ComplexValue Ln(const ComplexValue& z);
ComplexValue ACosh(const ComplexValue& z);
// Cartesian: both parts times x. Polar: magnitude times |x|, and 180 degrees added when x is
// not positive (also for x = 0 and NaN).
ComplexValue Scale(const ComplexValue& z, double x);
ComplexValue AddReal(const ComplexValue& z, double x);   // (x + re, im)
ComplexValue RealMinus(double x, const ComplexValue& z); // (x - re, -im)

// Guards of the conversions; they change the value in place.
void LiftIfTiny(ComplexValue& z);    // |z| < 1e-8: add 1e-8 to the real part
void ShrinkIfUnit(ComplexValue& z);  // ||z| - 1| < 1e-8: scale by 0.99999999

// Folds a Polar angle once into [-360, 360).
double FoldPolarAngle(double degrees);

}  // namespace numerics
