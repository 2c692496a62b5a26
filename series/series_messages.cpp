#include "series_messages.h"

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace series {

std::string FileValuesText(const FileFigures& file) {
  return "fT=" + numerics::FormatPrefixed(1, file.fT) + "Hz, Gain=" + numerics::FloatTextTrimmed(2, file.magDb) +
         "dB, k=" + numerics::FloatTextTrimmed(3, file.k);
}

}  // namespace series
