#pragma once

#include <string>

#include "series_arrays.h"
#include "series_list.h"
#include "series_settings.h"

// The ASCII export of a series evaluation (".spa" files).
namespace series {

inline constexpr const char* kSpaExtension = ".spa";

// The file content: the comment line, the column header and one line per file, each ended by
// "\n". The header's micro and squared signs are the single Windows-1252 bytes 0xB5 and 0xB2;
// paths and the comment are written as they are. arrays holds one entry per file of list.
std::string SpaContent(const SeriesList& list, const SeriesArrays& arrays, const SeriesSettings& settings);

}  // namespace series
