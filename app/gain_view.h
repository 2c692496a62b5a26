#pragma once

#include "diagram/canvas.h"
#include "graphwin/plots/frequency_plot.h"
#include "render_views.h"

// The gain window's picture as it opens, for netrix --render gain: the chosen curves of every
// file, the window's starting ranges (or its logarithmic frequency axis), the page's default
// display options.
namespace app {

graphwin::plots::FrequencyPlot GainPlotOf(const RenderInput& input);
void DrawGainView(const RenderInput& input, diagram::Canvas& canvas);

}  // namespace app
