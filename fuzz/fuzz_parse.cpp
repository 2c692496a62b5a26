// Any text typed into an entry field: the parsers and the formatters of what they return.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "numerics/prefixed_number.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const numerics::ParsedValue parsed = numerics::ParseValueText(text);
  const double entry = numerics::ParseEntryText(text);
  const int decimals = size > 0 ? data[0] % 8 : 2;
  numerics::FormatPrefixed(decimals, parsed.value);
  numerics::FormatPrefixedField(8, decimals, entry);
  numerics::FormatExponent(7, decimals, parsed.value);
  numerics::StripBlanks(text);
  return 0;
}
