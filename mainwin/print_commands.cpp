// Printing, the picture files and the clipboard copy of the output pages, and the menu items
// that reach them.
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPrinter>

#include "controls/string_align_grid.h"
#include "controls/dialog_hooks.h"
#include "graph_image.h"
#include "graph_page.h"
#include "imageexport/picture_files.h"
#include "main_window.h"
#include "controls/message_box.h"
#include "page_printing.h"

namespace mainwin {
namespace {

using diagram::pages::OutputPage;

constexpr int kFirstGraphPage = 3;
constexpr int kTablePage = 6;

}  // namespace

void TSDIAppForm::AddOutputItems(QMenu* menu) {
  connect(AddAction(menu, "ExportData1", tr("&Export Data to ASCII File..."),
                    tr("Perform calculations and export to file")),
          &QAction::triggered, this, &TSDIAppForm::ExportData);
  connect(AddAction(menu, "SaveGraphBMP1", tr("Save Graph as &BMP..."), tr("Save the graph of the page as a BMP file")),
          &QAction::triggered, this, [this] { SaveGraphPicture(false); });
  connect(AddAction(menu, "SaveGraphJPG1", tr("Save Graph as &JPG..."), tr("Save the graph of the page as a JPG file")),
          &QAction::triggered, this, [this] { SaveGraphPicture(true); });
  menu->addSeparator();
  drucken1_ = AddAction(menu, "Drucken1", tr("&Print"), tr("Print window"));
  drucken1_->setShortcut(QKeySequence::Print);
  connect(drucken1_, &QAction::triggered, this, &TSDIAppForm::Drucken1Click);
  connect(AddAction(menu, "PrintAllWindows1", tr("Print &All Windows"), tr("Print the three graphs and the table")),
          &QAction::triggered, this, &TSDIAppForm::PrintAllWindows1Click);
  connect(AddAction(menu, "Print1stTwo1", tr("Print &1st Two Analysis Outputs"),
                    tr("Print the fT, fmax graph and the k, MAG graph on one sheet")),
          &QAction::triggered, this, &TSDIAppForm::Print1stTwo1Click);
  connect(AddAction(menu, "PrintTable1", tr("Print Output &Table"), tr("Print the result table")),
          &QAction::triggered, this, &TSDIAppForm::PrintTable1Click);
  connect(AddAction(menu, "PrinterSetup1", tr("Printer &Setup..."), tr("Choose the paper and its orientation")),
          &QAction::triggered, this, &TSDIAppForm::PrinterSetup1Click);
}

QPrinter& TSDIAppForm::Printer() {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

void TSDIAppForm::PrintSheets(const std::vector<Sheet>& sheets) {
  QPrinter& printer = Printer();
  if (!controls::ChoosePrinter(this, printer)) return;
  QPainter painter;
  if (!painter.begin(&printer)) {
    controls::ShowMessage(
        this, tr("The printer could not be started. Check it with \"Printer Setup...\" and print again!"));
    return;
  }
  const QRect area(0, 0, printer.width(), printer.height());
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    if (i > 0) printer.newPage();
    sheets[i](painter, area);
  }
}

TSDIAppForm::Sheet TSDIAppForm::GraphSheet(OutputPage page) {
  return [&graph = GraphPage(page)](QPainter& painter, const QRect& area) { PaintGraphSheet(painter, area, graph); };
}

TSDIAppForm::Sheet TSDIAppForm::TableSheet() {
  return [this, rows = static_cast<int>(series_.SeriesCount())](QPainter& painter, const QRect& area) {
    PaintTableSheet(painter, area, editComment3_->text(), *stringAlignGridTab_, rows);
  };
}

// The page shown: its graph or its table; the first two pages print the window as it looks.
void TSDIAppForm::Drucken1Click() {
  if (pageNumber_ >= kFirstGraphPage && pageNumber_ < kTablePage) {
    PrintSheets({GraphSheet(static_cast<OutputPage>(pageNumber_ - kFirstGraphPage))});
  } else if (pageNumber_ == kTablePage) {
    PrintSheets({TableSheet()});
  } else {
    PrintSheets({[window = grab()](QPainter& painter, const QRect& area) { PaintWindowSheet(painter, area, window); }});
  }
}

bool TSDIAppForm::RefuseWithoutTwoFiles() {
  if (series_.SeriesCount() >= 2) return false;
  controls::ShowMessage(this, tr("Please insert two or more files."));
  return true;
}

// Every output is drawn afresh, as entering its page would.
void TSDIAppForm::PrintAllWindows1Click() {
  if (RefuseWithoutTwoFiles()) return;
  for (const OutputPage page : {OutputPage::FtFmax, OutputPage::KMag, OutputPage::StabilityLimit}) {
    RedrawGraphPage(page);
  }
  FillResultTable();
  PrintSheets({GraphSheet(OutputPage::FtFmax), GraphSheet(OutputPage::KMag), GraphSheet(OutputPage::StabilityLimit),
               TableSheet()});
}

void TSDIAppForm::Print1stTwo1Click() {
  if (RefuseWithoutTwoFiles()) return;
  RedrawGraphPage(OutputPage::FtFmax);
  RedrawGraphPage(OutputPage::KMag);
  PrintSheets({[this](QPainter& painter, const QRect& area) {
    PaintGraphPairSheet(painter, area, GraphPage(OutputPage::FtFmax), GraphPage(OutputPage::KMag));
  }});
}

void TSDIAppForm::PrintTable1Click() {
  if (RefuseWithoutTwoFiles()) return;
  FillResultTable();
  PrintSheets({TableSheet()});
}

void TSDIAppForm::PrinterSetup1Click() { controls::SetUpPrinter(this, Printer()); }

TGraphPage* TSDIAppForm::ShownGraphPage() {
  if (pageNumber_ >= kFirstGraphPage && pageNumber_ < kTablePage) {
    TGraphPage& page = GraphPage(static_cast<OutputPage>(pageNumber_ - kFirstGraphPage));
    if (!page.Image().Picture().isNull()) return &page;
  }
  controls::ShowMessage(this, tr("There is no graph on this page. Show \"fT, fmax Output\", \"k, MSG, MAG Output\" or "
                       "\"Stability Limit\" first, then copy or save its graph!"));
  return nullptr;
}

void TSDIAppForm::CopyImage1Click() {
  if (TGraphPage* page = ShownGraphPage()) QGuiApplication::clipboard()->setImage(page->Image().Picture());
}

void TSDIAppForm::SaveGraphPicture(bool jpeg) {
  TGraphPage* page = ShownGraphPage();
  if (!page) return;
  using controls::SaveDialogSetup;
  const SaveDialogSetup setup =
      jpeg ? SaveDialogSetup{"SaveDialogJPG", tr("Save Graph to JPG File"), tr("JPG Files (*.jpg)"), "jpg", QString()}
           : SaveDialogSetup{"SaveDialogBMP", tr("Save Graph to BMP File"), tr("BMP Files (*.bmp)"), "bmp", QString()};
  const QString path = controls::ChooseSaveFile(this, setup);
  if (path.isEmpty()) return;
  const QImage& picture = page->Image().Picture();
  const imageexport::ExportResult written =
      jpeg ? imageexport::SaveJpeg(picture, path.toStdString()) : imageexport::SaveBmp(picture, path.toStdString());
  if (!written.Ok()) controls::ShowMessage(this, QString::fromStdString(written.error));
}

}  // namespace mainwin
