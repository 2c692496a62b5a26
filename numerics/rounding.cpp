#include "rounding.h"

#include <cmath>

#include "extended.h"

namespace numerics {
namespace {

// |v| = mantissa * 10^exponent with 1 <= mantissa < 10.
struct Decomposed {
  Extended mantissa = 0;
  int exponent = 0;
  bool negative = false;
};

Decomposed Decompose(double v) {
  Decomposed d{std::fabs(Extended{v}), 0, v < 0};
  while (d.mantissa >= 10) {
    d.mantissa /= 10;
    ++d.exponent;
  }
  while (d.mantissa < 1) {
    d.mantissa *= 10;
    --d.exponent;
  }
  return d;
}

// digit * 10^exponent with the sign, through exact powers of ten.
double Compose(Extended digit, const Decomposed& d) {
  Extended power = 1;
  for (int i = 0; i < std::abs(d.exponent); ++i) power *= 10;
  const Extended magnitude = d.exponent >= 0 ? digit * power : digit / power;
  return static_cast<double>(d.negative ? -magnitude : magnitude);
}

// Applies a leading-digit rule; 0, infinities and NaN pass through unchanged.
template <typename Rule>
double RoundLeadingDigit(double v, Rule rule) {
  if (v == 0 || !std::isfinite(v)) return v;
  const Decomposed d = Decompose(v);
  return Compose(rule(d.mantissa), d);
}

}  // namespace

double Step125(double x) {
  if (x <= 1) return 1;
  if (x <= 2) return 2;
  if (x <= 5) return 5;
  return 10;
}

double NiceStep(double v) {
  return RoundLeadingDigit(v, [](Extended m) { return Extended{Step125(static_cast<double>(m))}; });
}

double RoundUpOneDigit(double v) {
  return RoundLeadingDigit(v, [](Extended m) { return std::nearbyint(m + 0.49999L); });
}

double RoundUpOneDigitB(double v) { return RoundUpOneDigit(v); }

double RoundDownOneDigit(double v) {
  return RoundLeadingDigit(v, [](Extended m) { return std::nearbyint(m - 0.5001L); });
}

double RoundDownOneDigitTight(double v) {
  return RoundLeadingDigit(v, [](Extended m) { return std::nearbyint(m - 0.49999L); });
}

}  // namespace numerics
