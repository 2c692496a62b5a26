#include "frequency_views.h"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "diagram/autoscale.h"
#include "diagram/scaling.h"
#include "graphwin/plots/gain_plot.h"
#include "graphwin/plots/impedance_plot.h"
#include "graphwin/plots/stability_plot.h"

namespace app {
namespace {

namespace plots = graphwin::plots;

struct FrequencyView {
  const char* name;
  plots::FrequencyPlot (*build)(const plots::GraphInputs& inputs, const RenderOptions& o);
  void (*setDefaults)(diagram::Diagram& d, double highestFrequency);
};

constexpr FrequencyView kFrequencyViews[] = {
    {kGainView, [](const auto& inputs, const auto& o) { return plots::BuildGainPlot(inputs, o.gainCurves); },
     plots::SetGainDefaults},
    {kStabilityView,
     [](const auto& inputs, const auto& o) { return plots::BuildStabilityPlot(inputs, o.stabilityCurves); },
     plots::SetStabilityDefaults},
    {kImpedanceView,
     [](const auto& inputs, const auto& o) {
       return plots::BuildImpedancePlot(inputs, o.impedanceCurves, o.impedanceMode);
     },
     plots::SetImpedanceDefaults},
};

const FrequencyView* FindFrequencyView(std::string_view name) {
  const auto found = std::find_if(std::begin(kFrequencyViews), std::end(kFrequencyViews),
                                  [&](const FrequencyView& v) { return name == v.name; });
  return found == std::end(kFrequencyViews) ? nullptr : found;
}

const FrequencyView& ViewOf(const RenderInput& input) {
  const FrequencyView* view = FindFrequencyView(input.options.view);
  assert(view != nullptr);
  return *view;
}

}  // namespace

plots::FrequencyPlot FrequencyPlotOf(const RenderInput& input) {
  plots::GraphInputs inputs;
  for (std::size_t i = 0; i < input.sets.size(); ++i) {
    inputs.files.push_back({input.sets[i], input.options.files[i], true});
  }
  return ViewOf(input).build(inputs, input.options);
}

// As the window scales: its defaults, then x-log as its menu item switches it.
void DrawFrequencyView(const RenderInput& input, diagram::Canvas& canvas) {
  const plots::FrequencyPlot plot = FrequencyPlotOf(input);
  diagram::Diagram& d = diagram::CurrentDiagram();
  d = diagram::Diagram{};
  ViewOf(input).setDefaults(d, plots::HighestFrequency(plot));
  if (input.options.xlog) {
    diagram::SetAxisModes(d, diagram::AxisMode::Log, diagram::AxisMode::Linear);
    const std::vector<double> frequencies = plots::AllFrequencies(plot);
    diagram::AutoscaleX(d, frequencies, static_cast<int>(frequencies.size()));
  }
  plots::DrawFrequencyPlot(plot, plots::PlotLook{}, canvas);
}

}  // namespace app
