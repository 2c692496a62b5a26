#include "page_printing.h"

#include <QFont>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <cassert>
#include <iterator>

#include "controls/string_align_grid.h"
#include "diagram/fonts.h"
#include "graph_image.h"
#include "graph_page.h"

namespace mainwin {
namespace {

constexpr int kHeadingPoints = 11;
constexpr int kTablePoints = 8;
// The file name column is twice as wide as each of the seven value columns.
constexpr int kColumnWeights[] = {2, 1, 1, 1, 1, 1, 1, 1};
constexpr int kWeightSum = 9;

QFont SheetFont(int points, bool bold) {
  QFont font(QString::fromLatin1(diagram::kSubstituteFontName));
  font.setPointSize(points);
  font.setBold(bold);
  return font;
}

// Writes the line at the top of area and returns the rest of the area below it.
QRect PaintHeading(QPainter& painter, const QRect& area, const QString& left, const QString& right) {
  painter.setFont(SheetFont(kHeadingPoints, true));
  painter.setPen(Qt::black);
  const int height = QFontMetrics(painter.font(), painter.device()).height();
  const QRect line(area.left(), area.top(), area.width(), height);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, left);
  painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, right);
  return area.adjusted(0, height * 3 / 2, 0, 0);
}

QRect FourToThree(const QRect& area) {
  const int width = std::min(area.width(), area.height() * 4 / 3);
  return QRect(area.topLeft(), QSize(width, width * 3 / 4));
}

void PaintTableRow(QPainter& painter, const QRect& line, const controls::TStringAlignGrid& grid, int row) {
  assert(grid.columnCount() == static_cast<int>(std::size(kColumnWeights)));
  int left = line.left();
  for (int column = 0; column < grid.columnCount(); ++column) {
    const int width = line.width() * kColumnWeights[column] / kWeightSum;
    painter.drawText(QRect(left, line.top(), width, line.height()), Qt::AlignCenter, grid.Cells(column, row));
    left += width;
  }
}

}  // namespace

void PaintGraphSheet(QPainter& painter, const QRect& area, const TGraphPage& page) {
  const QRect rest = PaintHeading(painter, area, page.CommentEdit().text(), page.LegendText());
  page.Image().Paint(painter, FourToThree(rest));
}

void PaintGraphPairSheet(QPainter& painter, const QRect& area, const TGraphPage& upper, const TGraphPage& lower) {
  const int half = area.height() / 2;
  PaintGraphSheet(painter, QRect(area.left(), area.top(), area.width(), half), upper);
  PaintGraphSheet(painter, QRect(area.left(), area.top() + half, area.width(), area.height() - half), lower);
}

void PaintTableSheet(QPainter& painter, const QRect& area, const QString& comment,
                     const controls::TStringAlignGrid& grid, int rowCount) {
  const QRect rest = PaintHeading(painter, area, comment, QString());
  const int lineHeight = QFontMetrics(SheetFont(kTablePoints, false), painter.device()).height() * 3 / 2;
  for (int row = 0; row <= rowCount; ++row) {
    painter.setFont(SheetFont(kTablePoints, row == 0));
    const QRect line(rest.left(), rest.top() + row * lineHeight, rest.width(), lineHeight);
    PaintTableRow(painter, line, grid, row);
    if (row == 0) painter.drawLine(line.bottomLeft(), line.bottomRight());
  }
}

void PaintWindowSheet(QPainter& painter, const QRect& area, const QPixmap& window) {
  const QSize fitted = window.size().scaled(area.size(), Qt::KeepAspectRatio);
  painter.drawPixmap(QRect(area.topLeft(), fitted), window);
}

}  // namespace mainwin
