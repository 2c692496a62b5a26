#include "result_outputs.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPrinter>
#include <utility>

#include "bias_series.h"
#include "controls/dialog_hooks.h"
#include "controls/message_box.h"
#include "controls/string_align_grid.h"
#include "graph_image.h"
#include "graph_page.h"
#include "imageexport/picture_files.h"
#include "input_page.h"
#include "output_pages.h"
#include "page_printing.h"
#include "series/table_cells.h"

namespace mainwin {
namespace {

using diagram::pages::OutputPage;

QAction* AddCheckItem(QMenu* menu, const char* name, const QString& caption) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  item->setCheckable(true);
  return item;
}

}  // namespace

ResultOutputs::ResultOutputs(QWidget& window, const BiasSeries& series, const InputPage& input,
                             std::function<MainPage()> shownPage)
    : window_(window), series_(series), input_(input), shownPage_(std::move(shownPage)) {}

ResultOutputs::~ResultOutputs() = default;

ResultOutputs::Pages ResultOutputs::BuildPages(QWidget* parent) {
  graphPages_ = {
      new TGraphPage(OutputPage::FtFmax, {"Image1", "EditComment1", "LabelLegende1", "fT - crosses "}, parent),
      new TGraphPage(OutputPage::KMag, {"Image2", "EditComment2", "LabelLegende2", "k - crosses "}, parent),
      new TGraphPage(OutputPage::StabilityLimit, {"Image3", "EditComment4", nullptr, nullptr}, parent)};
  const TablePage table = MakeTablePage(parent);
  stringAlignGridTab_ = table.grid;
  editComment3_ = table.comment;
  for (int column = 0; column < static_cast<int>(series::kTableColumnCount); ++column) {
    stringAlignGridTab_->SetCells(column, 0, QString::fromUtf8(series::kTableHeader[static_cast<std::size_t>(column)]));
  }
  return {graphPages_, table.page};
}

void ResultOutputs::AddGraphicChoice(QMenu* menu) {
  fTonly1_ = AddCheckItem(menu, "fTonly1", QStringLiteral("f&T only"));
  fmaxonly1_ = AddCheckItem(menu, "fmaxonly1", QStringLiteral("f&max only"));
  mAGMSGonly1_ = AddCheckItem(menu, "MAGMSGonly1", QStringLiteral("&MAG/MSG only"));
  konly1_ = AddCheckItem(menu, "konly1", QStringLiteral("&k only"));
  struct Toggle {
    QAction* item;
    QAction* partner;
    MainPage redrawOn;
    OutputPage page;
  };
  const Toggle toggles[] = {{fTonly1_, fmaxonly1_, MainPage::Input, OutputPage::FtFmax},
                            {fmaxonly1_, fTonly1_, MainPage::Input, OutputPage::FtFmax},
                            {mAGMSGonly1_, konly1_, MainPage::FtFmax, OutputPage::KMag},
                            {konly1_, mAGMSGonly1_, MainPage::FtFmax, OutputPage::KMag}};
  for (const Toggle& t : toggles) {
    QObject::connect(t.item, &QAction::triggered, &window_,
                     [this, t] { ToggleGraphicItem(t.item, t.partner, t.redrawOn, t.page); });
  }
}

// The item has toggled its own check mark. The graph is redrawn at once only while the page
// before the affected one is shown; elsewhere the change shows when the page is entered.
void ResultOutputs::ToggleGraphicItem(QAction* item, QAction* partner, MainPage redrawOn, OutputPage page) {
  if (item->isChecked() && partner->isChecked()) partner->setChecked(false);
  if (series_.Count() >= 2 && shownPage_() == redrawOn) RedrawGraphPage(page);
}

void ResultOutputs::ShowAll() {
  for (QAction* item : {fTonly1_, fmaxonly1_, mAGMSGonly1_, konly1_}) item->setChecked(false);
}

void ResultOutputs::ShowFtAndMag() {
  ShowAll();
  fTonly1_->setChecked(true);
  mAGMSGonly1_->setChecked(true);
}

TGraphPage& ResultOutputs::GraphPage(OutputPage page) const {
  return *graphPages_[static_cast<std::size_t>(page)];
}

void ResultOutputs::EnterPage(MainPage page) {
  if (const std::optional<OutputPage> graph = GraphOfPage(page)) RedrawGraphPage(*graph);
  if (page == MainPage::Table) FillResultTable();
}

void ResultOutputs::RedrawGraphPage(OutputPage page) {
  TGraphPage& graph = GraphPage(page);
  TakeCommentToOutputs(graph.CommentEdit());
  diagram::pages::PageScene scene{series_.ShownResults(), series_.OutputSettings(), input_.ConnectPoints(), {}};
  scene.choice = {fTonly1_->isChecked(), fmaxonly1_->isChecked(), mAGMSGonly1_->isChecked(), konly1_->isChecked()};
  graph.Redraw(scene);
}

void ResultOutputs::FillResultTable() {
  TakeCommentToOutputs(*editComment3_);
  ShowResultTable(*stringAlignGridTab_, series_.List(), series_.ShownResults(), series_.OutputSettings());
}

QString ResultOutputs::TakeTableComment() {
  TakeCommentToOutputs(*editComment3_);
  return editComment3_->text();
}

// An edit holds one line: the comment's line ends become blanks.
void ResultOutputs::TakeCommentToOutputs(QLineEdit& edit) const {
  if (!input_.CommentToOutputs()) return;
  QString text = input_.Comment();
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  text.replace(QLatin1Char('\n'), QLatin1Char(' '));
  edit.setText(text);
}

QPrinter& ResultOutputs::Printer() {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

void ResultOutputs::PrintSheets(const std::vector<Sheet>& sheets) {
  QPrinter& printer = Printer();
  if (!controls::ChoosePrinter(&window_, printer)) return;
  QPainter painter;
  if (!painter.begin(&printer)) {
    controls::ShowMessage(&window_, QStringLiteral("The printer could not be started. Check it with \"Printer "
                                                   "Setup...\" and print again!"));
    return;
  }
  const QRect area(0, 0, printer.width(), printer.height());
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    if (i > 0) printer.newPage();
    sheets[i](painter, area);
  }
}

ResultOutputs::Sheet ResultOutputs::GraphSheet(OutputPage page) {
  return [&graph = GraphPage(page)](QPainter& painter, const QRect& area) { PaintGraphSheet(painter, area, graph); };
}

ResultOutputs::Sheet ResultOutputs::TableSheet() {
  return [this, rows = static_cast<int>(series_.Count())](QPainter& painter, const QRect& area) {
    PaintTableSheet(painter, area, editComment3_->text(), *stringAlignGridTab_, rows);
  };
}

// The page shown: its graph or its table; the first two pages print the window as it looks.
void ResultOutputs::PrintShownPage() {
  const MainPage shown = shownPage_();
  if (const std::optional<OutputPage> graph = GraphOfPage(shown)) {
    PrintSheets({GraphSheet(*graph)});
  } else if (shown == MainPage::Table) {
    PrintSheets({TableSheet()});
  } else {
    PrintSheets({[picture = window_.grab()](QPainter& painter, const QRect& area) {
      PaintWindowSheet(painter, area, picture);
    }});
  }
}

bool ResultOutputs::RefuseWithoutTwoFiles() {
  if (series_.Count() >= 2) return false;
  controls::ShowMessage(&window_, kTwoFilesNeeded);
  return true;
}

// Every output is drawn afresh, as entering its page would.
void ResultOutputs::PrintAll() {
  if (RefuseWithoutTwoFiles()) return;
  for (const OutputPage page : {OutputPage::FtFmax, OutputPage::KMag, OutputPage::StabilityLimit}) {
    RedrawGraphPage(page);
  }
  FillResultTable();
  PrintSheets({GraphSheet(OutputPage::FtFmax), GraphSheet(OutputPage::KMag), GraphSheet(OutputPage::StabilityLimit),
               TableSheet()});
}

void ResultOutputs::PrintFirstTwo() {
  if (RefuseWithoutTwoFiles()) return;
  RedrawGraphPage(OutputPage::FtFmax);
  RedrawGraphPage(OutputPage::KMag);
  PrintSheets({[this](QPainter& painter, const QRect& area) {
    PaintGraphPairSheet(painter, area, GraphPage(OutputPage::FtFmax), GraphPage(OutputPage::KMag));
  }});
}

void ResultOutputs::PrintTable() {
  if (RefuseWithoutTwoFiles()) return;
  FillResultTable();
  PrintSheets({TableSheet()});
}

void ResultOutputs::SetUpPrinter() { controls::SetUpPrinter(&window_, Printer()); }

TGraphPage* ResultOutputs::ShownGraphPage() {
  if (const std::optional<OutputPage> graph = GraphOfPage(shownPage_())) {
    TGraphPage& page = GraphPage(*graph);
    if (!page.Image().Picture().isNull()) return &page;
  }
  controls::ShowMessage(&window_, QStringLiteral("There is no graph on this page. Show \"fT, fmax Output\", \"k, MSG, "
                                                 "MAG Output\" or \"Stability Limit\" first, then copy or save its "
                                                 "graph!"));
  return nullptr;
}

void ResultOutputs::CopyImage() {
  if (TGraphPage* page = ShownGraphPage()) QGuiApplication::clipboard()->setImage(page->Image().Picture());
}

void ResultOutputs::SaveGraphPicture(bool jpeg) {
  TGraphPage* page = ShownGraphPage();
  if (!page) return;
  using controls::SaveDialogSetup;
  const SaveDialogSetup setup =
      jpeg ? SaveDialogSetup{"SaveDialogJPG", QStringLiteral("Save Graph to JPG File"),
                             QStringLiteral("JPG Files (*.jpg)"), QStringLiteral("jpg"), QString()}
           : SaveDialogSetup{"SaveDialogBMP", QStringLiteral("Save Graph to BMP File"),
                             QStringLiteral("BMP Files (*.bmp)"), QStringLiteral("bmp"), QString()};
  const QString path = controls::ChooseSaveFile(&window_, setup);
  if (path.isEmpty()) return;
  const QImage& picture = page->Image().Picture();
  const imageexport::ExportResult written =
      jpeg ? imageexport::SaveJpeg(picture, path.toStdString()) : imageexport::SaveBmp(picture, path.toStdString());
  if (!written.Ok()) controls::ShowMessage(&window_, QString::fromStdString(written.error));
}

}  // namespace mainwin
