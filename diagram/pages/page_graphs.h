#pragma once

#include <QPoint>
#include <cstddef>
#include <optional>

#include "diagram/canvas.h"
#include "diagram/diagram_state.h"
#include "graph_data.h"
#include "page_scene.h"

// The one drawing routine of each output page. Each redraws the whole picture of the canvas's
// size on the program-wide diagram state and leaves that state as drawn, so that the caller can
// turn pixels back into values. The screen, the printer, the picture files and netrix --render
// all draw through these.
namespace diagram::pages {

// fT and fmax against the x choice (page "fT, fmax Output").
void DrawFtFmaxPage(const PageScene& scene, diagram::Canvas& canvas);
// k (ten times, unless only k is shown) and MAG/MSG in dB (page "k, MSG, MAG Output").
void DrawKMagPage(const PageScene& scene, diagram::Canvas& canvas);
// The stability limit f(k>1) (page "Stability Limit").
void DrawStabilityPage(const PageScene& scene, diagram::Canvas& canvas);

// Points whose fT or fmax check failed carry a ring of this radius in pixels.
int RingRadius(const diagram::Diagram& d);

// The pixel of one file's point of a series, on the state a page was drawn with.
QPoint PointPixel(const diagram::Diagram& d, const PageGraph& graph, const PlotSeries& series, std::size_t file);

struct CheckedPoint {
  series::CheckedFigure figure;
  std::size_t file;  // index into the scene's results
};

// The first point within a ring's radius of the pixel at that carries a check, in drawing order.
std::optional<CheckedPoint> CheckedPointNear(const diagram::Diagram& d, const PageGraph& graph, QPoint at);

using PageRoutine = void (*)(const PageScene& scene, diagram::Canvas& canvas);
PageRoutine RoutineOf(OutputPage page);

}  // namespace diagram::pages
