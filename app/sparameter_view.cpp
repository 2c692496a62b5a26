#include "sparameter_view.h"

#include <cmath>

#include "diagram/scaling.h"

namespace app {
namespace {

using graphwin::plots::SView;
using graphwin::plots::SWindow;

graphwin::plots::SParameterChoice ChoiceOf(SWindow window, const std::string& parameters) {
  using graphwin::DisplayMode;
  if (parameters == "s11") return *graphwin::plots::ChoiceOf(window, DisplayMode::InputReflection);
  if (parameters == "s22") return *graphwin::plots::ChoiceOf(window, DisplayMode::OutputReflection);
  if (parameters == "s21") return *graphwin::plots::ChoiceOf(window, DisplayMode::ForwardTransmission);
  if (parameters == "s12") return *graphwin::plots::ChoiceOf(window, DisplayMode::ReverseTransmission);
  return graphwin::plots::BothParameters(window);
}

SParameterView FromOptions(const RenderInput& input, SWindow window, SView firstView) {
  const RenderOptions& o = input.options;
  return {window, o.mode.value_or(firstView), ChoiceOf(window, o.parameters)};
}

graphwin::plots::GraphInputs InputsOf(const RenderInput& input) {
  graphwin::plots::GraphInputs inputs;
  for (std::size_t i = 0; i < input.sets.size(); ++i) inputs.files.push_back({input.sets[i], input.options.files[i], true});
  inputs.options.spline = input.options.spline;
  return inputs;
}

graphwin::plots::SParameterPlot PlotOf(const RenderInput& input, const SParameterView& setup) {
  const double zoom = setup.window == SWindow::Transmission ? input.options.s12Zoom : 1;
  return graphwin::plots::BuildSParameterPlot(InputsOf(input), setup.window, setup.choice, setup.view, zoom);
}

// The circles at the point of the first file nearest the asked frequency.
std::optional<graphwin::plots::MatchCircles> CirclesOf(const RenderInput& input) {
  if (!input.options.circlesFrequency || input.sets.empty() || input.sets.front()->pointCount < 1) return std::nullopt;
  const numerics::TwoPortDataSet& set = *input.sets.front();
  std::size_t nearest = 0;
  for (std::size_t i = 1; i < static_cast<std::size_t>(set.pointCount); ++i) {
    const double wanted = *input.options.circlesFrequency;
    if (std::fabs(set.frequency[i] - wanted) < std::fabs(set.frequency[nearest] - wanted)) nearest = i;
  }
  return graphwin::plots::MatchCirclesOf(set.points[nearest], set.frequency[nearest]);
}

}  // namespace

void DrawSParameterView(const RenderInput& input, const SParameterView& setup, diagram::Canvas& canvas) {
  const graphwin::plots::SParameterPlot plot = PlotOf(input, setup);
  diagram::Diagram& d = diagram::CurrentDiagram();
  d = diagram::Diagram{};
  graphwin::plots::SetViewDefaults(d, plot);
  graphwin::plots::LocusLook locus;
  if (setup.window == SWindow::Reflection) {
    locus.chart = input.options.chart;
    locus.qValues = input.options.qValues;
    locus.circles = CirclesOf(input);
  }
  graphwin::plots::PlotLook look;
  look.spline = input.options.spline;
  graphwin::plots::DrawSParameterPlot(plot, look, locus, canvas);
}

SParameterView ReflectionView(const RenderInput& input) { return FromOptions(input, SWindow::Reflection, SView::Smith); }
SParameterView TransmissionView(const RenderInput& input) {
  return FromOptions(input, SWindow::Transmission, SView::Polar);
}
SParameterView SmithView(const RenderInput&) {
  return {SWindow::Reflection, SView::Smith, graphwin::plots::BothParameters(SWindow::Reflection)};
}
SParameterView PolarView(const RenderInput&) {
  return {SWindow::Transmission, SView::Polar, graphwin::plots::BothParameters(SWindow::Transmission)};
}
SParameterView CartesianView(const RenderInput&) {
  return {SWindow::Transmission, SView::Decibels, {{diagram::kParameterS21}, "S21"}};
}

std::string SParameterTable(const RenderInput& input, const SParameterView& view) {
  return graphwin::plots::SParameterCsv(PlotOf(input, view));
}

}  // namespace app
