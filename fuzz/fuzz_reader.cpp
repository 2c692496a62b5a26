// Any bytes as the content of a data file.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "numerics/file_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static numerics::DataSetStore store;
  store.openCount = 0;
  const std::string_view content(reinterpret_cast<const char*>(data), size);
  const numerics::LoadOutcome outcome = numerics::LoadTwoPortText(store, content, "fuzz.s2p");
  if (outcome.status == numerics::LoadStatus::Loaded && store.openCount != 1) __builtin_trap();
  return 0;
}
