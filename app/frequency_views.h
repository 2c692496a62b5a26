#pragma once

#include "diagram/canvas.h"
#include "graphwin/plots/frequency_plot.h"
#include "render_views.h"

// The pictures of the windows of values against frequency (gain, stability, impedance) as they
// open, for netrix --render: the chosen curves of every file, the window's starting ranges (or
// its logarithmic frequency axis), the page's default display options.
namespace app {

// The curves of input's view, which is one of the frequency views.
graphwin::plots::FrequencyPlot FrequencyPlotOf(const RenderInput& input);
void DrawFrequencyView(const RenderInput& input, diagram::Canvas& canvas);

}  // namespace app
