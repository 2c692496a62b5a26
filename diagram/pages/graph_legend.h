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

// A blue ring, the one colour the pages leave free, around a point whose check failed; the brush
// is left clear.
void DrawRing(QPoint centre, int radius, diagram::Canvas& canvas);

// The corner of the frame for a box of the given size that covers no text and the fewest of the
// graph's markers: top right, top left, bottom right or bottom left, the first of equals.
QRect LegendBox(const diagram::Diagram& d, const PageGraph& graph, const QSize& size, std::span<const QRect> texts);

// Draws the legend after everything else of the graph, clear of the texts written so far; when
// rings were drawn, its last line says what a ring means.
void DrawLegend(const diagram::Diagram& d, const PageGraph& graph, bool ringed, diagram::Canvas& canvas);

}  // namespace diagram::pages
