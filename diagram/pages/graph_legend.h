#pragma once

#include <QRect>
#include <QSize>
#include <span>

#include "diagram/canvas.h"
#include "diagram/diagram_state.h"
#include "graph_data.h"

// The legend inside an output graph: the marker and the name of every series drawn, in a white
// box in a corner of the frame, so that every picture of the graph says what it shows.
namespace diagram::pages {

// The corner of the frame for a box of the given size that covers no text and the fewest of the
// graph's markers: top right, top left, bottom right or bottom left, the first of equals.
QRect LegendBox(const diagram::Diagram& d, const PageGraph& graph, const QSize& size, std::span<const QRect> texts);

// Draws the legend after everything else of the graph, clear of the texts written so far.
void DrawLegend(const diagram::Diagram& d, const PageGraph& graph, diagram::Canvas& canvas);

}  // namespace diagram::pages
