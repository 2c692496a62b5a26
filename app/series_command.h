#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "series/series_list.h"

namespace app {

// netrix --series [options] FILE...: evaluates the files as one bias series and writes the
// ".spa" table to out, or atomically to the file of --out. The series' messages go to err.
// Returns the process exit status: 0 when the table was written, 1 otherwise.
int RunSeriesCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// The first 40 files as a series; a further one is refused with the list's own message on err.
series::SeriesList MakeSeries(const std::vector<std::string>& files, std::ostream& err);

// The lines of netrix --help that describe the series mode.
std::string SeriesUsageText();

}  // namespace app
