#pragma once

#include <cstddef>
#include <string>
#include <vector>

// The bias series: up to 40 file paths in order of arrival, one per operating point.
namespace series {

inline constexpr std::size_t kMaxSeriesFiles = 40;
inline constexpr const char* kSeriesFullMessage =
    "Maximum of 40 files reached! Perform calculation to get the results.";

struct AppendResult {
  std::size_t added = 0;
  std::string message;  // kSeriesFullMessage when the list was already full, else empty
};

class SeriesList {
 public:
  // Appends in the given order while fewer than 40 are held; the rest are dropped silently.
  // A list that is already full takes nothing and says so.
  AppendResult Append(const std::vector<std::string>& paths);
  // Removes the last path; nothing happens on an empty list.
  void DeleteLast();
  void DeleteAll();
  // Exchanges the path at index with the one above it; the first exchanges with the last.
  void MoveUp(std::size_t index);

  std::size_t SeriesCount() const { return paths_.size(); }
  const std::vector<std::string>& Paths() const { return paths_; }
  const std::string& Path(std::size_t index) const { return paths_.at(index); }

 private:
  std::vector<std::string> paths_;
};

}  // namespace series
