#pragma once

#include <QFont>
#include <QString>

#include "series/series_arrays.h"
#include "series/series_list.h"
#include "series/series_settings.h"

class QLineEdit;
class QWidget;

namespace controls {
class TStringAlignGrid;
}

// Pages 3 to 6 of the notebook: the graph pages (TGraphPage) and the result table. Their
// content is drawn from the bias-series results when a page is entered.
namespace mainwin {

// The smaller font of the grids, so that the 18-pixel rows hold a line of text; condensed, as it
// is wider than the font the columns were sized for, so that an abbreviated path fits whole.
QFont CompactFont(QFont font);

// A comment edit of an output page, with the hint every such edit carries.
QLineEdit* MakeCommentEdit(QWidget* parent, const char* name, const QString& text);

// The table page: comment edit EditComment3 and the grid StringAlignGridTab (8 columns, a header
// row and 41 result rows).
QWidget* MakeTablePage(QWidget* parent);

// Rows 1..count from the results; column 7 holds the current density only when it is asked for.
// The remaining rows are cleared.
void ShowResultTable(controls::TStringAlignGrid& grid, const series::SeriesList& list, const series::SeriesArrays& results,
                     const series::SeriesSettings& settings);

}  // namespace mainwin
