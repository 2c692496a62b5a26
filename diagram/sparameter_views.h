#pragma once

#include <string>
#include <vector>

#include "canvas.h"
#include "smith_chart.h"
#include "numerics/data_set.h"

// The S-parameters of loaded files as complete pictures, each a whole redraw on the
// program-wide diagram state: S11 and S22 in the Smith chart, S21 and S12 in a polar diagram,
// and |S21| in dB against frequency.
namespace diagram {

struct SParameterScene {
  std::vector<const numerics::TwoPortDataSet*> sets;
  std::vector<std::string> names;  // one per data set, shown beside its curves
  ChartKind chart = ChartKind::Impedance;
  std::vector<double> qValues;
  bool spline = true;
};

// S11 and S22 over the range -1 .. 1 that the reflection window starts with.
void DrawSmithView(const SParameterScene& scene, Canvas& canvas);
// S21 and S12 as the transmission window starts: a symmetric range of the largest magnitude.
void DrawPolarView(const SParameterScene& scene, Canvas& canvas);
// |S21| in dB against frequency on a logarithmic frequency axis.
void DrawCartesianView(const SParameterScene& scene, Canvas& canvas);

}  // namespace diagram
