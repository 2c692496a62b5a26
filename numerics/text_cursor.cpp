#include "text_cursor.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace numerics {
namespace {

bool IsLineBreakAt(std::string_view text, std::size_t pos) {
  return text[pos] == '\n' || (text[pos] == '\r' && pos + 1 < text.size() && text[pos + 1] == '\n');
}

bool IsSeparator(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

constexpr double kExactPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                        1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Shape of a decimal number: optional sign, digits with at most one point (at least one
// digit), optional exponent with digits. Up to 19 significant digits are gathered.
struct DecimalShape {
  bool valid = false;
  bool negative = false;
  bool exact = true;  // all significant digits fit the 64-bit mantissa
  std::uint64_t mantissa = 0;
  long long exponent = 0;
};

// Below this a mantissa takes one more digit without overflow: 19 significant digits at most.
constexpr std::uint64_t kMantissaDigitLimit = 1000000000000000000ULL;

// Accumulates the digits from i on; fraction digits lower the exponent, digits beyond the
// mantissa's reach raise it (integer part) or are dropped (fraction), and only zeros stay exact.
struct MantissaAccumulator {
  std::uint64_t mantissa = 0;
  long long exponent = 0;
  bool exact = true;

  std::size_t Digits(std::string_view t, std::size_t i, bool fraction) {
    for (; i < t.size(); ++i) {
      const unsigned digit = static_cast<unsigned char>(t[i]) - '0';
      if (digit > 9) break;
      if (mantissa < kMantissaDigitLimit) {
        mantissa = mantissa * 10 + digit;
        exponent -= fraction;
      } else {
        exact = exact && digit == 0;
        exponent += !fraction;
      }
    }
    return i;
  }
};

void ScanMantissa(std::string_view t, std::size_t& index, DecimalShape& d, bool& anyDigit) {
  MantissaAccumulator acc;
  std::size_t i = acc.Digits(t, index, false);
  std::size_t digits = i - index;
  if (i < t.size() && t[i] == '.') {
    const std::size_t fractionStart = i + 1;
    i = acc.Digits(t, fractionStart, true);
    digits += i - fractionStart;
  }
  anyDigit = digits > 0;
  index = i;
  d.mantissa = acc.mantissa;
  d.exponent = acc.exponent;
  d.exact = acc.exact;
}

// Scans from i to the end of the number; i is left on the first character after it.
DecimalShape ScanDecimal(std::string_view t, std::size_t& i) {
  DecimalShape d;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) d.negative = t[i++] == '-';
  bool anyDigit = false;
  ScanMantissa(t, i, d, anyDigit);
  if (!anyDigit) return d;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    ++i;
    bool negativeExponent = false;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) negativeExponent = t[i++] == '-';
    if (i == t.size() || !IsDigit(t[i])) return d;
    long long e = 0;
    for (; i < t.size() && IsDigit(t[i]); ++i) e = e < 100000 ? e * 10 + (t[i] - '0') : e;
    d.exponent += negativeExponent ? -e : e;
  }
  d.valid = true;
  return d;
}

// Short numbers are converted exactly by one multiplication or division of exact doubles;
// the rest go through the C library.
double ToDouble(const DecimalShape& d, std::string_view text) {
  if (d.exact && d.mantissa < (std::uint64_t{1} << 53) && d.exponent >= -22 && d.exponent <= 22) {
    const double m = static_cast<double>(d.mantissa);
    const double value = d.exponent < 0 ? m / kExactPowersOfTen[-d.exponent] : m * kExactPowersOfTen[d.exponent];
    return d.negative ? -value : value;
  }
  return std::strtod(std::string(text).c_str(), nullptr);
}

}  // namespace

std::optional<double> ParseRealToken(std::string_view token) {
  std::size_t end = 0;
  const DecimalShape d = ScanDecimal(token, end);
  if (!d.valid || end != token.size()) return std::nullopt;
  return ToDouble(d, token);
}

bool IsRealToken(std::string_view token) {
  std::size_t end = 0;
  return ScanDecimal(token, end).valid && end == token.size();
}

bool TextCursor::AtEndOfLine() const { return AtEndOfFile() || IsLineBreakAt(text_, pos_); }

std::optional<char> TextCursor::ReadChar() {
  if (AtEndOfLine()) return std::nullopt;
  return text_[pos_++];
}

void TextCursor::ConsumeLineBreak() {
  if (AtEndOfFile()) return;
  if (text_[pos_] == '\r' && pos_ + 1 < text_.size() && text_[pos_ + 1] == '\n') pos_ += 2;
  else if (text_[pos_] == '\n') pos_ += 1;
}

void TextCursor::SkipLine() {
  while (!AtEndOfLine()) ++pos_;
  ConsumeLineBreak();
}

std::string_view TextCursor::ReadLineView() {
  const std::size_t start = pos_;
  while (!AtEndOfLine()) ++pos_;
  const std::string_view line = text_.substr(start, pos_ - start);
  ConsumeLineBreak();
  return line;
}

std::string TextCursor::ReadLine() { return std::string(ReadLineView()); }

bool TextCursor::ScanReal(double& value) {
  while (pos_ < text_.size() && IsSeparator(text_[pos_])) ++pos_;
  value = 0;
  if (pos_ >= text_.size()) return true;
  // A number as the runtime reads it; words such as "inf" and "nan" are not numbers here.
  std::size_t end = pos_;
  const DecimalShape d = ScanDecimal(text_, end);
  if (!d.valid || (end < text_.size() && !IsSeparator(text_[end]))) return false;
  value = ToDouble(d, text_.substr(pos_, end - pos_));
  pos_ = end;
  return true;
}

int TextCursor::LineNumber() const {
  return 1 + static_cast<int>(std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(pos_), '\n'));
}

std::string TextCursor::TokenAtCursor() const {
  std::size_t end = pos_;
  while (end < text_.size() && !IsSeparator(text_[end]) && end - pos_ < 40) ++end;
  std::string token(text_.substr(pos_, end - pos_));
  for (char& c : token) {
    const auto u = static_cast<unsigned char>(c);
    if (u < 32 || u >= 127) c = '?';
  }
  return token;
}

}  // namespace numerics
