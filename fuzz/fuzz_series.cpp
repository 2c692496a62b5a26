// Any bytes as the content of a bias-series file, evaluated with the ground inductance.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "mainwin/engine/series_evaluation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const mainwin::SeriesSettings settings = [] {
    mainwin::SeriesSettings s = mainwin::DefaultSeriesSettings();
    s.withLgnd = true;
    return s;
  }();
  const std::string_view content(reinterpret_cast<const char*>(data), size);
  mainwin::EvaluateSeriesText(content, "fuzz.s2p", settings);
  return 0;
}
