#pragma once

#include <string>

#include "sparameter_plot.h"

// The mouse read-out of the reflection and transmission windows at the world point (x, y) of
// their display mode: the reflection coefficient with its impedance at z0, VSWR and Q in the
// Smith chart; magnitude, dB or phase against frequency.
namespace graphwin::plots {

std::string SParameterReadOut(SWindow window, SView view, double x, double y, double z0);

}  // namespace graphwin::plots
