#include "output_pages.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <cassert>

#include "controls/string_align_grid.h"
#include "series/check_texts.h"
#include "series/table_cells.h"

namespace mainwin {
namespace {

constexpr int kTableColumns = 8;
constexpr int kTableRows = 42;  // the header and up to 41 result rows

// The fT and fmax cells carry the checks of their figure: a tool tip, and this shade when doubtful.
struct CheckedColumn {
  int column;
  series::CheckedFigure figure;
};
constexpr CheckedColumn kCheckedColumns[] = {{2, series::CheckedFigure::FT}, {3, series::CheckedFigure::Fmax}};
const QColor kDoubtfulShade(255, 214, 153);

QWidget* MakeCheckLegend(QWidget* parent) {
  auto* legend = new QLabel(QObject::tr("Shaded fT, fmax: doubtful at fo"), parent);
  legend->setObjectName("LabelCheckLegend");
  legend->setToolTip(QObject::tr("Slope outside -20 ± 3 dB per decade, fmax from MSG (k < 1), or more than 10 % "
                                 "from where the sweep crosses 1. Point at a value for its check."));
  legend->setStyleSheet(QStringLiteral("background-color: %1").arg(kDoubtfulShade.name()));
  return legend;
}

void ShowChecks(controls::TStringAlignGrid& grid, int row, const series::FileFigures& file) {
  for (const CheckedColumn& c : kCheckedColumns) {
    const QString tip = QString::fromStdString(series::CheckTipText(file, c.figure));
    grid.SetCells(c.column, row, grid.Cells(c.column, row), tip);
    grid.SetCellShade(c.column, row, series::IsFlagged(file.check, c.figure) ? kDoubtfulShade : QColor());
  }
}

}  // namespace

QFont CompactFont(QFont font) {
  font.setPixelSize(11);
  font.setStretch(QFont::Condensed);
  return font;
}

QLineEdit* MakeCommentEdit(QWidget* parent, const char* name, const QString& text) {
  auto* edit = new QLineEdit(text, parent);
  edit->setObjectName(name);
  edit->setToolTip(QObject::tr("Here you can place a text"));
  edit->setStatusTip(edit->toolTip());
  return edit;
}

QWidget* MakeTablePage(QWidget* parent) {
  auto* page = new QWidget(parent);
  auto* layout = new QVBoxLayout(page);
  auto* grid = new controls::TStringAlignGrid(kTableColumns, kTableRows, page);
  grid->setObjectName("StringAlignGridTab");
  for (int column = 0; column < kTableColumns; ++column) grid->SetColumnAlignment(column, Qt::AlignCenter);
  grid->setFont(CompactFont(grid->font()));
  grid->SetDefaultColumnWidth(66);
  // Every column as wide as its texts, so that each shows whole; the last takes the rest of the width.
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid->horizontalHeader()->setStretchLastSection(true);
  grid->SetDefaultRowHeight(18);
  grid->SetFixedRows(1);
  auto* top = new QHBoxLayout;
  top->addWidget(MakeCommentEdit(page, "EditComment3", QObject::tr("Output")), 1);
  top->addWidget(MakeCheckLegend(page));
  layout->addLayout(top);
  layout->addWidget(grid, 1);
  return page;
}

void ShowResultTable(controls::TStringAlignGrid& grid, const series::SeriesList& list, const series::SeriesArrays& results,
                     const series::SeriesSettings& settings) {
  assert(results.size() == list.SeriesCount());
  const int count = static_cast<int>(results.size());
  const std::vector<std::string> pathTexts = series::TablePathTexts(list.Paths());
  for (int row = 1; row <= count; ++row) {
    const auto i = static_cast<std::size_t>(row - 1);
    const std::vector<std::string> cells = series::TableRowTexts(pathTexts[i], results[i], settings);
    grid.SetCells(0, row, QString::fromStdString(cells.front()), QString::fromStdString(list.Path(i)));
    for (int column = 1; column < kTableColumns; ++column) {
      const bool filled = static_cast<std::size_t>(column) < cells.size();
      grid.SetCells(column, row, filled ? QString::fromStdString(cells[static_cast<std::size_t>(column)]) : QString());
    }
    ShowChecks(grid, row, results[i]);
  }
  for (int row = count + 1; row < kTableRows; ++row) grid.ClearRow(row);
}

}  // namespace mainwin
