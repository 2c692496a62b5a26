#pragma once

#include <memory>

#include "graphwin/plots/graph_inputs.h"
#include "numerics/complex_value.h"
#include "numerics/data_set.h"

// Data sets made for the graph window tests: a point with S11 = S22 = 0, S21 = 2 and S12 = 0.1
// (both at 0 degrees) at every frequency. By hand: k = 1.04 / 0.4 = 2.6, MAG = 20 (2.6 - 2.4)
// = 4, MUG = |S21|^2 = 4, and Mason's U = 1.9^2 / (1.04 - 0.4) = 5.640625.
namespace graphwin_test {

inline constexpr double kMag = 4;
inline constexpr double kMasonU = 5.640625;

inline std::unique_ptr<numerics::TwoPortDataSet> MakeDataSet(int points, double firstHz, double stepHz) {
  auto set = std::make_unique<numerics::TwoPortDataSet>();
  set->title = "fixture device";
  set->pointCount = points;
  for (int i = 0; i < points; ++i) {
    const auto index = static_cast<std::size_t>(i);
    set->frequency[index] = firstHz + i * stepHz;
    set->points[index] = {{{numerics::MakePolar(0, 0), numerics::MakePolar(0.1, 0)},
                           {numerics::MakePolar(2, 0), numerics::MakePolar(0, 0)}}};
  }
  return set;
}

}  // namespace graphwin_test
