#pragma once

#include <string>
#include <string_view>

#include "data_set.h"
#include "text_cursor.h"

// Reader of the program's own *.spm files and two-port Touchstone *.s2p files: line 1 is the
// title, every further line a frequency (with optional unit prefix, in Hz) and the linear
// magnitude and angle of S11, S21, S12, S22. Option lines are not interpreted.
namespace numerics {

enum class LoadStatus { Loaded, Missing, StoreFull, Unreadable };

struct LoadOutcome {
  LoadStatus status = LoadStatus::Loaded;
  int dataSetNumber = 0;  // 1..4 when loaded
  std::string message;    // what to tell the user; empty when loaded
};

// Reads the frequency field of the next data line and leaves the cursor behind it. A line
// that starts with "!" or "#" is consumed and gives the preset 1 GHz, so that only line 1 may
// be a header; the field is bounded to 1e-9 .. 1e15 Hz.
double ReadFrequencyField(TextCursor& in);

// Reads one file into the next free data set of the store. A missing file, a full store or a
// file that cannot be read leaves the store exactly as it was and says why in the outcome.
LoadOutcome LoadTwoPortFile(DataSetStore& store, const std::string& fileName);
// The same for a file's content already in memory; fileName only names it in messages.
LoadOutcome LoadTwoPortText(DataSetStore& store, std::string_view content, const std::string& fileName);
LoadOutcome LoadTwoPortFile(const std::string& fileName);

}  // namespace numerics
