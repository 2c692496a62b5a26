#include "file_loading.h"

#include <QAction>
#include <QFileDialog>
#include <QSettings>
#include <filesystem>
#include <system_error>

#include "bias_series.h"
#include "controls/message_box.h"
#include "file_names.h"
#include "frequency_page.h"
#include "history_list.h"
#include "input_page.h"
#include "numerics/data_set.h"
#include "numerics/file_reader.h"
#include "open_dialog.h"

namespace mainwin {
namespace {

constexpr int kCommandLineFiles = 4;
const char* const kLoadDirectoryKey = "Dialogs/LoadDirectory";
const char* const kReadTouchstoneKey = "Options/ReadTouchstoneFiles";

bool Exists(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

QString StoreFullText() { return QString::fromStdString(numerics::StoreFullMessage()); }

}  // namespace

FileLoading::FileLoading(QWidget& window, FrequencyPage& frequencyPage, InputPage& inputPage, BiasSeries& series)
    : window_(window), frequencyPage_(frequencyPage), inputPage_(inputPage), series_(series) {}

void FileLoading::AddRecentFiles(QMenu* fileMenu, QAction* base) {
  historyList1_ = new THistoryList(fileMenu, base, &window_);
  historyList1_->setObjectName("HistoryList1");
}

// The reading choice starts plain at the first start.
void FileLoading::Restore(QAction* readingItem, QSettings& settings) {
  readTouchstoneFiles1_ = readingItem;
  readTouchstoneFiles1_->setChecked(settings.value(kReadTouchstoneKey, false).toBool());
  inputPage_.EnableAutomaticMultiplier(ReadsTouchstone());
  historyList1_->SetRegPath(QStringLiteral("netrix"));
  historyList1_->SetRegKey(QStringLiteral("MRUList1"));
  historyList1_->SetMaxItems(6);
  historyList1_->Load(settings);
}

void FileLoading::Save(QSettings& settings) const { historyList1_->Save(settings); }

void FileLoading::ReadingChoiceChanged(bool touchstone) {
  QSettings().setValue(kReadTouchstoneKey, touchstone);
  inputPage_.EnableAutomaticMultiplier(touchstone);
}

bool FileLoading::ReadsTouchstone() const { return readTouchstoneFiles1_->isChecked(); }

bool FileLoading::RefuseWhenStoreFull() {
  if (numerics::DataSets().openCount < numerics::kMaxDataSets) return false;
  controls::ShowMessage(&window_, StoreFullText());
  return true;
}

void FileLoading::Load() {
  if (RefuseWhenStoreFull()) return;
  if (!openDialog1_) {
    openDialog1_ = MakeOpenDialog(&window_, "OpenDialog1", QStringLiteral("S-Parameter (*.spm *.s2p);;All Files (*)"),
                                  kLoadDirectoryKey);
    openDialog1_->setDefaultSuffix(QStringLiteral("spm"));
  }
  openDialog1_->selectFile(QStringLiteral("*.spm"));
  const QString chosen = ChooseFile(openDialog1_, kLoadDirectoryKey);
  if (!chosen.isEmpty()) LoadFile(chosen);
}

void FileLoading::LoadUnlessFull(const QString& fileName) {
  if (!RefuseWhenStoreFull()) LoadFile(fileName);
}

// A folder, a pipe or a device is named as such by the reader.
void FileLoading::LoadFile(const QString& fileName) {
  const std::string name = EncodeFileName(fileName);
  if (!Exists(name)) {
    controls::ShowMessage(&window_, QStringLiteral("File -%1- is not available!").arg(fileName));
    return;
  }
  std::error_code error;
  const std::string path = std::filesystem::absolute(name, error).lexically_normal().string();
  // Read first: a file that cannot be read must leave the series, the list and the page alone.
  const numerics::ReadingChoice choice{
      ReadsTouchstone() ? numerics::FileReading::Touchstone : numerics::FileReading::Plain, frequencyPage_.Z0()};
  const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(path, choice);
  if (outcome.status != numerics::LoadStatus::Loaded) {
    controls::ShowMessage(&window_, QString::fromStdString(outcome.message));
    return;
  }
  QStringList notes;
  for (const std::string& note : outcome.notes) notes.append(QString::fromStdString(note));
  if (!notes.isEmpty()) controls::ShowMessage(&window_, notes.join("\n\n"));
  series_.AppendLoaded(path);
  historyList1_->Add(DecodeFileName(path));
  const numerics::TwoPortDataSet& set = numerics::DataSets().sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)];
  frequencyPage_.AddFile({path, set.title, set.pointCount, true});
}

void FileLoading::LoadCommandLine(const QStringList& arguments) {
  for (const QString& argument : arguments.mid(0, kCommandLineFiles)) {
    if (Exists(EncodeFileName(argument))) {
      LoadFile(argument);
    } else {
      controls::ShowMessage(&window_, QString::fromStdString(numerics::MissingFileMessage(argument.toStdString())));
    }
  }
  if (arguments.size() > kCommandLineFiles) {
    controls::ShowMessage(&window_,
                          QStringLiteral("%1 Not loaded: %2")
                              .arg(StoreFullText(), arguments.mid(kCommandLineFiles).join(QStringLiteral(", "))));
  }
}

}  // namespace mainwin
