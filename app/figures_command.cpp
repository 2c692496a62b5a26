#include "figures_command.h"

#include <filesystem>
#include <memory>
#include <ostream>
#include <string_view>
#include <thread>

#include "figures_rows.h"
#include "numerics/file_reader.h"
#include "numerics/text_file.h"
#include "ordered_work.h"
#include "touchstone_option.h"

namespace app {
namespace {

// What a folder contributes: two-port Touchstone files and the program's own files.
constexpr std::string_view kDataExtensions[] = {".s2p", ".spm"};

struct FiguresJob {
  std::string path;
  std::string error;  // set for a folder that holds no data file
};

struct FiguresBatch {
  std::vector<FiguresJob> jobs;
  bool namesFolder = false;
};

struct FileResult {
  std::string rows;
  std::string error;  // empty when the file was read
  numerics::ReadNotes notes;
};

FiguresBatch ExpandFolders(const std::vector<std::string>& names) {
  FiguresBatch batch;
  for (const std::string& name : names) {
    std::error_code error;
    if (!std::filesystem::is_directory(name, error)) {
      batch.jobs.push_back({name, {}});
      continue;
    }
    batch.namesFolder = true;
    const std::vector<std::string> files = numerics::FilesInFolder(name, kDataExtensions);
    if (files.empty()) {
      batch.jobs.push_back({name, "netrix --figures: the folder " + name +
                                      " holds no .s2p or .spm file. Name S-parameter files or folders holding them."});
    }
    for (const std::string& file : files) batch.jobs.push_back({file, {}});
  }
  return batch;
}

// Files are read side by side: each thread keeps a store of its own from one file to the next.
numerics::DataSetStore& ThreadStore() {
  thread_local const std::unique_ptr<numerics::DataSetStore> store = std::make_unique<numerics::DataSetStore>();
  store->openCount = 0;
  return *store;
}

FileResult EvaluateFile(const FiguresJob& job, const numerics::ReadingChoice& choice, bool withFileColumn) {
  if (!job.error.empty()) return {{}, job.error, {}};
  numerics::DataSetStore& store = ThreadStore();
  const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(store, job.path, choice);
  if (outcome.status != numerics::LoadStatus::Loaded) return {{}, outcome.message, {}};
  std::string field;
  if (withFileColumn) AppendCsvField(field, job.path);
  FileResult result{{}, {}, outcome.notes};
  AppendFiguresRows(result.rows, store.sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)], field);
  return result;
}

numerics::ReadingChoice SplitReadingChoice(const std::vector<std::string>& args, std::vector<std::string>& names) {
  numerics::ReadingChoice choice;
  for (const std::string& arg : args) {
    if (arg == kTouchstoneOption) {
      choice.reading = numerics::FileReading::Touchstone;
    } else {
      names.push_back(arg);
    }
  }
  return choice;
}

std::string Header(bool withFileColumn) {
  std::string header;
  if (withFileColumn) header.append(kFileColumn).append(",");
  return header.append(kFiguresHeader).append("\n");
}

}  // namespace

int RunFiguresCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> names;
  const numerics::ReadingChoice choice = SplitReadingChoice(args, names);
  if (names.empty()) {
    err << "netrix --figures needs at least one file or folder name, for example: netrix --figures amplifier.s2p\n";
    return 1;
  }
  const FiguresBatch batch = ExpandFolders(names);
  const bool withFileColumn = batch.jobs.size() > 1 || batch.namesFolder;
  bool headerWritten = false;
  bool allWritten = true;
  ProduceInOrder<FileResult>(
      batch.jobs.size(), std::thread::hardware_concurrency(),
      [&](std::size_t i) { return EvaluateFile(batch.jobs[i], choice, withFileColumn); },
      [&](FileResult& file) {
        for (const std::string& note : file.notes) err << note << '\n';
        if (!file.error.empty()) {
          err << file.error << '\n';
          allWritten = false;
          return;
        }
        // The header comes with the first file read, so a lone file that fails writes nothing.
        if (!headerWritten) out << Header(withFileColumn);
        headerWritten = true;
        out << file.rows;
      });
  return allWritten && out.good() ? 0 : 1;
}

}  // namespace app
