#pragma once

#include <string>

#include "series_arrays.h"

// What the checks of fT and fmax say: the tool tips of the window and the lines of
// netrix --series --checks.
namespace series {

enum class CheckedFigure { FT, Fmax };

bool IsFlagged(const ExtractionCheck& check, CheckedFigure figure);

// The tool tip of fT or fmax in the window, one item per line: whether it is doubtful and why,
// its slope at fo, the crossing estimate beside the spot value, and k at fo.
std::string CheckTipText(const FileFigures& file, CheckedFigure figure);

// One line of netrix --series --checks, without the line end: the path, then key=value fields
// for both slopes, k, both crossings and the flags.
std::string CheckLineText(const std::string& path, const FileFigures& file);

}  // namespace series
