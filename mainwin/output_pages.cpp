#include "output_pages.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QVBoxLayout>
#include <cassert>

#include "controls/string_align_grid.h"
#include "series/table_cells.h"

namespace mainwin {
namespace {

constexpr int kTableColumns = 8;
constexpr int kTableRows = 42;  // the header and up to 41 result rows

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
  layout->addWidget(MakeCommentEdit(page, "EditComment3", QObject::tr("Output")));
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
  }
  for (int row = count + 1; row < kTableRows; ++row) grid.ClearRow(row);
}

}  // namespace mainwin
