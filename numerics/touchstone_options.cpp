#include "touchstone_options.h"

#include <array>

#include "text_cursor.h"
#include "text_functions.h"
#include "touchstone_tokens.h"

namespace numerics {
namespace {

template <typename T>
struct Word {
  const char* upper;
  T value;
};

constexpr std::array<Word<double>, 4> kUnits{{{"HZ", 1}, {"KHZ", 1e3}, {"MHZ", 1e6}, {"GHZ", 1e9}}};
constexpr std::array<Word<NetworkParameter>, 5> kParameters{{{"S", NetworkParameter::S},
                                                             {"Y", NetworkParameter::Y},
                                                             {"Z", NetworkParameter::Z},
                                                             {"H", NetworkParameter::H},
                                                             {"G", NetworkParameter::G}}};
constexpr std::array<Word<NumberFormat>, 3> kFormats{
    {{"MA", NumberFormat::MagnitudeAngle}, {"DB", NumberFormat::Decibels}, {"RI", NumberFormat::RealImaginary}}};

template <typename T, std::size_t N>
bool TakeWord(const std::array<Word<T>, N>& words, const std::string& upper, T& target) {
  for (const Word<T>& word : words) {
    if (upper == word.upper) {
      target = word.value;
      return true;
    }
  }
  return false;
}

std::string UnknownToken(std::string_view token) {
  return "\"" + std::string(token) +
         "\" is not an option of the \"#\" line, which takes a frequency unit (Hz, kHz, MHz, GHz), a parameter "
         "(S, Y, Z, H, G), a format (MA, DB, RI) and R with the reference resistance in ohms.";
}

}  // namespace

std::optional<std::string> ReadOptionTokens(std::string_view tokens, TouchstoneOptions& options) {
  TokenReader reader(tokens);
  for (std::string_view token = reader.Next(); !token.empty(); token = reader.Next()) {
    const std::string upper = UpperCaseText(token);
    if (upper == "R") {
      const std::string_view value = reader.Next();
      const std::optional<double> ohms = ParseRealToken(value);
      if (!ohms || !(*ohms > 0)) return "R needs the reference resistance as a positive number of ohms, such as R 50.";
      options.resistance = *ohms;
    } else if (!TakeWord(kUnits, upper, options.frequencyUnit) && !TakeWord(kParameters, upper, options.parameter) &&
               !TakeWord(kFormats, upper, options.format)) {
      return UnknownToken(token);
    }
  }
  return std::nullopt;
}

std::string FrequencyUnitName(double frequencyUnit) {
  for (const auto& [name, unit] : {std::pair{"GHz", 1e9}, std::pair{"MHz", 1e6}, std::pair{"kHz", 1e3}}) {
    if (frequencyUnit == unit) return name;
  }
  return "Hz";
}

}  // namespace numerics
