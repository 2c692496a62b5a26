// How files reach the main window: the load command and its dialog, the command line, the
// recent-files list, drops from the file manager, and the program chooser of "&Execute".
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QSettings>
#include <QUrl>
#include <filesystem>
#include <system_error>

#include "frequency_page.h"
#include "history_list.h"
#include "input_page.h"
#include "main_window.h"
#include "controls/message_box.h"
#include "file_names.h"
#include "numerics/data_set.h"
#include "numerics/file_reader.h"
#include "tools_menu.h"

namespace mainwin {
namespace {

constexpr int kCommandLineFiles = 4;
const char* const kLoadDirectoryKey = "Dialogs/LoadDirectory";
const char* const kExecDirectoryKey = "Dialogs/ExecDirectory";
const char* const kReadTouchstoneKey = "Options/ReadTouchstoneFiles";

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


QString StoreFullText() {
  return QObject::tr("No more than ") + QString::number(numerics::kMaxDataSets) + QObject::tr(" files can be open!");
}

bool Exists(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

}  // namespace

bool TSDIAppForm::RefuseWhenStoreFull() {
  if (numerics::DataSets().openCount < numerics::kMaxDataSets) return false;
  controls::ShowMessage(this, StoreFullText());
  return true;
}

void TSDIAppForm::Load1Click() {
  if (RefuseWhenStoreFull()) return;
  if (!openDialog1_) {
    openDialog1_ = MakeOpenDialog(this, "OpenDialog1", tr("S-Parameter (*.spm *.s2p);;All Files (*)"),
                                  kLoadDirectoryKey);
    openDialog1_->setDefaultSuffix(QStringLiteral("spm"));
  }
  openDialog1_->selectFile(QStringLiteral("*.spm"));
  const QString chosen = ChooseFile(openDialog1_, kLoadDirectoryKey);
  if (!chosen.isEmpty()) LoadFrequencyFile(chosen);
}

// A folder, a pipe or a device is named as such by the reader.
void TSDIAppForm::LoadFrequencyFile(const QString& fileName) {
  const std::string name = EncodeFileName(fileName);
  if (!Exists(name)) {
    controls::ShowMessage(this, tr("File -") + fileName + tr("- is not available!"));
    return;
  }
  std::error_code error;
  const std::string path = std::filesystem::absolute(name, error).lexically_normal().string();
  // Read first: a file that cannot be read must leave the series, the list and the page alone.
  const numerics::ReadingChoice choice{
      ReadsTouchstone() ? numerics::FileReading::Touchstone : numerics::FileReading::Plain, frequencyPage_->Z0()};
  const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(path, choice);
  if (outcome.status != numerics::LoadStatus::Loaded) {
    controls::ShowMessage(this, QString::fromStdString(outcome.message));
    return;
  }
  QStringList notes;
  for (const std::string& note : outcome.notes) notes.append(QString::fromStdString(note));
  if (!notes.isEmpty()) controls::ShowMessage(this, notes.join("\n\n"));
  // A file of the frequency page belongs to the bias series as well.
  series_.Append({path});
  historyList1_->Add(DecodeFileName(path));
  const numerics::TwoPortDataSet& set = numerics::DataSets().sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)];
  frequencyPage_->AddFile({path, set.title, set.pointCount, true});
}

void TSDIAppForm::LoadCommandLine(const QStringList& arguments) {
  for (const QString& argument : arguments.mid(0, kCommandLineFiles)) {
    if (Exists(EncodeFileName(argument))) {
      LoadFrequencyFile(argument);
    } else {
      controls::ShowMessage(this, tr("File ") + argument + tr(" is not present!"));
    }
  }
  if (arguments.size() > kCommandLineFiles) {
    controls::ShowMessage(this, StoreFullText() + ' ' +
                                    tr("Not loaded: %1").arg(arguments.mid(kCommandLineFiles).join(QStringLiteral(", "))));
  }
}

// The choice is kept in the per-user settings; the first start reads plain.
void TSDIAppForm::ReadTouchstoneFiles1Click(bool checked) {
  QSettings().setValue(kReadTouchstoneKey, checked);
  inputPage_->EnableAutomaticMultiplier(checked);
}

bool TSDIAppForm::ReadsTouchstone() const { return readTouchstoneFiles1_->isChecked(); }

void TSDIAppForm::RestoreReadingChoice(const QSettings& settings) {
  readTouchstoneFiles1_->setChecked(settings.value(kReadTouchstoneKey, false).toBool());
  inputPage_->EnableAutomaticMultiplier(ReadsTouchstone());
  connect(readTouchstoneFiles1_, &QAction::toggled, this, &TSDIAppForm::ReadTouchstoneFiles1Click);
}

void TSDIAppForm::HistoryList1Click(const QString& fileName) {
  if (!RefuseWhenStoreFull()) LoadFrequencyFile(fileName);
}

void TSDIAppForm::FilesDropped(const QStringList& paths) {
  if (paths.isEmpty()) return;
  if (pageNumber_ == 1) {
    if (!RefuseWhenStoreFull()) LoadFrequencyFile(paths.front());
  } else {
    AppendSeriesFiles(paths);
  }
}

// The output pages take no drops; the handler would extend the series there as well.
void TSDIAppForm::dragEnterEvent(QDragEnterEvent* event) {
  if (pageNumber_ <= 2 && event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void TSDIAppForm::dropEvent(QDropEvent* event) {
  QStringList paths;
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) paths.append(url.toLocalFile());
  }
  event->acceptProposedAction();
  FilesDropped(paths);
}

void TSDIAppForm::ExecButtonClick() {
  if (!execDialog_) {
    execDialog_ = MakeOpenDialog(this, "ExecDialog", tr("Programs (*)"), kExecDirectoryKey);
    execDialog_->setFilter(QDir::AllDirs | QDir::Files | QDir::Executable | QDir::NoDotAndDotDot);
  }
  const QString chosen = ChooseFile(execDialog_, kExecDirectoryKey);
  if (!chosen.isEmpty()) StartOrBeep(StartProgram(chosen));
}

}  // namespace mainwin
