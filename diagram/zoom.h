#pragma once

#include "diagram_state.h"

// The zoom buttons of the graph windows, on the whole scale state: a linear, polar or Smith
// axis shrinks or grows its distance from the origin by 1.5, a log axis by a decade at each
// end. Both grid steps become NiceStep(range / 30).
namespace diagram {

void ZoomIn(Diagram& d);
void ZoomOut(Diagram& d);

}  // namespace diagram
