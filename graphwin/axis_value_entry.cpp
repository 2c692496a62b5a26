#include "axis_value_entry.h"

#include <algorithm>
#include <cmath>

#include "numerics/prefixed_number.h"
#include "numerics/rounding.h"

namespace graphwin {
namespace {

constexpr double kSpinFactor = 1.01;
// A spin from 0 starts at a thousandth of the bound on that side.
constexpr double kSpinStartFraction = 1000;

std::string ShownText(double value) { return " " + numerics::FormatPrefixedField(7, 2, value); }
std::string SpunText(double value) { return " " + numerics::FormatPrefixedField(6, 1, value); }

}  // namespace

void AxisValueEntry::SetBounds(double lower, double upper) {
  lower_ = lower;
  upper_ = upper;
}

std::string AxisValueEntry::Show() {
  kept_ = value_;
  return ShownText(value_);
}

bool AxisValueEntry::Change(std::string_view text) {
  value_ = numerics::ParseValueText(text).value;
  const bool beyond = value_ < lower_ || value_ > upper_;
  value_ = std::clamp(value_, lower_, upper_);
  return beyond;
}

std::string AxisValueEntry::SpinUp() {
  value_ = numerics::RoundUpOneDigit(value_ != 0 ? kSpinFactor * value_ : upper_ / kSpinStartFraction);
  return SpunText(value_);
}

std::string AxisValueEntry::SpinDown() {
  if (value_ != 0) {
    value_ = numerics::RoundDownOneDigitTight(value_ / kSpinFactor);
  } else if (lower_ >= 0) {
    value_ = numerics::RoundDownOneDigitTight(upper_ / kSpinStartFraction);
  } else {
    value_ = -numerics::RoundDownOneDigitTight(std::fabs(lower_) / kSpinStartFraction);
  }
  return SpunText(value_);
}

void AxisValueEntry::Ok(std::string_view text) {
  value_ = std::clamp(numerics::ParseValueText(text).value, lower_, upper_);
}

std::string AxisValueEntry::Cancel() {
  value_ = kept_;
  return ShownText(value_);
}

}  // namespace graphwin
