#include "dropped_files.h"

#include <algorithm>
#include <cassert>
#include <cctype>
#include <filesystem>
#include <system_error>

namespace series {
namespace {

namespace fs = std::filesystem;

bool IsSeriesFileName(const fs::path& path) {
  std::string extension = path.extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return extension == ".s2p";
}

// The folder's .s2p files by name; a folder that cannot be listed has none.
std::vector<std::string> SeriesFilesIn(const fs::path& folder) {
  std::vector<std::string> files;
  std::error_code error;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    if (it->is_regular_file(error) && IsSeriesFileName(it->path())) files.push_back(it->path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

DroppedFiles SortOutDroppedPaths(const std::vector<std::string>& paths) {
  DroppedFiles dropped;
  for (const std::string& path : paths) {
    std::error_code error;
    if (fs::is_directory(path, error)) {
      const std::vector<std::string> files = SeriesFilesIn(path);
      if (files.empty()) dropped.refused.push_back(path);
      dropped.series.insert(dropped.series.end(), files.begin(), files.end());
    } else if (IsSeriesFileName(path)) {
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
