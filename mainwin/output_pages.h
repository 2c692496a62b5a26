#pragma once

class QWidget;

// Pages 3 to 6 of the notebook: three graph pages and the result table. Their content is drawn
// from the bias-series results when a page is entered.
namespace mainwin {

// A page with its comment edit (initial text "Graphic") above the image the graph is drawn into.
QWidget* MakeGraphPage(QWidget* parent, const char* imageName, const char* commentName);

// The table page: comment edit EditComment3 and the grid StringAlignGridTab (8 columns, a header
// row and 41 result rows).
QWidget* MakeTablePage(QWidget* parent);

}  // namespace mainwin
