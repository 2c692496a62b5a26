#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "canvas.h"
#include "diagram_state.h"

// Tick labels and axis titles.
namespace diagram {

struct AxisLabel {
  double value;
  std::string text;
};

// The labels of one axis with the SI-prefix format and just enough decimals for every label to
// read its exact value, or at least to differ from its neighbours: "2.5G", "5.0G", "7.5G".
std::vector<AxisLabel> XAxisLabels(const Diagram& d);
std::vector<AxisLabel> YAxisLabels(const Diagram& d);

struct LabelPlacement {
  bool xLabelsAbove = false;  // above the horizontal axis instead of below it
  bool yLabelsRight = false;  // right of the vertical axis instead of left of it
};

// Centred under (or over) the x ticks, beside the y ticks; the y label at the crossing on the
// other side of the horizontal axis than its labels. A linear axis whose limits are equal gets
// no labels.
void DrawAxisLabels(const Diagram& d, LabelPlacement placement, Canvas& canvas);

// The title of the horizontal axis ends left of its arrow head, above the axis (below it with
// below set, for diagrams whose labels stand above).
void DrawXTitle(const Diagram& d, std::string_view text, bool below, Canvas& canvas);
// The title of the vertical axis is centred over its arrow head.
void DrawYTitle(const Diagram& d, std::string_view text, Canvas& canvas);

}  // namespace diagram
