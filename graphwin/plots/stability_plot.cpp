#include "stability_plot.h"

#include <array>

#include "figure_curves.h"
#include "frequency_defaults.h"
#include "gain_plot.h"
#include "numerics/figures.h"
#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

constexpr FrequencyDefaults kStabilityDefaults{100, 0, 2, 0.05, 10};

struct StabilityFigure {
  bool StabilityChoice::*box;
  const char* name;
  const char* column;
  double numerics::TwoPortFigures::*value;
};

constexpr std::array<StabilityFigure, 3> kFigures = {{
    {&StabilityChoice::k, "k", "k", &numerics::TwoPortFigures::k},
    {&StabilityChoice::u, "u", "u", &numerics::TwoPortFigures::unilateralFigure},
    {&StabilityChoice::mu, "µ", "mu", &numerics::TwoPortFigures::mu},
}};

}  // namespace

StabilityChoice AfterStabilityClick(StabilityChoice choice) {
  if (!choice.k && !choice.u && !choice.mu) choice.k = true;
  return choice;
}

std::string StabilityTitle(const StabilityChoice& c) {
  if (!c.k) return c.mu ? (c.u ? "µ(f) and u(f)" : "µ(f)") : "u(f)";
  if (c.u && c.mu) return "k(f), u(f) and µ(f)";
  if (c.u) return "k(f) and u(f)";
  return c.mu ? "k(f) and µ(f)" : "k(f)";
}

// The whole figures routine, as u is among the results only it gives.
FrequencyPlot BuildStabilityPlot(const GraphInputs& inputs, const StabilityChoice& choice) {
  FrequencyPlot plot{"FOM : k, µ, etc.", StabilityTitle(choice), "FOM(f) :", "f in Hz", "", {}, {}};
  const std::vector<PlottedFigure> chosen = ChosenFigures(kFigures, choice);
  numerics::TwoPortState st;
  numerics::TwoPortFigures figures;
  const auto values = [&](const numerics::SParameters& point, std::vector<double>& out) {
    numerics::CopyPointToState(point, st);
    numerics::ComputeTwoPortFigures(st, numerics::FigureInputs{}, figures);
    for (const PlottedFigure& figure : chosen) out.push_back(figures.*kFigures[figure.slot].value);
  };
  AddFigureCurves(inputs, chosen, values, plot);
  return plot;
}

void SetStabilityDefaults(diagram::Diagram& d, double highestFrequency) {
  SetFrequencyDefaults(d, highestFrequency, kStabilityDefaults);
}

std::string StabilityTableText(double f0) {
  return TableText("Calculated values by NETRIX : f/Hz MAG/dB MSG/dB MUG/dB Mason/dB   k   µ   u", f0);
}

std::string StabilityReadOut(double x, double y) { return PositionText(x) + "y=" + numerics::FloatTextTrimmed(2, y); }

}  // namespace graphwin::plots
