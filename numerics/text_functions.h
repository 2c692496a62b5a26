#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Small text helpers used throughout the program.
namespace numerics {

// "Ja" for true, "Nein" for false: the words the program writes for switches.
std::string BoolText(bool flag);

// Drops leading characters whose code is below 33.
std::string TrimLeftText(std::string_view text);

// Fixed-point text, blank-padded on the left to at least width characters.
std::string FloatText(int width, int decimals, double value);

// FloatText with width 10, then TrimLeftText.
std::string FloatTextTrimmed(int decimals, double value);

std::string IntText(std::int32_t value);

// Ten significant digits, as the CSV outputs write every number ("%.10g").
std::string CsvNumber(double value);

// Upper case for a to z, and the OEM code-page umlauts 0x81, 0x84, 0x94 to 0x9A, 0x8E, 0x99.
std::string UpperCaseText(std::string_view text);

}  // namespace numerics
