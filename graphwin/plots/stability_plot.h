#pragma once

#include <string>

#include "diagram/diagram_state.h"
#include "frequency_plot.h"
#include "graph_inputs.h"

// What the stability window plots: Rollett's k, mu and the unilateral figure of merit u against
// frequency, as they are (not in dB), for every active file; its titles, the defaults it starts
// with and its mouse read-out.
namespace graphwin::plots {

// The three check boxes of the window.
struct StabilityChoice {
  bool k = true;
  bool u = false;
  bool mu = false;
};

// k is checked again when a click has left no box checked.
StabilityChoice AfterStabilityClick(StabilityChoice choice);

// The diagram title naming the checked curves, e.g. "k(f) and µ(f)".
std::string StabilityTitle(const StabilityChoice& choice);

// The chosen curves of every active file; k and mu are the k and mu columns of netrix --figures.
FrequencyPlot BuildStabilityPlot(const GraphInputs& inputs, const StabilityChoice& choice);

// A frequency axis from a hundredth of NiceStep(highest) to it, values from 0 to 2 in steps of 0.05.
void SetStabilityDefaults(diagram::Diagram& d, double highestFrequency);

// The hidden table export: the gain window's, under a header of its own.
std::string StabilityTableText(double f0);

// "Position : f=1.00GHz, y=1.25".
std::string StabilityReadOut(double x, double y);

}  // namespace graphwin::plots
