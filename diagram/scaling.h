#pragma once

#include "diagram_state.h"

// Axis modes, ranges, the pixel frame and the conversions between world values and pixels.
namespace diagram {

struct PixelFrame {
  int left, right, top, bottom;
};

// The frame of a width x height picture: unequal margins leave room for the y labels on the
// left and the x labels below.
PixelFrame FrameOf(int width, int height);

// Polar wins over everything, then Smith; Linear and Log may be mixed.
void SetAxisModes(Diagram& d, AxisMode xMode, AxisMode yMode);

// Applies the range rules of the current modes, the logs and the pixel frame of a
// width x height picture. Polar and Smith diagrams get one pixel scale on both axes, the
// largest that keeps both ranges visible: the other axis is widened about its centre.
void SetupAxes(Diagram& d, int width, int height, double xMax, double xMin, double yMax, double yMin);

// The range rules again for one axis after its limits changed, in the frame of the last
// SetupAxes.
void RecomputeXAxis(Diagram& d);
void RecomputeYAxis(Diagram& d);

// A linear axis keeps a crossing inside its range, else crosses at its minimum; a log axis
// always crosses at its minimum, polar and Smith axes at 0.
void SetAxisCrossing(Diagram& d, double xCross, double yCross);

// Pixel column and row of a world value, clamped to the frame.
int XToPixel(const Diagram& d, double x);
int YToPixel(const Diagram& d, double y);
// World values of a pixel column and row (the mouse read-out).
double PixelToX(const Diagram& d, double column);
double PixelToY(const Diagram& d, double row);

bool IsInsideFrame(const Diagram& d, int column, int row);

}  // namespace diagram
