#pragma once

#include "diagram_state.h"

// Whether a world point (the mouse, converted with PixelToX/PixelToY) is close enough to an
// end of an axis to grab it: the graph windows then ask for a new limit of that end.
namespace diagram {

inline constexpr int kAxisEndZone = 8;  // pixels either side of the axis end

bool IsAtXMaxEnd(const Diagram& d, double x, double y);
bool IsAtXMinEnd(const Diagram& d, double x, double y);
bool IsAtYMinEnd(const Diagram& d, double x, double y);
bool IsAtYMaxEnd(const Diagram& d, double x, double y);

}  // namespace diagram
