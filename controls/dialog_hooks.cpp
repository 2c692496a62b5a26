#include "dialog_hooks.h"

#include <QDir>
#include <QFileDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QSettings>
#include <utility>

namespace controls {
namespace {

const char* const kSaveDirectoryKey = "Dialogs/SaveDirectory";

SaveFileHandler& SaveFileAnswer() {
  static SaveFileHandler handler;
  return handler;
}

PrinterHandler& PrinterAnswer() {
  static PrinterHandler handler;
  return handler;
}

ModalHandler& ModalAnswer() {
  static ModalHandler handler;
  return handler;
}

}  // namespace

QString ChooseSaveFile(QWidget* parent, const SaveDialogSetup& setup) {
  if (SaveFileAnswer()) return SaveFileAnswer()(setup);
  QFileDialog dialog(parent, setup.title);
  dialog.setObjectName(setup.name);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilter(setup.filter);
  dialog.setDefaultSuffix(setup.defaultSuffix);
  dialog.setDirectory(QSettings().value(kSaveDirectoryKey, QDir::currentPath()).toString());
  dialog.selectFile(setup.initialName);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return QString();
  QSettings().setValue(kSaveDirectoryKey, dialog.directory().absolutePath());
  return dialog.selectedFiles().front();
}

bool ChoosePrinter(QWidget* parent, QPrinter& printer) {
  if (PrinterAnswer()) return PrinterAnswer()(PrinterDialog::Print, printer);
  QPrintDialog dialog(&printer, parent);
  return dialog.exec() == QDialog::Accepted;
}

bool SetUpPrinter(QWidget* parent, QPrinter& printer) {
  if (PrinterAnswer()) return PrinterAnswer()(PrinterDialog::PageSetup, printer);
  QPageSetupDialog dialog(&printer, parent);
  return dialog.exec() == QDialog::Accepted;
}

int RunModal(QDialog& dialog) {
  if (ModalAnswer()) return ModalAnswer()(dialog);
  return dialog.exec();
}

DialogInterception::DialogInterception(SaveFileHandler saveFile, PrinterHandler printer)
    : previousSaveFile_(std::exchange(SaveFileAnswer(), std::move(saveFile))),
      previousPrinter_(std::exchange(PrinterAnswer(), std::move(printer))) {}

DialogInterception::~DialogInterception() {
  SaveFileAnswer() = std::move(previousSaveFile_);
  PrinterAnswer() = std::move(previousPrinter_);
}

ModalInterception::ModalInterception(ModalHandler handler)
    : previous_(std::exchange(ModalAnswer(), std::move(handler))) {}

ModalInterception::~ModalInterception() { ModalAnswer() = std::move(previous_); }

}  // namespace controls
