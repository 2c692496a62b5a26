#pragma once

#include <cstdint>

// The one diagram state of the program: axis modes, world ranges, axis crossing, grid steps
// and the pixel frame of the picture being drawn. Every drawing operation reads it; a caller
// sets it up before drawing a picture, so two pictures are never drawn interleaved.
namespace diagram {

enum class AxisMode : std::uint8_t { Linear = 0, Log = 1, Polar = 2, Smith = 3 };

struct Diagram {
  AxisMode xMode = AxisMode::Linear;
  AxisMode yMode = AxisMode::Linear;
  double xMin = 0, xMax = 1;
  double yMin = 0, yMax = 1;
  double logXMin = 0, logXMax = 0;  // log10 of the limits, set in Log mode only
  double logYMin = 0, logYMax = 0;
  double xLimitCopy = 1, yLimitCopy = 1;  // xMax and yMax as SetupAxes left them
  double xCross = 0;  // world x of the vertical axis
  double yCross = 0;  // world y of the horizontal axis
  double xStep = 0.1, yStep = 0.1;
  int xLabelEvery = 5, yLabelEvery = 5;
  int firstIndex = 0;  // first array index that autoscaling and the curves look at
  int pixLeft = 0, pixRight = 0;  // columns of xMin and xMax
  int pixTop = 0, pixBottom = 0;  // rows of yMax and yMin
  int width = 0, height = 0;      // picture size when SetupAxes ran
};

// The program-wide state that the argument-free entry points use.
Diagram& CurrentDiagram();

}  // namespace diagram
