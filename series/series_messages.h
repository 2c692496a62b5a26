#pragma once

#include <string>

#include "series_arrays.h"

// Messages of the series evaluation and of the series page. The engine returns them; the caller
// shows them.
namespace series {

inline constexpr const char* kEmptySeriesMessage = "Please drag s2p file(s) to the program.";
inline constexpr const char* kMoveUpQuestion = " - Move set one position to the top?";

inline std::string NoCurrentMessage(const std::string& path) {
  return "Possibly the file " + path + " might be errorness (e.g. no Ic specified).";
}

// A Touchstone file read with the automatic multiplier whose option line is missing.
std::string NoOptionLineMessage(const std::string& path, double multiplier);

// A warning (to follow "netrix --series: ") naming the columns of the file's row that are not finite numbers (an input number
// beyond double range gives inf); empty when every value is finite.
std::string NonFiniteWarning(const std::string& path, const FileFigures& file);

// What selecting a file of the list tells about it: "fT=" with unit prefix and one decimal,
// MAG/MSG with two decimals and k with three, both without leading blanks.
std::string FileValuesText(const FileFigures& file);

}  // namespace series
