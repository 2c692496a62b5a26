#pragma once

#include <optional>
#include <string>
#include <vector>

#include "series/series_settings.h"

namespace app {

struct SeriesOptions {
  series::SeriesSettings settings = series::DefaultSeriesSettings();
  std::vector<std::string> files;
  std::optional<std::string> outPath;
  bool checks = false;  // print the checks of fT and fmax after the table
};

// Reads the options and file names of netrix --series. Options left out keep the series
// page's defaults. On a mistake returns false and says in error what is wrong and how to fix it.
bool ParseSeriesOptions(const std::vector<std::string>& args, SeriesOptions& options, std::string& error);

}  // namespace app
