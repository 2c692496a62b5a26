#include "frequency_files.h"

#include <algorithm>
#include <cassert>

#include "numerics/data_set.h"

namespace mainwin {

void FrequencyFiles::Add(FrequencyFile file) {
  assert(Count() < numerics::kMaxDataSets);
  file.active = true;
  files_.push_back(std::move(file));
  ApplyActiveRule();
}

void FrequencyFiles::RemoveLast() {
  assert(!files_.empty());
  files_.pop_back();
  ApplyActiveRule();
}

void FrequencyFiles::SetActive(int index, bool active) {
  files_.at(static_cast<std::size_t>(index)).active = active;
  ApplyActiveRule();
}

int FrequencyFiles::ActiveCount() const {
  return static_cast<int>(std::count_if(files_.begin(), files_.end(), [](const FrequencyFile& f) { return f.active; }));
}

int FrequencyFiles::DisplayLimit() const {
  if (ActiveCount() != 1) return 0;
  const auto single = std::find_if(files_.begin(), files_.end(), [](const FrequencyFile& f) { return f.active; });
  return std::max(single->pointCount, 0);
}

void FrequencyFiles::ApplyActiveRule() { displayCount_ = DisplayLimit(); }

void FrequencyFiles::SpinUp() {
  const int limit = DisplayLimit();
  if (limit < 1) return;
  displayCount_ = displayCount_ >= limit ? 1 : std::clamp(displayCount_ + 1, 1, limit);
}

void FrequencyFiles::SpinDown() {
  const int limit = DisplayLimit();
  if (limit < 1) return;
  displayCount_ = displayCount_ < 2 ? limit : std::clamp(displayCount_ - 1, 1, limit);
}

std::string FrequencyFiles::JoinedFileList() const {
  std::string joined;
  for (const FrequencyFile& file : files_) {
    if (!joined.empty()) joined += ',';
    joined += file.path;
  }
  return joined;
}

double LimitZ0(double ohms) { return std::clamp(ohms, kLowestZ0, kHighestZ0); }

}  // namespace mainwin
