#pragma once

#include <vector>

#include "axis.h"

// Where ticks, labels and grid lines stand on an axis, as world values. Pure functions, so the
// positions are tested without drawing.
namespace diagram {

// Linear, polar and Smith axes: crossing + k * step, first upwards while below max - step (the
// arrow head needs the room), then downwards while above min. Log axes: the decades from the
// crossing up, below max.
std::vector<double> TickValues(const Axis& a, double step);

// Every labelEvery-th tick from the crossing up to max, then down to min; on a log axis each
// decade from the crossing up to max / 10, so the decade at the arrow has none.
std::vector<double> LabelValues(const Axis& a);

// Linear: crossing +- k * spacing, k >= 1, inside the range (the axis itself stands at the
// crossing). Log: 2..9 times each decade from the crossing, and the decades, up to max.
// Polar and Smith axes have circles instead (see DrawGrid).
std::vector<double> GridValues(const Axis& a, double spacing);

}  // namespace diagram
