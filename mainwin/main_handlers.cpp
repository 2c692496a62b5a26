// The commands of the main window's menus, buttons and pages, each handed to the class that holds
// its page's logic, and the drops from the file manager.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QUrl>

#include "bias_series.h"
#include "file_loading.h"
#include "main_window.h"
#include "open_dialog.h"
#include "result_outputs.h"
#include "tools_menu.h"

namespace mainwin {
namespace {

const char* const kExecDirectoryKey = "Dialogs/ExecDirectory";

}  // namespace

void TSDIAppForm::Load1Click() { loading_->Load(); }
void TSDIAppForm::LoadFrequencyFile(const QString& fileName) { loading_->LoadFile(fileName); }
void TSDIAppForm::HistoryList1Click(const QString& fileName) { loading_->LoadUnlessFull(fileName); }
void TSDIAppForm::ReadTouchstoneFiles1Click(bool checked) { loading_->ReadingChoiceChanged(checked); }

void TSDIAppForm::SpeedButtonDeleteListClick() { series_->DeleteList(); }
void TSDIAppForm::SpeedButtonDeletaLastFileClick() { series_->DeleteLast(); }
void TSDIAppForm::StringGridFilesSelectCell(int row) { series_->SelectCell(row); }
void TSDIAppForm::BitBtnCalcClick() { series_->Calculate(); }
void TSDIAppForm::ExportData() {
  series_->Export([this] { return outputs_->TakeTableComment(); });
}

void TSDIAppForm::ShowAll1Click() { outputs_->ShowAll(); }
void TSDIAppForm::ShowfTandMAG1Click() { outputs_->ShowFtAndMag(); }
void TSDIAppForm::CopyImage1Click() { outputs_->CopyImage(); }
void TSDIAppForm::SaveGraphBMP1Click() { outputs_->SaveGraphPicture(false); }
void TSDIAppForm::SaveGraphJPG1Click() { outputs_->SaveGraphPicture(true); }
void TSDIAppForm::Drucken1Click() { outputs_->PrintShownPage(); }
void TSDIAppForm::PrintAllWindows1Click() { outputs_->PrintAll(); }
void TSDIAppForm::Print1stTwo1Click() { outputs_->PrintFirstTwo(); }
void TSDIAppForm::PrintTable1Click() { outputs_->PrintTable(); }
void TSDIAppForm::PrinterSetup1Click() { outputs_->SetUpPrinter(); }

void TSDIAppForm::FilesDropped(const QStringList& paths) {
  if (paths.isEmpty()) return;
  if (page_ == MainPage::Frequency) {
    loading_->LoadUnlessFull(paths.front());
  } else {
    series_->AppendFiles(paths);
  }
}

// The output pages take no drops; the handler would extend the series there as well.
void TSDIAppForm::dragEnterEvent(QDragEnterEvent* event) {
  if (!IsOutputPage(page_) && event->mimeData()->hasUrls()) event->acceptProposedAction();
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
    execDialog_ = MakeOpenDialog(this, "ExecDialog", QStringLiteral("Programs (*)"), kExecDirectoryKey);
    execDialog_->setFilter(QDir::AllDirs | QDir::Files | QDir::Executable | QDir::NoDotAndDotDot);
  }
  const QString chosen = ChooseFile(execDialog_, kExecDirectoryKey);
  if (!chosen.isEmpty()) StartOrBeep(StartProgram(chosen));
}

}  // namespace mainwin
