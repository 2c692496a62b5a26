#pragma once

#include <array>
#include <string>

#include "complex_value.h"
#include "two_port_state.h"

// The store of loaded two-port data sets: up to four files, each up to 253 points.
namespace numerics {

inline constexpr int kMaxDataSets = 4;
inline constexpr int kReadCapacity = 254;  // records the reader takes; the last is always dropped
inline constexpr int kMaxPoints = kReadCapacity - 1;

// S-parameters of one point; s[row][column] with 0-based indices, so s[1][0] is S21.
struct SParameters {
  ComplexValue s[2][2];
};

struct TwoPortDataSet {
  std::string title;  // the file's first line, verbatim
  std::array<double, kReadCapacity> frequency{};  // Hz; index 0 is the file's first data line
  std::array<SParameters, kReadCapacity> points{};  // Polar, linear magnitude, unwrapped angle
  int pointCount = 0;  // -1 for a file that ends after its title line
};

struct DataSetStore {
  std::array<TwoPortDataSet, kMaxDataSets> sets;  // data set number n is sets[n - 1]
  int openCount = 0;                              // number of the last data set filled
  double frequencyMaximum = 0;                    // highest frequency ever read
};

// The program-wide store.
DataSetStore& DataSets();

// Copies the S-parameters of a point into the working S matrix.
void CopyPointToState(const SParameters& point, TwoPortState& st);

}  // namespace numerics
