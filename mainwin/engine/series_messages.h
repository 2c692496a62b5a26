#pragma once

#include <string>

// Messages of the series evaluation. The engine returns them; the caller shows them.
namespace mainwin {

inline constexpr const char* kEmptySeriesMessage = "Please drag s2p file(s) to the program.";

inline std::string NoCurrentMessage(const std::string& path) {
  return "Possibly the file " + path + " might be errorness (e.g. no Ic specified).";
}

}  // namespace mainwin
