#include "series_messages.h"

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"
#include "numerics/touchstone_options.h"

namespace series {

std::string NoOptionLineMessage(const std::string& path, double multiplier) {
  return "File " + path + " has no \"#\" option line to take its frequency unit from; its frequencies are taken in " +
         numerics::FrequencyUnitName(multiplier) + ", the multiplier selected.";
}

std::string FileValuesText(const FileFigures& file) {
  return "fT=" + numerics::FormatPrefixed(1, file.fT) + "Hz, Gain=" + numerics::FloatTextTrimmed(2, file.magDb) +
         "dB, k=" + numerics::FloatTextTrimmed(3, file.k);
}

}  // namespace series
