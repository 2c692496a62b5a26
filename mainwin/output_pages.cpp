#include "output_pages.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "controls/string_align_grid.h"

namespace mainwin {
namespace {

constexpr int kTableColumns = 8;
constexpr int kTableRows = 42;  // the header and up to 41 result rows

QLineEdit* MakeCommentEdit(QWidget* parent, const char* name, const QString& text) {
  auto* edit = new QLineEdit(text, parent);
  edit->setObjectName(name);
  edit->setToolTip(QObject::tr("Here you can place a text"));
  edit->setStatusTip(edit->toolTip());
  return edit;
}

}  // namespace

QWidget* MakeGraphPage(QWidget* parent, const char* imageName, const char* commentName) {
  auto* page = new QWidget(parent);
  auto* layout = new QVBoxLayout(page);
  auto* image = new QLabel(page);
  image->setObjectName(imageName);
  image->setAutoFillBackground(true);
  image->setStyleSheet(QStringLiteral("background: white"));
  image->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  layout->addWidget(MakeCommentEdit(page, commentName, QObject::tr("Graphic")));
  layout->addWidget(image, 1);
  return page;
}

QWidget* MakeTablePage(QWidget* parent) {
  auto* page = new QWidget(parent);
  auto* layout = new QVBoxLayout(page);
  auto* grid = new controls::TStringAlignGrid(kTableColumns, kTableRows, page);
  grid->setObjectName("StringAlignGridTab");
  for (int column = 0; column < kTableColumns; ++column) grid->SetColumnAlignment(column, Qt::AlignCenter);
  grid->SetDefaultColumnWidth(66);
  grid->SetDefaultRowHeight(18);
  grid->SetFixedRows(1);
  layout->addWidget(MakeCommentEdit(page, "EditComment3", QObject::tr("Output")));
  layout->addWidget(grid, 1);
  return page;
}

}  // namespace mainwin
