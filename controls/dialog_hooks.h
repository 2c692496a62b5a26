#pragma once

#include <QString>
#include <functional>

class QPrinter;
class QWidget;

// The save dialogs and the printer dialogs of the windows. Like the message boxes they go
// through here, so that a test chooses the file or the printer instead of a person.
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

// The chosen path; empty when the user cancelled.
QString ChooseSaveFile(QWidget* parent, const SaveDialogSetup& setup);
// The print dialog on printer; false when the user cancelled.
bool ChoosePrinter(QWidget* parent, QPrinter& printer);
// The page set-up dialog on printer; false when the user cancelled.
bool SetUpPrinter(QWidget* parent, QPrinter& printer);

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

}  // namespace controls
