#include "dropped_files.h"

#include <cassert>
#include <filesystem>
#include <system_error>

#include "numerics/text_file.h"

namespace series {
namespace {

// Series files are Touchstone files of two-ports.
constexpr std::string_view kSeriesExtensions[] = {".s2p"};

}  // namespace

DroppedFiles SortOutDroppedPaths(const std::vector<std::string>& paths) {
  DroppedFiles dropped;
  for (const std::string& path : paths) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
      const std::vector<std::string> files = numerics::FilesInFolder(path, kSeriesExtensions);
      if (files.empty()) dropped.refused.push_back(path);
      dropped.series.insert(dropped.series.end(), files.begin(), files.end());
    } else if (numerics::HasExtension(path, kSeriesExtensions)) {
      dropped.series.push_back(path);
    } else {
      dropped.refused.push_back(path);
    }
  }
  return dropped;
}

std::string RefusedFilesMessage(const std::vector<std::string>& refused) {
  assert(!refused.empty());
  std::string names;
  for (const std::string& path : refused) names += (names.empty() ? "" : ", ") + path;
  return "Only .s2p files can join the series; left out: " + names +
         ". Drop S-parameter files (*.s2p) or folders holding them!";
}

}  // namespace series
