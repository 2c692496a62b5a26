#pragma once

#include <string>
#include <vector>

// Which of the paths dropped onto the series page can join the series.
namespace series {

struct DroppedFiles {
  std::vector<std::string> series;   // in drop order; a folder's files in name order at its place
  std::vector<std::string> refused;  // files that are no .s2p files, and folders without any
};

// A path ending in ".s2p" (any case) is taken as it is; a folder gives its own .s2p files (not
// those of subfolders) sorted by name; every other path is refused.
DroppedFiles SortOutDroppedPaths(const std::vector<std::string>& paths);

// The message naming the refused paths, and what to drop instead.
std::string RefusedFilesMessage(const std::vector<std::string>& refused);

}  // namespace series
