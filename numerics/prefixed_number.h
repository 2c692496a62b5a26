#pragma once

#include <string>
#include <string_view>

// Numbers with an optional one-letter unit prefix, as users type them and as the data files'
// frequency column holds them ("  2.0G", "  100p", "1,5k"), and the two display formatters.
namespace numerics {

inline constexpr int kParseDigitsRead = 0;
inline constexpr int kParseNoDigits = 1;

struct ParsedValue {
  double value = 0;
  int status = kParseNoDigits;  // kParseDigitsRead when at least one digit was read
};

// Never fails: text without digits gives status kParseNoDigits, trailing text is ignored.
// Only nine fractional digits count (the fraction divisor is a wrapping 32-bit integer).
ParsedValue ParseValueText(std::string_view text);

// ParseValueText plus the length units "mil" and "miles" (result in metres); no status.
double ParseEntryText(std::string_view text);

// The non-blank characters among the first 79.
std::string StripBlanks(std::string_view text);

// Prefix formatter: 0.1 to 999 without a prefix, 0.05 as "50.00m", 2e9 as "2.0G".
std::string FormatPrefixed(int decimals, double value);

// Fixed-width prefix formatter of entry fields and files: 1 to 999 carry the suffix "0",
// 0.1 to 0.999 fall under "m".
std::string FormatPrefixedField(int width, int decimals, double value);

// Engineering exponent formatter: suffixes "E-27" to "E+30" in steps of three.
std::string FormatExponent(int width, int decimals, double value);

}  // namespace numerics
