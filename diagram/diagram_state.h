#pragma once

#include <cstdint>

// The one diagram state of the program: axis modes, world ranges, axis crossing, grid steps
// and the pixel frame of the picture being drawn. Every drawing operation reads it; a caller
// sets it up before drawing a picture, so two pictures are never drawn interleaved.
namespace diagram {

enum class AxisMode : std::uint8_t { Linear = 0, Log = 1, Polar = 2, Smith = 3 };

// One axis, so that every rule for "an axis" is written once and applied to the horizontal and the
// vertical axis alike. pixMin is the pixel of min (the left column, or the bottom row for the
// vertical axis) and pixMax the pixel of max.
struct Axis {
  AxisMode mode = AxisMode::Linear;
  double min = 0, max = 1;
  double logMin = 0, logMax = 0;  // log10 of the limits, set in Log mode only
  double limitCopy = 1;           // max as SetupAxes left it
  double cross = 0;               // world value where the other axis crosses this one
  double step = 0.1;
  int labelEvery = 5;
  int pixMin = 0, pixMax = 0;
};

struct Diagram {
  Axis x, y;
  int width = 0, height = 0;  // picture size when SetupAxes ran
};

// The program-wide state that the series pages draw with.
Diagram& CurrentDiagram();

}  // namespace diagram
