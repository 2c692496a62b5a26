#include "series_list.h"

#include <cassert>
#include <utility>

namespace series {

AppendResult SeriesList::Append(const std::vector<std::string>& paths) {
  if (paths_.size() >= kMaxSeriesFiles) return {0, kSeriesFullMessage};
  AppendResult result;
  for (const std::string& path : paths) {
    if (paths_.size() >= kMaxSeriesFiles) break;
    paths_.push_back(path);
    ++result.added;
  }
  return result;
}

void SeriesList::DeleteLast() {
  if (!paths_.empty()) paths_.pop_back();
}

void SeriesList::DeleteAll() { paths_.clear(); }

void SeriesList::MoveUp(std::size_t index) {
  assert(index < paths_.size());
  const std::size_t other = index == 0 ? paths_.size() - 1 : index - 1;
  std::swap(paths_[index], paths_[other]);
}

}  // namespace series
