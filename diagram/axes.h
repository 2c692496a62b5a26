#pragma once

#include "canvas.h"
#include "colour.h"
#include "diagram_state.h"

// Clearing the picture, the drawing colour and the two axes with arrow heads and ticks.
namespace diagram {

void ClearDiagram(Colour colour, Canvas& canvas);

// Pen and font colour together.
void SetDrawColour(Colour colour, Canvas& canvas);

// The horizontal axis at the row of y.cross with its arrow at the right, ticks downwards (upwards
// with flipX); the vertical axis at the column of x.cross with its arrow at the top, ticks to
// the left (to the right with flipY).
void DrawAxes(const Diagram& d, bool flipX, bool flipY, Canvas& canvas, double yStep, double xStep);

// How far the arrow head of the horizontal axis reaches back from its tip, in pixels.
int XArrowLength(const Diagram& d);

}  // namespace diagram
