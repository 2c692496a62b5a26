#pragma once

#include "diagram/diagram_state.h"

// The scale a window of values against frequency starts with at every activation.
namespace graphwin::plots {

struct FrequencyDefaults {
  double lowestDivisor;  // the frequency axis starts at its rounded end divided by this
  double yMin, yMax, yStep;
  int labelEvery;  // the engine's two counts
};

// A frequency axis from NiceStep(highest) / defaults.lowestDivisor to NiceStep(highest), with a grid step of
// NiceStep(its end / 50), crossing at its start; the values as the defaults say. Without a point
// to scale to (highest 0), the frequency axis still gets a frame.
void SetFrequencyDefaults(diagram::Diagram& d, double highestFrequency, const FrequencyDefaults& defaults);

}  // namespace graphwin::plots
