#include "gain_view.h"

#include "diagram/autoscale.h"
#include "diagram/scaling.h"
#include "graphwin/plots/gain_plot.h"

namespace app {

graphwin::plots::FrequencyPlot GainPlotOf(const RenderInput& input) {
  graphwin::plots::GraphInputs inputs;
  for (std::size_t i = 0; i < input.sets.size(); ++i) {
    inputs.files.push_back({input.sets[i], input.options.files[i], true});
  }
  return graphwin::plots::BuildGainPlot(inputs, input.options.gainCurves);
}

// As the window scales: its defaults, then x-log as its menu item switches it.
void DrawGainView(const RenderInput& input, diagram::Canvas& canvas) {
  const graphwin::plots::FrequencyPlot plot = GainPlotOf(input);
  diagram::Diagram& d = diagram::CurrentDiagram();
  d = diagram::Diagram{};
  graphwin::plots::SetGainDefaults(d, graphwin::plots::HighestFrequency(plot));
  if (input.options.xlog) {
    diagram::SetAxisModes(d, diagram::AxisMode::Log, diagram::AxisMode::Linear);
    const std::vector<double> frequencies = graphwin::plots::AllFrequencies(plot);
    diagram::AutoscaleX(d, frequencies, static_cast<int>(frequencies.size()));
  }
  graphwin::plots::DrawFrequencyPlot(plot, graphwin::plots::PlotLook{}, canvas);
}

}  // namespace app
