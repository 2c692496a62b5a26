#pragma once

#include "diagram_state.h"

// One axis of the diagram state, so that every rule for "an axis" is written once and applied
// to the horizontal and the vertical axis alike. pixMin is the pixel of min (pixLeft, or
// pixBottom for the vertical axis) and pixMax the pixel of max.
namespace diagram {

struct Axis {
  AxisMode mode = AxisMode::Linear;
  double min = 0, max = 1;
  double logMin = 0, logMax = 0;
  double limitCopy = 1;
  double cross = 0;
  double step = 0.1;
  int labelEvery = 5;
  int pixMin = 0, pixMax = 0;
};

Axis XAxisOf(const Diagram& d);
Axis YAxisOf(const Diagram& d);
// Write back everything but the pixel frame.
void StoreXAxis(Diagram& d, const Axis& a);
void StoreYAxis(Diagram& d, const Axis& a);

// Pixel of a world value, clamped to the axis ends.
int ToPixel(const Axis& a, double v);
// The same mapping without rounding or clamping.
double ToPixelExact(const Axis& a, double v);
// World value of a pixel; pixels beyond the ends give values beyond the range.
double FromPixel(const Axis& a, double pixel);

bool IsRoundMode(AxisMode mode);

}  // namespace diagram
