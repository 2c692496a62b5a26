#include "bias_series.h"

#include <QFile>
#include <QFileInfo>
#include <utility>

#include "controls/dialog_hooks.h"
#include "controls/message_box.h"
#include "input_page.h"
#include "numerics/file_writer.h"
#include "series/dropped_files.h"
#include "series/series_evaluation.h"
#include "series/series_messages.h"
#include "series/spa_export.h"

namespace mainwin {
namespace {

// The file holds its old content or the whole new one; an empty text means written.
QString WriteDataFile(const QString& path, const std::string& content) {
  const numerics::FileWriteOutcome written = numerics::WriteFileAtomically(QFile::encodeName(path).toStdString(), content);
  if (written.Ok()) return {};
  return QStringLiteral("The data could not be written to %1 (%2). Choose a folder you may write to and export again!")
      .arg(path, QString::fromStdString(written.reason));
}

}  // namespace

BiasSeries::BiasSeries(QWidget& window, InputPage& page, std::function<bool()> readsTouchstone)
    : window_(window), page_(page), readsTouchstone_(std::move(readsTouchstone)) {}

void BiasSeries::AppendFiles(const QStringList& paths) {
  std::vector<std::string> names;
  for (const QString& path : paths) names.push_back(QFileInfo(path).absoluteFilePath().toStdString());
  const series::DroppedFiles dropped = series::SortOutDroppedPaths(names);
  if (!dropped.refused.empty()) {
    controls::ShowMessage(&window_, QString::fromStdString(series::RefusedFilesMessage(dropped.refused)));
  }
  if (dropped.series.empty()) return;
  const series::AppendResult appended = series_.Append(dropped.series);
  if (!appended.message.empty()) {
    controls::ShowMessage(&window_, QString::fromStdString(appended.message));
    return;
  }
  Reordered();
}

// The whole list may hold forty files dropped from many folders: ask before it goes.
void BiasSeries::DeleteList() {
  const std::size_t count = series_.SeriesCount();
  if (count == 0) return;
  const QString question = QStringLiteral("Remove all %1 files from the series list?").arg(count);
  if (!controls::AskQuestion(&window_, question)) return;
  series_.DeleteAll();
  ShowFiles();
}

void BiasSeries::DeleteLast() {
  series_.DeleteLast();
  ShowFiles();
}

void BiasSeries::ShowFiles() { page_.ShowFiles(series_.Paths()); }

void BiasSeries::Reordered() {
  ShowFiles();
  if (page_.AutoCalculate()) Calculate();
}

// Selecting a file tells its values and offers to move it up by one; the first file changes
// places with the last. This is how the user sorts the series.
void BiasSeries::SelectCell(int row) {
  const std::size_t count = series_.SeriesCount();
  if (row < 1 || static_cast<std::size_t>(row) > count) return;
  const auto index = static_cast<std::size_t>(row - 1);
  const QString text = QString::fromStdString(series::FileValuesText(ShownResults()[index]));
  if (count == 1) {
    controls::ShowMessage(&window_, text);
    return;
  }
  if (!controls::AskQuestion(&window_, text + series::kMoveUpQuestion)) return;
  series_.MoveUp(index);
  Reordered();
}

bool BiasSeries::Calculate() {
  const series::SeriesSettings settings = OutputSettings();
  if (settings.density && !(settings.area > 0)) {
    controls::ShowMessage(&window_, QStringLiteral("The current density needs a transistor area above 0 µm². Enter "
                                                   "the area, then calculate again!"));
    return false;
  }
  const series::SeriesEvaluation evaluation = series::EvaluateSeries(series_, settings, results_);
  // The warnings of many files (each without a current, say) are one list in one box.
  QStringList messages;
  for (const std::string& message : evaluation.messages) messages.append(QString::fromStdString(message));
  if (!messages.isEmpty()) controls::ShowMessage(&window_, messages.join('\n'));
  return evaluation.completed;
}

// Both the page button and the menu item evaluate first, so the file always matches the list
// and the entries as they are now.
void BiasSeries::Export(const std::function<QString()>& comment) {
  if (!Calculate()) return;
  const QString path = controls::ChooseSaveFile(
      &window_, {"SaveDialogSPA", QStringLiteral("Save Calculated Data"), QStringLiteral("Data Files (*.spa)"),
                 QStringLiteral("spa"), QStringLiteral("*.spa")});
  if (path.isEmpty()) return;
  lastExportFile_ = path;
  series::SeriesSettings settings = OutputSettings();
  settings.comment = comment().toStdString();
  const QString error = WriteDataFile(path, series::SpaContent(series_, results_, settings));
  if (!error.isEmpty()) controls::ShowMessage(&window_, error);
}

series::SeriesArrays BiasSeries::ShownResults() const {
  series::SeriesArrays shown = results_;
  shown.resize(series_.SeriesCount());
  return shown;
}

series::SeriesSettings BiasSeries::OutputSettings() const {
  series::SeriesSettings settings = page_.EvaluationSettings();
  if (readsTouchstone_()) settings.reading = numerics::FileReading::Touchstone;
  return settings;
}

}  // namespace mainwin
