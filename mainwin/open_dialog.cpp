#include "open_dialog.h"

#include <QFileDialog>
#include <QSettings>

namespace mainwin {

QFileDialog* MakeOpenDialog(QWidget* parent, const char* name, const QString& filter, const char* directoryKey) {
  auto* dialog = new QFileDialog(parent);
  dialog->setObjectName(name);
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setNameFilter(filter);
  dialog->setDirectory(QSettings().value(directoryKey, QDir::currentPath()).toString());
  return dialog;
}

QString ChooseFile(QFileDialog* dialog, const char* directoryKey) {
  if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty()) return QString();
  QSettings().setValue(directoryKey, dialog->directory().absolutePath());
  return dialog->selectedFiles().front();
}

}  // namespace mainwin
