#pragma once

// Fixed small constants and fall-back values that keep every division and logarithm of the
// numeric code finite; no routine here reports an error.
namespace numerics {

inline constexpr double kTinyMagnitude = 1e-8;        // lift of near-zero, shrink of unit magnitudes
inline constexpr double kUnitShrinkFactor = 0.99999999;
inline constexpr double kRatioGuard = 1e-18;          // denominator of Mason's U in ratio form
inline constexpr double kQuotientGuard = 1e-20;       // divisor used instead of a zero magnitude
inline constexpr double kTinyDifference = 1e-30;      // lower bound of |D1|, |D2| of the circles
inline constexpr double kInverseOfZero = 1e20;
inline constexpr double kStabilityCeiling = 1e12;     // upper bound of k
inline constexpr double kLogOfZero = -1e300;

}  // namespace numerics
