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

// Column 0: the path when it is shorter than 31 characters, else its first 7 characters,
// "..." and its last 15. Characters are counted in UTF-8.
std::string TablePathText(const std::string& path);

// A row of the file list: the path when it is shorter than 35 characters, else its first 17
// characters, "..." and its last 19. Characters are counted in UTF-8.
std::string FileListPathText(const std::string& path);

// Columns 0 to 6 of one file's row, and column 7 (the current density) when asked for.
std::vector<std::string> TableRowTexts(const std::string& path, const FileFigures& file,
                                       const SeriesSettings& settings);

}  // namespace series
