#pragma once

#include <QColor>
#include <QTableWidget>
#include <QVector>

namespace controls {

// A text grid addressed as Cells(column, row), whose columns each keep their own alignment:
// every cell written into a column takes that column's alignment. The first FixedRows rows are
// a header: shaded and not selectable.
class TStringAlignGrid : public QTableWidget {
  Q_OBJECT

 public:
  TStringAlignGrid(int columns, int rows, QWidget* parent = nullptr);

  void SetColumnAlignment(int column, Qt::Alignment alignment);
  Qt::Alignment ColumnAlignment(int column) const;
  void SetDefaultColumnWidth(int pixels);
  void SetDefaultRowHeight(int pixels);
  void SetFixedRows(int rows);

  // The hint shows as the cell's tool tip; an empty one removes it.
  void SetCells(int column, int row, const QString& text, const QString& hint = QString());
  QString Cells(int column, int row) const;
  // Shades a cell; an invalid colour restores the plain cell, as clearing the row does.
  void SetCellShade(int column, int row, const QColor& background);
  void ClearRow(int row);

 private:
  void StyleCell(QTableWidgetItem& item, int column, int row) const;

  QVector<Qt::Alignment> alignments_;
  int fixedRows_ = 0;
};

}  // namespace controls
