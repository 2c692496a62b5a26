#include "series_messages.h"

#include <cmath>
#include <utility>

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"
#include "numerics/touchstone_options.h"

namespace series {

std::string NoOptionLineMessage(const std::string& path, double multiplier) {
  return "File " + path + " has no \"#\" option line to take its frequency unit from; its frequencies are taken in " +
         numerics::FrequencyUnitName(multiplier) + ", the multiplier selected.";
}

std::string NonFiniteWarning(const std::string& path, const FileFigures& file) {
  const std::pair<const char*, double> columns[] = {{"I", file.current}, {"fT", file.fT},       {"fmax", file.fmax},
                                                    {"MAG/MSG", file.magDb}, {"k", file.k}, {"f(k>1)", file.fk}};
  std::string names;
  for (const auto& [name, value] : columns) {
    if (!std::isfinite(value)) names += (names.empty() ? "" : ", ") + std::string(name);
  }
  if (names.empty()) return {};
  return "the row of " + path + " holds values that are not finite numbers (nan or inf) for " + names +
         "; check the numbers of the file.";
}

std::string FileValuesText(const FileFigures& file) {
  return "fT=" + numerics::FormatPrefixed(1, file.fT) + "Hz, Gain=" + numerics::FloatTextTrimmed(2, file.magDb) +
         "dB, k=" + numerics::FloatTextTrimmed(3, file.k);
}

}  // namespace series
