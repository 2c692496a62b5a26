// Any bytes as the content of a Touchstone file, read into the store at a reference impedance
// other than the files' usual 50 ohms, so the conversions run too.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "numerics/file_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static numerics::DataSetStore store;
  store.openCount = 0;
  const std::string_view content(reinterpret_cast<const char*>(data), size);
  const numerics::ReadingChoice choice{numerics::FileReading::Touchstone, 75};
  const numerics::LoadOutcome outcome = numerics::LoadTwoPortText(store, content, "fuzz.s2p", choice);
  if (outcome.status != numerics::LoadStatus::Loaded) return 0;
  const numerics::TwoPortDataSet& set = store.sets[0];
  if (store.openCount != 1 || set.pointCount < 1 || set.pointCount > numerics::kMaxPoints) __builtin_trap();
  for (int i = 0; i < set.pointCount; ++i) {
    const auto k = static_cast<std::size_t>(i);
    if (i > 0 && set.frequency[k] < set.frequency[k - 1]) __builtin_trap();
    if (!std::isfinite(set.points[k].s[1][0].first)) __builtin_trap();
  }
  return 0;
}
