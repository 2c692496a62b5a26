// Any bytes as the content of a bias-series file, evaluated with the ground inductance.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "series/series_evaluation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const series::SeriesSettings settings = [] {
    series::SeriesSettings s = series::DefaultSeriesSettings();
    s.withLgnd = true;
    return s;
  }();
  const std::string_view content(reinterpret_cast<const char*>(data), size);
  series::EvaluateSeriesText(content, "fuzz.s2p", settings);
  return 0;
}
