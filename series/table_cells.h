#pragma once

#include <array>
#include <string>
#include <vector>

#include "series_arrays.h"
#include "series_settings.h"

// Cell texts of the result table of a series evaluation and of the page's file list. The table
// and the ".spa" export differ in precision on purpose: the table shows MAG with 2 decimals and
// k with 3.
namespace series {

inline constexpr std::size_t kTableColumnCount = 8;
inline constexpr std::array<const char*, kTableColumnCount> kTableHeader = {
    "File Name", "Ic", "fT", "fmax", "MAG/MSG", "k", "f(k>1)", "j/(mA/µm²)"};

// Column 0 of the table for each path: the path when it is shorter than 31 characters, else its
// first 7 characters, "..." and its last 15. Where that leaves different paths with the same
// text, those show as much more of their end as tells them apart. Characters are counted in
// UTF-8.
std::vector<std::string> TablePathTexts(const std::vector<std::string>& paths);

// The rows of the file list, by the same rule with the limits 35, 17 and 19.
std::vector<std::string> FileListPathTexts(const std::vector<std::string>& paths);

// One file's row: pathText in column 0, the values in columns 1 to 6, and column 7 (the current
// density) when asked for.
std::vector<std::string> TableRowTexts(const std::string& pathText, const FileFigures& file,
                                       const SeriesSettings& settings);

}  // namespace series
