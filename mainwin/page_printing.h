#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

class QPainter;

namespace controls {
class TStringAlignGrid;
}

// What a printed sheet holds. The graphs are drawn again at the device's own resolution through
// the pages' drawing routine, so they print as sharp as the printer can.
namespace mainwin {

class TGraphPage;

// The page's comment and legend as a heading, the graph below it in the proportions of 4:3.
void PaintGraphSheet(QPainter& painter, const QRect& area, const TGraphPage& page);
// Two graph pages one above the other, each in half of the area.
void PaintGraphPairSheet(QPainter& painter, const QRect& area, const TGraphPage& upper, const TGraphPage& lower);
// The comment as a heading and the grid's header and first rows (rows 0..rowCount) as text.
void PaintTableSheet(QPainter& painter, const QRect& area, const QString& comment,
                     const controls::TStringAlignGrid& grid, int rowCount);
// A picture of a window, as large as fits with its proportions kept.
void PaintWindowSheet(QPainter& painter, const QRect& area, const QPixmap& window);

}  // namespace mainwin
