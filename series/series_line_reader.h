#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "numerics/text_cursor.h"

// The line reader of bias-series files. Unlike the single-file reader it takes comment and
// option lines anywhere, skips lines that do not start with a number, and reads the frequency
// column as a plain decimal number (no unit prefix).
namespace series {

enum class SeriesLineKind {
  Data,       // the cursor stands behind the frequency token; the eight numbers follow
  Comment,    // a line starting with "!" or "#"; consumed
  NotData,    // a line whose token does not start with a number; consumed
  EndOfFile,  // no further line
};

struct SeriesLine {
  SeriesLineKind kind = SeriesLineKind::EndOfFile;
  double frequency = 0;  // the token's value, in units of the frequency multiplier (Data)
  std::string comment;   // the line after its "!" or "#" (Comment)
};

// Reads the next line that is not empty. Up to 19 leading blanks are skipped; the token ends
// at a blank, at the end of the line or after 199 characters of the line.
SeriesLine ReadSeriesLine(numerics::TextCursor& in);

// The value of the decimal number the token starts with; nullopt when it starts with none.
std::optional<double> LeadingDecimalNumber(std::string_view token);

// The bias current a comment line states ("Ic=1.5m", "IC = 1.5 m", "Vce=3V, Id=2mA"): blanks
// are removed, the keys are found in upper case, "IC" wins over "ID", and the text from three
// characters behind the key is read with its unit prefix. nullopt when the line states none.
std::optional<double> BiasCurrentFromComment(std::string_view comment);

}  // namespace series
