#pragma once

#include <QString>
#include <functional>

class QDialog;
class QPrinter;
class QWidget;

// The save dialogs, the printer dialogs and the program's own modal dialogs. Like the message
// boxes they go through here, so that a test chooses the file, the printer or the dialog's
// answer instead of a person.
namespace controls {

struct SaveDialogSetup {
  const char* name;       // object name of the dialog, e.g. "SaveDialogSPA"
  QString title;
  QString filter;         // Qt filter text, e.g. "Data Files (*.spa)"
  QString defaultSuffix;  // without the dot
  QString initialName;
};

enum class PrinterDialog { Print, PageSetup };

using SaveFileHandler = std::function<QString(const SaveDialogSetup& setup)>;
using PrinterHandler = std::function<bool(PrinterDialog dialog, QPrinter& printer)>;
// Answers a shown dialog (with its controls, as a person would) and returns its result.
using ModalHandler = std::function<int(QDialog& dialog)>;

// The chosen path; empty when the user cancelled.
QString ChooseSaveFile(QWidget* parent, const SaveDialogSetup& setup);
// The print dialog on printer; false when the user cancelled.
bool ChoosePrinter(QWidget* parent, QPrinter& printer);
// The page set-up dialog on printer; false when the user cancelled.
bool SetUpPrinter(QWidget* parent, QPrinter& printer);

// Shows the dialog modally; its result, QDialog::Accepted or QDialog::Rejected.
int RunModal(QDialog& dialog);

// Replaces the dialogs by the handlers until destroyed.
class DialogInterception {
 public:
  DialogInterception(SaveFileHandler saveFile, PrinterHandler printer);
  ~DialogInterception();
  DialogInterception(const DialogInterception&) = delete;
  DialogInterception& operator=(const DialogInterception&) = delete;

 private:
  SaveFileHandler previousSaveFile_;
  PrinterHandler previousPrinter_;
};

// Replaces every modal run of the program's own dialogs by handler until destroyed.
class ModalInterception {
 public:
  explicit ModalInterception(ModalHandler handler);
  ~ModalInterception();
  ModalInterception(const ModalInterception&) = delete;
  ModalInterception& operator=(const ModalInterception&) = delete;

 private:
  ModalHandler previous_;
};

}  // namespace controls
