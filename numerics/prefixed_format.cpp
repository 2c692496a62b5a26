#include <cmath>
#include <cstdio>
#include <string>

#include "extended.h"
#include "prefixed_number.h"
#include "real_functions.h"
#include "text_functions.h"

namespace numerics {
namespace {

struct PrefixRange {
  int lowest;
  int highest;
  const char* text;
};

// Prefix by the decimal exponent e of the value: the display formatter keeps 0.1 to 999 free
// of a prefix, so its groups below one are shifted by one against the field formatter's.
constexpr PrefixRange kDisplayPrefixes[] = {
    {-19, -17, "a"}, {-16, -14, "f"}, {-13, -11, "p"}, {-10, -8, "n"}, {-7, -5, "u"}, {-4, -2, "m"},
    {-1, 2, ""},     {3, 5, "k"},     {6, 8, "M"},     {9, 11, "G"},   {12, 14, "T"}};

constexpr PrefixRange kFieldSuffixes[] = {
    {-18, -16, "a"}, {-15, -13, "f"}, {-12, -10, "p"}, {-9, -7, "n"}, {-6, -4, "u"}, {-3, -1, "m"},
    {0, 2, "0"},     {3, 5, "k"},     {6, 8, "M"},     {9, 11, "G"},  {12, 14, "T"}};

template <std::size_t N>
const char* LookUp(const PrefixRange (&table)[N], int e) {
  for (const PrefixRange& r : table) {
    if (e >= r.lowest && e <= r.highest) return r.text;
  }
  return "";
}

int RoundToInt(Extended x) { return static_cast<int>(std::nearbyint(x)); }

// Exact powers of ten: dividing by 10^s for s >= 0 and multiplying by 10^-s otherwise keeps
// the scaled value correctly rounded.
Extended ScaleByPowerOfTen(double value, int s) {
  Extended p = 1;
  for (int i = 0; i < (s < 0 ? -s : s); ++i) p *= 10;
  return s >= 0 ? Extended{value} / p : Extended{value} * p;
}

// Scale exponent of the engineering groups: e < 1 counts down with truncating division.
int GroupScale(int e, int shiftBelowOne) {
  return e < 1 ? ((e - shiftBelowOne) / 3) * 3 : (e / 3) * 3;
}

std::string ZeroText(int width, int decimals) {
  const int blanks = width - decimals - 2;
  return std::string(static_cast<std::size_t>(blanks > 0 ? blanks : 0), ' ') + "0." +
         std::string(static_cast<std::size_t>(decimals > 0 ? decimals : 0), '0');
}

std::string ScientificText(double value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%6.1E", value);
  return buffer;
}

std::string ExponentSuffix(int s) {
  return s == 0 ? std::string("E+0") : (s > 0 ? "E+" : "E-") + std::to_string(s < 0 ? -s : s);
}

// The engineering exponent scheme for decimal logarithms in [lowestLog, logLimit).
std::string ExponentText(int width, int decimals, double value, double lowestLog, double logLimit) {
  if (decimals < 1) decimals = 1;
  const double L = Log10(std::fabs(value));
  std::string text;
  if (L >= lowestLog && L < logLimit) {
    const int s = GroupScale(RoundToInt(Extended{L} - 0.4999999999L), 2);
    text = FloatText(width, decimals, static_cast<double>(ScaleByPowerOfTen(value, s))) + ExponentSuffix(s);
  } else {
    text = ScientificText(value);
  }
  if (std::fabs(value) < 1e-300) text = ZeroText(width, decimals);
  return text;
}

}  // namespace

std::string FormatExponent(int width, int decimals, double value) {
  return ExponentText(width, decimals, value, -27, 31);
}

std::string FormatPrefixed(int decimals, double value) {
  const double L = Log10(std::fabs(value));
  if (!(L >= -19 && L < 13)) {
    if (std::fabs(value) < 1e-300) return "0.0";
    return ExponentText(3, decimals, value, -30, 33);
  }
  const int e = RoundToInt(Extended{L} - 0.49999999L);
  const double scaled = static_cast<double>(ScaleByPowerOfTen(value, GroupScale(e, 1)));
  if (std::fabs(scaled) < 1e-300) return "0.0";
  return FloatText(3, decimals, scaled) + LookUp(kDisplayPrefixes, e);
}

std::string FormatPrefixedField(int width, int decimals, double value) {
  const double L = Log10(std::fabs(value));
  std::string text;
  bool suffixChosen = false;
  if (L >= -18 && L <= 13) {
    const int e = RoundToInt(Extended{L} - 0.4999999999L);
    const double scaled = static_cast<double>(ScaleByPowerOfTen(value, GroupScale(e, 2)));
    text = FloatText(width, decimals, scaled) + LookUp(kFieldSuffixes, e);
    suffixChosen = true;
  } else {
    text = FormatExponent(width - 1, decimals - 1, value);
  }
  if (std::fabs(value) < 1e-300) {
    text = ZeroText(width, decimals);
    suffixChosen = false;
  }
  if (!suffixChosen) text += '0';
  return text;
}

}  // namespace numerics
