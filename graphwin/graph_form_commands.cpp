// What a graph window gives out: the clipboard copy, the picture files, the curve table and
// the printed page.
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>

#include "controls/dialog_hooks.h"
#include "controls/message_box.h"
#include "graph_form.h"
#include "imageexport/picture_files.h"

namespace graphwin {
namespace {

using controls::SaveDialogSetup;

// The one save dialog of the picture files, set up for each format.
SaveDialogSetup PictureDialog(const QString& title, const QString& filter, const char* suffix,
                              const QString& name = QString()) {
  return {"SaveDialog1", title, filter, QString::fromLatin1(suffix), name};
}

}  // namespace

void TGraphForm::Copy1Click() { QGuiApplication::clipboard()->setImage(picture_); }

void TGraphForm::Save1Click() {
  const QString path = controls::ChooseSaveFile(
      this,
      PictureDialog(QStringLiteral("Save as BMP"), QStringLiteral("Bitmap Files (*.bmp)"), "bmp", lastPictureFile_));
  if (path.isEmpty()) return;
  const imageexport::ExportResult written = imageexport::SaveBmp(picture_, path.toStdString());
  if (written.Ok()) {
    lastPictureFile_ = path;
  } else {
    controls::ShowMessage(this, QString::fromStdString(written.error));
  }
}

// The picture goes to the file by way of the clipboard, which keeps it afterwards.
void TGraphForm::SaveasJPEG1Click() {
  const QString path = controls::ChooseSaveFile(
      this, PictureDialog(QStringLiteral("Save as JPEG"), QStringLiteral("JPEG Files (*.jpg)"), "jpg"));
  if (path.isEmpty()) return;
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->setImage(picture_);
  const imageexport::ExportResult written = imageexport::SaveJpeg(clipboard->image(), path.toStdString());
  if (!written.Ok()) controls::ShowMessage(this, QString::fromStdString(written.error));
}

void TGraphForm::SaveasGIF1Click() {
  const QString path = controls::ChooseSaveFile(
      this, PictureDialog(QStringLiteral("Save as GIF"), QStringLiteral("GIF Image (*.gif)"), "gif"));
  if (path.isEmpty()) return;
  const imageexport::ExportResult written = imageexport::SaveGif(picture_, path.toStdString());
  if (!written.Ok()) controls::ShowMessage(this, QString::fromStdString(written.error));
}

void TGraphForm::ExportCurves1Click() {
  const QString path =
      controls::ChooseSaveFile(this, {"SaveDialogCSV", QStringLiteral("Export Curves as CSV"),
                                      QStringLiteral("CSV Files (*.csv)"), QStringLiteral("csv"), QString()});
  if (!path.isEmpty()) WriteTextFile(path, CurvesCsv());
}

void TGraphForm::WriteTextFile(const QString& path, const std::string& text) {
  const imageexport::ExportResult written = imageexport::SaveFileBytes(path.toStdString(), text);
  if (!written.Ok()) controls::ShowMessage(this, QString::fromStdString(written.error));
}

void TGraphForm::SaveTable(const std::string& text) {
  const QString path = controls::ChooseSaveFile(
      this, {"SaveDialogTabelle", QStringLiteral("Save Table"), QStringLiteral("Table File (*.tab)"),
             QStringLiteral("TAB"), QStringLiteral("*.TAB")});
  if (!path.isEmpty()) WriteTextFile(path, text);
}

QPrinter& TGraphForm::Printer() {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

void TGraphForm::AddPrinterSetupItem(const char* name) {
  connect(InsertFileItem(name, QStringLiteral("Printer &Setup")), &QAction::triggered, this,
          &TGraphForm::PrinterSetupClick);
}

void TGraphForm::PrinterSetupClick() { controls::SetUpPrinter(this, Printer()); }

void TGraphForm::Print1Click() {
  QPrinter& printer = Printer();
  if (PrintsBitmap() && printer.printerState() == QPrinter::Active) {
    controls::ShowMessage(this, QStringLiteral("Printer is already active!"));
    return;
  }
  if (!controls::ChoosePrinter(this, printer)) return;
  QPainter painter;
  if (!painter.begin(&printer)) {
    controls::ShowMessage(this, QStringLiteral("The printer could not be started. Check the printer and print again!"));
    return;
  }
  PrintPage(painter, QSize(printer.width(), printer.height()));
}

// The diagram alone, without the tool bar and the read-out, in the proportions of the window's
// picture: fitted to the page, or as wide as the page where the window prints its bitmap. It is
// drawn again at the printer's resolution through the window's drawing routine rather than
// stretching the screen's bitmap, so it prints as sharp as the printer can.
void TGraphForm::PrintPage(QPainter& painter, QSize page) {
  const QSize shape = picture_.isNull() ? QSize(4, 3) : picture_.size();
  if (!PrintsBitmap()) {
    PaintPicture(painter, shape.scaled(page, Qt::KeepAspectRatio));
    return;
  }
  const WindowSize printed = PrintedBitmapSize({shape.width(), shape.height()}, page.width());
  if (printed.height > 0) PaintPicture(painter, QSize(printed.width, printed.height));
}

}  // namespace graphwin
