#pragma once

#include <string>

#include "diagram/canvas.h"
#include "graphwin/plots/sparameter_plot.h"
#include "render_views.h"

// The reflection and transmission windows' pictures as they open in a display mode, for
// netrix --render reflection|transmission and the short names smith, polar and cartesian: the
// chosen parameters of every file, the window's starting ranges for the mode, the page's
// default display options.
namespace app {

struct SParameterView {
  graphwin::plots::SWindow window;
  graphwin::plots::SView view;
  graphwin::plots::SParameterChoice choice;
};

// The reflection and transmission windows in the mode and with the parameters of the options.
SParameterView ReflectionView(const RenderInput& input);
SParameterView TransmissionView(const RenderInput& input);
// The Smith chart of S11 and S22, the polar diagram of S21 and S12, and |S21| in dB.
SParameterView SmithView(const RenderInput& input);
SParameterView PolarView(const RenderInput& input);
SParameterView CartesianView(const RenderInput& input);

void DrawSParameterView(const RenderInput& input, const SParameterView& view, diagram::Canvas& canvas);
// The curves as the windows' "Export Curves as CSV..." writes them.
std::string SParameterTable(const RenderInput& input, const SParameterView& view);

}  // namespace app
