#include "figures_command.h"

#include <filesystem>
#include <memory>
#include <ostream>
#include <thread>

#include "figures_rows.h"
#include "numerics/file_reader.h"
#include "numerics/text_file.h"
#include "ordered_work.h"
#include "output_safety.h"
#include "touchstone_option.h"

namespace app {
namespace {

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
    const std::vector<std::string> files = numerics::FilesInFolder(name, numerics::kDataFileExtensions);
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

std::string NonFiniteNote(const std::string& path, const NonFiniteRows& rows) {
  std::string frequency;
  AppendNumber(frequency, rows.firstFrequency);
  return "netrix --figures: " + std::to_string(rows.count) + (rows.count == 1 ? " row of " : " rows of ") + path +
         (rows.count == 1 ? " holds" : " hold") + " values that are not finite numbers (nan or inf), the first at " +
         frequency + " Hz; check the numbers of the file.";
}

FileResult EvaluateFile(const FiguresJob& job, const numerics::ReadingChoice& choice, bool withFileColumn) {
  if (!job.error.empty()) return {{}, job.error, {}};
  numerics::DataSetStore& store = ThreadStore();
  const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(store, job.path, choice);
  if (outcome.status != numerics::LoadStatus::Loaded) return {{}, outcome.message, {}};
  std::string field;
  if (withFileColumn) AppendCsvField(field, job.path);
  FileResult result{{}, {}, outcome.notes};
  const NonFiniteRows nonFinite =
      AppendFiguresRows(result.rows, store.sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)], field);
  if (nonFinite.count > 0) result.notes.push_back(NonFiniteNote(job.path, nonFinite));
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
  const bool written = StandardOutputWritten(out, err, "netrix --figures", "the figures");
  return allWritten && written ? 0 : 1;
}

}  // namespace app
