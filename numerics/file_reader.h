#pragma once

#include <string>
#include <string_view>

#include "data_set.h"
#include "reader_core.h"
#include "text_cursor.h"

// Reader of S-parameter files into the store. The plain reading takes the program's own format:
// line 1 is the title, every further line a frequency (with optional unit prefix, in Hz) and the
// linear magnitude and angle of S11, S21, S12, S22; option lines are not interpreted. The
// Touchstone reading applies the file's option line, comments and keywords instead.
namespace numerics {

enum class FileReading { Plain, Touchstone };

struct ReadingChoice {
  FileReading reading = FileReading::Plain;
  double z0 = 50;  // ohms; the Touchstone reading renormalises the file's data to it
};

enum class LoadStatus { Loaded, Missing, StoreFull, Unreadable };

struct LoadOutcome {
  LoadStatus status = LoadStatus::Loaded;
  int dataSetNumber = 0;  // 1..4 when loaded
  std::string message;    // what to tell the user; empty when loaded
  ReadNotes notes;        // when loaded: what the read left out or did not apply
};

// Reads the frequency field of the next data line and leaves the cursor behind it. A line
// that starts with "!" or "#" is consumed and gives the preset 1 GHz, so that only line 1 may
// be a header; the field is bounded to 1e-9 .. 1e15 Hz.
double ReadFrequencyField(TextCursor& in);

// Reads one file into the next free data set of the store. A missing file, a full store or a
// file that cannot be read leaves the store exactly as it was and says why in the outcome.
LoadOutcome LoadTwoPortFile(DataSetStore& store, const std::string& fileName, const ReadingChoice& choice = {});
// The same for a file's content already in memory; fileName only names it in messages.
LoadOutcome LoadTwoPortText(DataSetStore& store, std::string_view content, const std::string& fileName,
                            const ReadingChoice& choice = {});
LoadOutcome LoadTwoPortFile(const std::string& fileName, const ReadingChoice& choice = {});

}  // namespace numerics
