#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// The main window's file choosers ("OpenDialog1" for data files, "ExecDialog" for programs); each
// opens in the folder last chosen in it, kept in the per-user settings under directoryKey.
namespace mainwin {

QFileDialog* MakeOpenDialog(QWidget* parent, const char* name, const QString& filter, const char* directoryKey);
// The file chosen, or empty when the dialog was cancelled.
QString ChooseFile(QFileDialog* dialog, const char* directoryKey);

}  // namespace mainwin
