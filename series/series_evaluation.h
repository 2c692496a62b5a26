#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "numerics/reader_core.h"
#include "series_arrays.h"
#include "series_list.h"
#include "series_settings.h"

// Extraction of fT, fmax, MAG/MSG, k and the stability limit f(k>1) of every file of a bias
// series at the analysis frequency fo.
namespace series {

struct SeriesEvaluation {
  bool completed = false;             // false when the list was empty or a file could not be read
  std::vector<std::string> messages;  // for the user, in the order they arose
};

// Reads every file of the list in order and replaces arrays with one entry per file. When
// the evaluation does not complete, arrays keep their previous content. The engine shows
// nothing itself: the caller shows the messages.
SeriesEvaluation EvaluateSeries(const SeriesList& list, const SeriesSettings& settings, SeriesArrays& arrays);

struct FileEvaluation {
  FileFigures figures;
  std::string error;         // empty when the content was read to its end
  numerics::ReadNotes notes;  // what the read left out or assumed, for the user
};

// The figures of one series file whose content is in memory; path names it in messages.
FileEvaluation EvaluateSeriesText(std::string_view content, const std::string& path, const SeriesSettings& settings);

}  // namespace series
