#pragma once

#include "diagram/canvas.h"
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

using PageRoutine = void (*)(const PageScene& scene, diagram::Canvas& canvas);
PageRoutine RoutineOf(OutputPage page);

}  // namespace diagram::pages
