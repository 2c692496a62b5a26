#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "network_conversion.h"

// The option line of a Touchstone file: "# <unit> <parameter> <format> R <ohms>", its tokens in
// any order and any case, each one optional.
namespace numerics {

enum class NumberFormat { MagnitudeAngle, Decibels, RealImaginary };

struct TouchstoneOptions {
  double frequencyUnit = 1e9;  // Hz per unit of the frequency column
  NetworkParameter parameter = NetworkParameter::S;
  NumberFormat format = NumberFormat::MagnitudeAngle;
  double resistance = 50;  // reference resistance in ohms
};

// Reads the tokens behind "#" into options; the defaults stay for tokens left out. On a token
// it does not know, or R without a positive number, returns what is wrong.
std::optional<std::string> ReadOptionTokens(std::string_view tokens, TouchstoneOptions& options);

// "GHz", "MHz", "kHz" or "Hz" for a frequency unit, for messages.
std::string FrequencyUnitName(double frequencyUnit);

}  // namespace numerics
