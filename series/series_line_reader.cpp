#include "series_line_reader.h"

#include <cstddef>

#include "numerics/prefixed_number.h"
#include "numerics/reader_core.h"
#include "numerics/text_functions.h"

namespace series {
namespace {

constexpr std::size_t kMostCurrentChars = 100;
// The value stands behind the two letters of the key and its equals sign.
constexpr std::size_t kValueOffset = 3;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t SkipDigits(std::string_view t, std::size_t i) {
  while (i < t.size() && IsDigit(t[i])) ++i;
  return i;
}

// Length of the mantissa: optional sign, digits with at most one point; 0 without a digit.
std::size_t MantissaLength(std::string_view t) {
  std::size_t i = (!t.empty() && (t[0] == '+' || t[0] == '-')) ? 1 : 0;
  const std::size_t integerEnd = SkipDigits(t, i);
  std::size_t end = integerEnd;
  if (end < t.size() && t[end] == '.') end = SkipDigits(t, end + 1);
  const bool anyDigit = integerEnd > i || end > integerEnd + 1;
  return anyDigit ? end : 0;
}

// Length of the exponent part at the start of t ("e-3"); 0 when there is no complete one.
std::size_t ExponentLength(std::string_view t) {
  if (t.empty() || (t[0] != 'e' && t[0] != 'E')) return 0;
  const std::size_t digitsFrom = (t.size() > 1 && (t[1] == '+' || t[1] == '-')) ? 2 : 1;
  const std::size_t end = SkipDigits(t, digitsFrom);
  return end > digitsFrom ? end : 0;
}

SeriesLine DataOrNot(std::string_view token, numerics::TextCursor& in) {
  const std::optional<double> value = LeadingDecimalNumber(token);
  if (!value) {
    in.SkipLine();
    return {SeriesLineKind::NotData, 0, {}};
  }
  return {SeriesLineKind::Data, *value, {}};
}

}  // namespace

std::optional<double> LeadingDecimalNumber(std::string_view token) {
  const std::size_t mantissa = MantissaLength(token);
  if (mantissa == 0) return std::nullopt;
  const std::size_t length = mantissa + ExponentLength(token.substr(mantissa));
  numerics::TextCursor number(token.substr(0, length));
  return number.ReadReal();
}

SeriesLine ReadSeriesLine(numerics::TextCursor& in) {
  const numerics::LineStart line = numerics::ReadLineStart(in);
  if (line.kind == numerics::LineStartKind::Marker) return {SeriesLineKind::Comment, 0, in.ReadLine()};
  if (line.kind == numerics::LineStartKind::EndOfFile) return {};
  // The blank that ends the token is read but not part of it.
  const std::size_t end = line.endedAtBlank ? line.afterLastRead - 1 : line.afterLastRead;
  return DataOrNot(in.Slice(line.fieldStart, end), in);
}

std::optional<double> BiasCurrentFromComment(std::string_view comment) {
  const std::string text = numerics::StripBlanks(comment);
  const std::string upper = numerics::UpperCaseText(text);
  if (upper.find('=') == std::string::npos) return std::nullopt;
  for (const char* key : {"IC", "ID"}) {
    const std::size_t at = upper.find(key);
    if (at == std::string::npos) continue;
    const std::size_t from = at + kValueOffset;
    const std::string_view value = from < text.size() ? std::string_view(text).substr(from, kMostCurrentChars) : "";
    return numerics::ParseValueText(value).value;
  }
  return std::nullopt;
}

}  // namespace series
