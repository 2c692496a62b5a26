#pragma once

#include <QRect>
#include <span>
#include <string_view>

#include "canvas.h"

// The names written beside curves: whole inside the picture, clear of the texts written before
// them (axis labels, the chart's values, other names), and on a white halo, so that grid lines and
// curves running under a name leave it readable.
namespace diagram {

// The place nearest to wanted, moved by whole lines up or down and by half its width to either
// side, that lies inside picture and overlaps none of taken. When every such place is taken,
// wanted moved just inside the picture.
QRect PlaceText(const QRect& wanted, const QRect& picture, std::span<const QRect> taken);

// The text in the font colour over a one-pixel white outline.
void TextOutWithHalo(Canvas& canvas, int left, int top, std::string_view text);

// Names the curve whose first point lies at (column, row): the text starts there, or ends there
// when textLeft is set, unless it has to move to be whole and free.
void WriteCurveName(Canvas& canvas, int column, int row, bool textLeft, std::string_view text);

}  // namespace diagram
