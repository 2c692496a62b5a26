#pragma once

#include <optional>

#include "axis_labels.h"
#include "canvas.h"
#include "diagram_state.h"
#include "smith_chart.h"

// The frame of every diagram, drawn in one fixed order so that the output pages, the graph
// windows and netrix --render agree: the picture cleared to white, the state's ranges fitted to
// the canvas, the axis crossing placed, the grey grid, the black axes and their labels. The
// caller has set the modes, ranges, crossing and steps of the state before.
namespace diagram {

struct FrameLook {
  int gridX = 5;  // grid lines at every gridX-th step of the horizontal axis
  int gridY = 5;
  LabelPlacement labels;
  // A Smith chart grid (labelled in ohms at z0) instead of the grid, the axes and their labels.
  std::optional<ChartKind> smithChart;
  double z0 = 50;
};

// A cartesian or polar frame with grid lines (circles) at every n-th step of each axis.
FrameLook GridFrame(int gridX, int gridY);
// The Smith chart frame.
FrameLook SmithFrame(ChartKind chart, double z0);

// Leaves the bold diagram font and black selected for the curves and titles that follow.
void DrawFrame(Diagram& d, Canvas& canvas, const FrameLook& look);

}  // namespace diagram
