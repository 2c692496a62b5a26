#include "text_functions.h"

#include <charconv>
#include <cstdio>

namespace numerics {

std::string BoolText(bool flag) { return flag ? "Ja" : "Nein"; }

std::string TrimLeftText(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && static_cast<unsigned char>(text[i]) < 33) ++i;
  return std::string(text.substr(i));
}

std::string FloatText(int width, int decimals, double value) {
  // Wide enough for the largest double in fixed-point form with the most decimals allowed.
  constexpr int kMostDecimals = 60;
  char buffer[400];
  const int precision = decimals < 0 ? 0 : (decimals > kMostDecimals ? kMostDecimals : decimals);
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, precision);
  std::string text(buffer, error == std::errc() ? end : buffer);
  if (static_cast<int>(text.size()) < width) text.insert(0, static_cast<std::size_t>(width) - text.size(), ' ');
  return text;
}

std::string FloatTextTrimmed(int decimals, double value) {
  return TrimLeftText(FloatText(10, decimals, value));
}

std::string IntText(std::int32_t value) { return std::to_string(value); }

std::string CsvNumber(double value) {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%.10g", value);
  return buffer;
}

std::string UpperCaseText(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    const auto u = static_cast<unsigned char>(c);
    if (u >= 'a' && u <= 'z') c = static_cast<char>(u - 'a' + 'A');
    else if (u == 0x81) c = static_cast<char>(0x9A);
    else if (u == 0x84) c = static_cast<char>(0x8E);
    else if (u == 0x94) c = static_cast<char>(0x99);
  }
  return result;
}

}  // namespace numerics
