#pragma once

#include "diagram_state.h"

namespace diagram {

// Pixel of a world value, clamped to the axis ends.
int ToPixel(const Axis& a, double v);
// The same mapping without rounding or clamping.
double ToPixelExact(const Axis& a, double v);
// World value of a pixel; pixels beyond the ends give values beyond the range.
double FromPixel(const Axis& a, double pixel);

bool IsRoundMode(AxisMode mode);

}  // namespace diagram
