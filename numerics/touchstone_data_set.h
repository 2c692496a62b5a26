#pragma once

#include <string>
#include <string_view>

#include "data_set.h"
#include "reader_core.h"

namespace numerics {

// Fills set from the content of a Touchstone file: S at the reference impedance z0, frequencies
// in Hz, angles folded and unwrapped along the sweep as the plain reader stores them. A sweep
// longer than the store's points is thinned evenly, its first and last point kept. Returns the
// highest frequency stored; notes say what was thinned, left out or assumed. Bad input throws
// ReadFailure.
double FillDataSetFromTouchstone(std::string_view content, const std::string& fileName, double z0,
                                 TwoPortDataSet& set, ReadNotes& notes);

}  // namespace numerics
