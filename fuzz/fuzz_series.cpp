// Any bytes as the content of a bias-series file, evaluated with the ground inductance, read
// plain and read as a Touchstone file.
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
  static const series::SeriesSettings touchstone = [] {
    series::SeriesSettings s = settings;
    s.reading = numerics::FileReading::Touchstone;
    s.automaticMultiplier = true;
    return s;
  }();
  const std::string_view content(reinterpret_cast<const char*>(data), size);
  series::EvaluateSeriesText(content, "fuzz.s2p", settings);
  series::EvaluateSeriesText(content, "fuzz.s2p", touchstone);
  return 0;
}
