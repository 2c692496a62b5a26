#pragma once

#include <span>

#include "diagram_state.h"

// Axis limits, crossing and grid step from the data, rounded to round numbers. Both scan the
// first count values; values is the whole array (its size is the capacity) and count the number
// of valid values. Data without any finite value change
// nothing.
namespace diagram {

void AutoscaleX(Diagram& d, std::span<const double> values, int count);
void AutoscaleY(Diagram& d, std::span<const double> values, int count);

}  // namespace diagram
