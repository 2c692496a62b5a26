// The bias series on page 2: dropped files, the list buttons, reordering by selection, the
// evaluation and the ASCII export.
#include <QFileInfo>
#include <QLineEdit>
#include <QSaveFile>

#include "controls/dialog_hooks.h"
#include "input_page.h"
#include "main_window.h"
#include "series/dropped_files.h"
#include "series/series_evaluation.h"
#include "series/series_messages.h"
#include "series/spa_export.h"
#include "controls/message_box.h"

namespace mainwin {
namespace {

// The file holds its old content or the whole new one; an empty text means written.
QString WriteDataFile(const QString& path, const std::string& content) {
  QSaveFile file(path);
  const auto size = static_cast<qint64>(content.size());
  if (file.open(QIODevice::WriteOnly) && file.write(content.data(), size) == size && file.commit()) return {};
  return QObject::tr("The data could not be written to ") + path + " (" + file.errorString() +
         QObject::tr("). Choose a folder you may write to and export again!");
}

}  // namespace

void TSDIAppForm::AppendSeriesFiles(const QStringList& paths) {
  std::vector<std::string> names;
  for (const QString& path : paths) names.push_back(QFileInfo(path).absoluteFilePath().toStdString());
  const series::DroppedFiles dropped = series::SortOutDroppedPaths(names);
  if (!dropped.refused.empty()) {
    controls::ShowMessage(this, QString::fromStdString(series::RefusedFilesMessage(dropped.refused)));
  }
  if (dropped.series.empty()) return;
  const series::AppendResult appended = series_.Append(dropped.series);
  if (!appended.message.empty()) {
    controls::ShowMessage(this, QString::fromStdString(appended.message));
    return;
  }
  inputPage_->ShowFiles(series_.Paths());
  if (inputPage_->AutoCalculate()) CalculateSeries();
}

// The whole list may hold forty files dropped from many folders: ask before it goes.
void TSDIAppForm::SpeedButtonDeleteListClick() {
  const std::size_t count = series_.SeriesCount();
  if (count == 0) return;
  const QString question = QStringLiteral("Remove all %1 files from the series list?").arg(count);
  if (!controls::AskQuestion(this, question)) return;
  series_.DeleteAll();
  inputPage_->ShowFiles(series_.Paths());
}

void TSDIAppForm::SpeedButtonDeletaLastFileClick() {
  series_.DeleteLast();
  inputPage_->ShowFiles(series_.Paths());
}

// Selecting a file tells its values and offers to move it up by one; the first file changes
// places with the last. This is how the user sorts the series.
void TSDIAppForm::StringGridFilesSelectCell(int row) {
  const std::size_t count = series_.SeriesCount();
  if (row < 1 || static_cast<std::size_t>(row) > count) return;
  const auto index = static_cast<std::size_t>(row - 1);
  const QString text = QString::fromStdString(series::FileValuesText(ShownResults()[index]));
  if (count == 1) {
    controls::ShowMessage(this, text);
    return;
  }
  if (!controls::AskQuestion(this, text + series::kMoveUpQuestion)) return;
  series_.MoveUp(index);
  inputPage_->ShowFiles(series_.Paths());
  if (inputPage_->AutoCalculate()) CalculateSeries();
}

bool TSDIAppForm::CalculateSeries() {
  const series::SeriesSettings settings = OutputSettings();
  if (settings.density && !(settings.area > 0)) {
    controls::ShowMessage(this, tr("The current density needs a transistor area above 0 µm². Enter the area, then "
                         "calculate again!"));
    return false;
  }
  const series::SeriesEvaluation evaluation = series::EvaluateSeries(series_, settings, results_);
  // The warnings of many files (each without a current, say) are one list in one box.
  QStringList messages;
  for (const std::string& message : evaluation.messages) messages.append(QString::fromStdString(message));
  if (!messages.isEmpty()) controls::ShowMessage(this, messages.join('\n'));
  return evaluation.completed;
}

// Both the page button and the menu item evaluate first, so the file always matches the list
// and the entries as they are now.
void TSDIAppForm::ExportData() {
  if (!CalculateSeries()) return;
  const QString path = controls::ChooseSaveFile(
      this, {"SaveDialogSPA", tr("Save Calculated Data"), tr("Data Files (*.spa)"), QStringLiteral("spa"),
             QStringLiteral("*.spa")});
  if (path.isEmpty()) return;
  lastExportFile_ = path;
  TakeCommentToOutputs(*editComment3_);
  series::SeriesSettings settings = OutputSettings();
  settings.comment = editComment3_->text().toStdString();
  const QString error = WriteDataFile(path, series::SpaContent(series_, results_, settings));
  if (!error.isEmpty()) controls::ShowMessage(this, error);
}

// Files never evaluated show zeros, as a freshly reset result would.
series::SeriesArrays TSDIAppForm::ShownResults() const {
  series::SeriesArrays shown = results_;
  shown.resize(series_.SeriesCount());
  return shown;
}

series::SeriesSettings TSDIAppForm::OutputSettings() const {
  series::SeriesSettings settings = inputPage_->EvaluationSettings();
  if (ReadsTouchstone()) settings.reading = numerics::FileReading::Touchstone;
  return settings;
}

}  // namespace mainwin
