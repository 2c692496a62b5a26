#pragma once

#include <cstdint>

#include "canvas.h"
#include "colour.h"
#include "diagram_state.h"

// The Smith chart grid and the constant-Q arcs, drawn onto a frame set up in Smith mode. The
// chart's rim is the circle |r| = 1 of the diagram's own scale, so the grid, the curves and the
// mouse read-out agree; drawing stays inside the frame when the chart is zoomed.
namespace diagram {

enum class ChartKind : std::uint8_t { Impedance = 0, Admittance = 1, Combined = 2 };

// The admittance grid of the combined chart, told apart from the grey impedance grid.
inline constexpr Colour kAdmittanceGridColour = MakeColour(0x70, 0x90, 0xD0);

// 8 points when the picture is wider than 500 and higher than 400 pixels, else 6.
int SmithLabelPointSize(int width, int height);

// The rim, the real axis and the arcs of constant resistance and reactance in the current pen
// colour. With labels: the resistance circles in ohms at z0 (impedance chart) or in siemens
// (admittance chart), the reactance arcs at the rim, "0" and the infinity sign at the ends of
// the real axis.
void DrawSmithGrid(const Diagram& d, ChartKind kind, Canvas& canvas, bool labels, double z0);

// The two arcs of constant Q in black, the upper one labelled "Q=..."; nothing for q <= 0.
void DrawQArcs(const Diagram& d, Canvas& canvas, double q);

}  // namespace diagram
