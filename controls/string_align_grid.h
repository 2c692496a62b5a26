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

  void SetCells(int column, int row, const QString& text);
  QString Cells(int column, int row) const;
  // Shades a cell and gives it a tool tip; an invalid colour and an empty tip restore the plain
  // cell. Clearing the row restores every cell of it.
  void SetCellHint(int column, int row, const QColor& background, const QString& toolTip);
  void ClearRow(int row);

 private:
  void StyleCell(QTableWidgetItem& item, int column, int row) const;

  QVector<Qt::Alignment> alignments_;
  int fixedRows_ = 0;
};

}  // namespace controls
