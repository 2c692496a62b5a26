#pragma once

#include <string>
#include <vector>

// The files of the frequency page: up to four, in loading order (file i is data set i + 1 of
// the store), each with its active flag, and the display count n of the frequency points.
namespace mainwin {

inline constexpr double kLowestZ0 = 0.001;  // ohms
inline constexpr double kHighestZ0 = 1e6;

struct FrequencyFile {
  std::string path;
  std::string comment;  // the file's first line
  int pointCount = 0;
  bool active = true;
};

class FrequencyFiles {
 public:
  void Add(FrequencyFile file);
  void RemoveLast();
  void SetActive(int index, bool active);

  int Count() const { return static_cast<int>(files_.size()); }
  const FrequencyFile& File(int index) const { return files_.at(static_cast<std::size_t>(index)); }
  int ActiveCount() const;

  // n follows the one/more-than-one rule: with exactly one active file it starts at that file's
  // point count N and moves within 1..N; otherwise it is 0.
  int DisplayCount() const { return displayCount_; }
  int DisplayLimit() const;  // N, or 0 unless exactly one file is active
  void SpinUp();    // wraps from N to 1
  void SpinDown();  // wraps from 1 to N

  // The full paths joined with ",", for the graph windows' legends.
  std::string JoinedFileList() const;

 private:
  void ApplyActiveRule();

  std::vector<FrequencyFile> files_;
  int displayCount_ = 0;
};

// Z0 as typed, limited to kLowestZ0 .. kHighestZ0.
double LimitZ0(double ohms);

}  // namespace mainwin
