// Pages 3 to 6: the graphs and the table drawn on entry, and the "&Graphic" menu.
#include <QAction>
#include <QLineEdit>
#include <QMenu>

#include "graph_page.h"
#include "input_page.h"
#include "main_window.h"
#include "output_pages.h"

namespace mainwin {
namespace {

using diagram::pages::OutputPage;

constexpr int kFirstGraphPage = 3;
constexpr int kTablePage = 6;

QAction* AddCheckItem(QMenu* menu, const char* name, const QString& caption) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  item->setCheckable(true);
  return item;
}

}  // namespace

QMenu* TSDIAppForm::BuildGraphicMenu() {
  auto* menu = new QMenu(tr("&Graphic"), this);
  menu->setObjectName("Graphic1");
  fTonly1_ = AddCheckItem(menu, "fTonly1", tr("f&T only"));
  fmaxonly1_ = AddCheckItem(menu, "fmaxonly1", tr("f&max only"));
  mAGMSGonly1_ = AddCheckItem(menu, "MAGMSGonly1", tr("&MAG/MSG only"));
  konly1_ = AddCheckItem(menu, "konly1", tr("&k only"));
  struct Toggle {
    QAction* item;
    QAction* partner;
    int redrawOnPage;
    OutputPage page;
  };
  const Toggle toggles[] = {{fTonly1_, fmaxonly1_, 2, OutputPage::FtFmax},
                            {fmaxonly1_, fTonly1_, 2, OutputPage::FtFmax},
                            {mAGMSGonly1_, konly1_, 3, OutputPage::KMag},
                            {konly1_, mAGMSGonly1_, 3, OutputPage::KMag}};
  for (const Toggle& t : toggles) {
    connect(t.item, &QAction::triggered, this,
            [this, t] { ToggleGraphicItem(t.item, t.partner, t.redrawOnPage, t.page); });
  }
  menu->addSeparator();
  connect(AddAction(menu, "ShowAll1", tr("Show &All"), tr("Show every series on the graph pages")),
          &QAction::triggered, this, &TSDIAppForm::ShowAll1Click);
  connect(AddAction(menu, "ShowfTandMAG1", tr("Show &fT and MAG"), tr("Show only fT and only MAG/MSG")),
          &QAction::triggered, this, &TSDIAppForm::ShowfTandMAG1Click);
  menu->addSeparator();
  connect(AddAction(menu, "CopyImage1", tr("&Copy Image"), tr("Copy the graph of the page to the clipboard")),
          &QAction::triggered, this, &TSDIAppForm::CopyImage1Click);
  return menu;
}

// The item has toggled its own check mark. The graph is redrawn at once only while the page
// before the affected one is shown; elsewhere the change shows when the page is entered.
void TSDIAppForm::ToggleGraphicItem(QAction* item, QAction* partner, int redrawOnPage, OutputPage page) {
  if (item->isChecked() && partner->isChecked()) partner->setChecked(false);
  if (series_.SeriesCount() >= 2 && pageNumber_ == redrawOnPage) RedrawGraphPage(page);
}

void TSDIAppForm::ShowAll1Click() {
  for (QAction* item : {fTonly1_, fmaxonly1_, mAGMSGonly1_, konly1_}) item->setChecked(false);
}

void TSDIAppForm::ShowfTandMAG1Click() {
  ShowAll1Click();
  fTonly1_->setChecked(true);
  mAGMSGonly1_->setChecked(true);
}

void TSDIAppForm::EnterOutputPage(int page) {
  if (page >= kFirstGraphPage && page < kTablePage) RedrawGraphPage(static_cast<OutputPage>(page - kFirstGraphPage));
  if (page == kTablePage) FillResultTable();
}

void TSDIAppForm::RedrawGraphPage(OutputPage page) {
  TGraphPage& graph = GraphPage(page);
  TakeCommentToOutputs(graph.CommentEdit());
  diagram::pages::PageScene scene{ShownResults(), OutputSettings(), inputPage_->ConnectPoints(), {}};
  scene.choice = {fTonly1_->isChecked(), fmaxonly1_->isChecked(), mAGMSGonly1_->isChecked(), konly1_->isChecked()};
  graph.Redraw(scene);
}

void TSDIAppForm::FillResultTable() {
  TakeCommentToOutputs(*editComment3_);
  ShowResultTable(*stringAlignGridTab_, series_, ShownResults(), OutputSettings());
}

// An edit holds one line: the comment's line ends become blanks.
void TSDIAppForm::TakeCommentToOutputs(QLineEdit& edit) const {
  if (!inputPage_->CommentToOutputs()) return;
  QString text = inputPage_->Comment();
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  text.replace(QLatin1Char('\n'), QLatin1Char(' '));
  edit.setText(text);
}

}  // namespace mainwin
