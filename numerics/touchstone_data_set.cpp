#include "touchstone_data_set.h"

#include "real_functions.h"
#include "sweep_angles.h"
#include "touchstone_reader.h"

namespace numerics {
namespace {

constexpr double kLowestFrequency = 1e-9;
constexpr double kHighestFrequency = 1e15;

// Index of the k-th of kept points spread evenly over total points: k (total - 1) / (kept - 1)
// rounded to the nearest, a tie to the even index, as numerical libraries round.
std::size_t ThinnedIndex(std::size_t k, std::size_t kept, std::size_t total) {
  const std::size_t span = kept - 1;
  const std::size_t whole = k * (total - 1) / span;
  const std::size_t twiceRest = 2 * (k * (total - 1) % span);
  return whole + (twiceRest > span || (twiceRest == span && whole % 2 == 1) ? 1 : 0);
}

void AddNotes(const TouchstoneData& data, const std::string& fileName, ReadNotes& notes) {
  if (!data.hasOptionLine) {
    notes.push_back("File " + fileName +
                    " has no \"#\" option line, so the Touchstone defaults apply: frequencies in GHz, S-parameters "
                    "as magnitude and angle, reference 50 ohms.");
  }
  if (data.frequency.size() > static_cast<std::size_t>(kMaxPoints)) {
    notes.push_back("File " + fileName + " holds " + std::to_string(data.frequency.size()) + " frequency points; " +
                    std::to_string(kMaxPoints) + " of them, spread evenly from the first to the last, are kept.");
  }
  if (data.noisePoints > 0) {
    notes.push_back("File " + fileName + " also holds noise parameters at " + std::to_string(data.noisePoints) +
                    (data.noisePoints == 1 ? " frequency" : " frequencies") +
                    "; they are not S-parameters and are left out.");
  }
}

}  // namespace

double FillDataSetFromTouchstone(std::string_view content, const std::string& fileName, double z0, TwoPortDataSet& set,
                                 ReadNotes& notes) {
  const TouchstoneData data = ReadTouchstone(content, fileName);
  const std::size_t total = data.frequency.size();
  const auto kept = static_cast<std::size_t>(Min(static_cast<int>(total), kMaxPoints));
  set.title = data.title;
  set.pointCount = static_cast<int>(kept);
  double highest = 0;
  for (std::size_t k = 0; k < kept; ++k) {
    const std::size_t from = total == kept ? k : ThinnedIndex(k, kept, total);
    set.frequency[k] = ClampValue(kHighestFrequency, kLowestFrequency, data.frequency[from] * data.frequencyUnit);
    highest = Max(highest, set.frequency[k]);
    SParameters& point = set.points[k];
    point = TouchstoneScattering(data, from, z0, fileName);
    for (auto& row : point.s) {
      for (ComplexValue& z : row) z.second = FoldOnce(z.second);
    }
    if (k > 0) UnwrapAgainst(point, set.points[k - 1]);
  }
  AddNotes(data, fileName, notes);
  return highest;
}

}  // namespace numerics
