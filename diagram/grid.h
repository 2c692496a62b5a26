#pragma once

#include "canvas.h"
#include "diagram_state.h"

// The dotted grid, drawn in the current colour before the axes: lines at every
// (n * step) of a linear axis, at 2..9 times each decade of a log axis, and concentric circles
// around the origin in polar and Smith diagrams (the Smith chart's own grid is DrawSmithGrid).
// nx and ny are the pages' label intervals.
namespace diagram {

void DrawGrid(const Diagram& d, int nx, int ny, Canvas& canvas);

}  // namespace diagram
