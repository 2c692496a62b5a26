#include "string_align_grid.h"

#include <QHeaderView>
#include <cassert>

namespace controls {

TStringAlignGrid::TStringAlignGrid(int columns, int rows, QWidget* parent)
    : QTableWidget(rows, columns, parent),
      alignments_(columns, Qt::AlignLeft | Qt::AlignVCenter) {
  horizontalHeader()->hide();
  verticalHeader()->hide();
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setWordWrap(false);  // one line per cell: a wrapped text would lose its end below the row
  setSelectionMode(QAbstractItemView::SingleSelection);
}

void TStringAlignGrid::SetColumnAlignment(int column, Qt::Alignment alignment) {
  assert(column >= 0 && column < columnCount());
  alignments_[column] = alignment;
  for (int row = 0; row < rowCount(); ++row) {
    if (QTableWidgetItem* cell = item(row, column)) cell->setTextAlignment(alignment);
  }
}

Qt::Alignment TStringAlignGrid::ColumnAlignment(int column) const {
  assert(column >= 0 && column < columnCount());
  return alignments_[column];
}

void TStringAlignGrid::SetDefaultColumnWidth(int pixels) {
  horizontalHeader()->setDefaultSectionSize(pixels);
  for (int column = 0; column < columnCount(); ++column) setColumnWidth(column, pixels);
}

void TStringAlignGrid::SetDefaultRowHeight(int pixels) {
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(pixels);
  for (int row = 0; row < rowCount(); ++row) setRowHeight(row, pixels);
}

void TStringAlignGrid::SetFixedRows(int rows) {
  assert(rows >= 0 && rows <= rowCount());
  fixedRows_ = rows;
  for (int row = 0; row < rowCount(); ++row) {
    for (int column = 0; column < columnCount(); ++column) {
      if (QTableWidgetItem* cell = item(row, column)) StyleCell(*cell, column, row);
    }
  }
}

void TStringAlignGrid::SetCells(int column, int row, const QString& text, const QString& hint) {
  assert(column >= 0 && column < columnCount() && row >= 0 && row < rowCount());
  QTableWidgetItem* cell = item(row, column);
  if (!cell) {
    cell = new QTableWidgetItem;
    StyleCell(*cell, column, row);
    setItem(row, column, cell);
  }
  cell->setText(text);
  cell->setToolTip(hint);
}

QString TStringAlignGrid::Cells(int column, int row) const {
  assert(column >= 0 && column < columnCount() && row >= 0 && row < rowCount());
  const QTableWidgetItem* cell = item(row, column);
  return cell ? cell->text() : QString();
}

void TStringAlignGrid::SetCellShade(int column, int row, const QColor& background) {
  if (!item(row, column)) SetCells(column, row, QString());
  QTableWidgetItem& cell = *item(row, column);
  StyleCell(cell, column, row);
  if (background.isValid()) cell.setBackground(background);
}

void TStringAlignGrid::ClearRow(int row) {
  for (int column = 0; column < columnCount(); ++column) {
    SetCells(column, row, QString());
    SetCellShade(column, row, QColor());
  }
}

void TStringAlignGrid::StyleCell(QTableWidgetItem& cell, int column, int row) const {
  cell.setTextAlignment(alignments_[column]);
  const bool fixed = row < fixedRows_;
  cell.setFlags(fixed ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  cell.setBackground(fixed ? palette().button() : QBrush());
}

}  // namespace controls
