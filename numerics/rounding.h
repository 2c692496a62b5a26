#pragma once

// Round numbers for axis limits and grid steps: one significant digit.
namespace numerics {

// 1 for x <= 1, 2 up to 2, 5 up to 5, else 10.
double Step125(double x);
// 1, 2, 5 or 10 times a power of ten, at least |v|, with the sign of v.
double NiceStep(double v);
// The leading digit rounded up, unless the mantissa is within 1e-5 above a whole number.
double RoundUpOneDigit(double v);
double RoundUpOneDigitB(double v);
// The leading digit rounded down; a whole mantissa (or one less than 1e-4 above) drops by one
// more, so a value that is already round steps down (3 -> 2, 1 -> 0).
double RoundDownOneDigit(double v);
// The leading digit rounded down, but a mantissa within 1e-5 below a whole number rounds up.
double RoundDownOneDigitTight(double v);

}  // namespace numerics
