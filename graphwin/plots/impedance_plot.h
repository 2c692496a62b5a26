#pragma once

#include <string>

#include "diagram/diagram_state.h"
#include "frequency_plot.h"
#include "graph_inputs.h"

// What the impedance window plots: impedances derived from the Y matrix of every active file
// against frequency, as magnitude, real part or quality factor; its titles, the defaults it
// starts with and its mouse read-out.
namespace graphwin::plots {

// The five check boxes of the window, in the order of its tool bar.
struct ImpedanceChoice {
  bool sym = false;    // "symmetrical": across both ports driven in push-pull, Z11 + Z22 - Z12 - Z21
  bool port1 = true;   // 1 / Y11, port 2 short-circuited
  bool port2 = false;  // 1 / Y22, port 1 short-circuited
  bool cross = false;  // "Cross": 1 / Ya, the series element of the pi model between the ports
  bool image = false;  // "Zchar": the image impedance sqrt(B / C) of the chain matrix
};

enum class ImpedanceMode { Magnitude, Real, Q };

// Port1 is checked again when a click has left no box checked.
ImpedanceChoice AfterImpedanceClick(ImpedanceChoice choice);

// The chosen curves of every active file at the page's Z0: |Z|, Re(Z) or Q = Im(Z) / Re(Z), signed.
FrequencyPlot BuildImpedancePlot(const GraphInputs& inputs, const ImpedanceChoice& choice, ImpedanceMode mode);

// A frequency axis from a thousandth of NiceStep(highest) to it, values from 0 to 1000 Ohm,
// both grid steps a fiftieth of their range.
void SetImpedanceDefaults(diagram::Diagram& d, double highestFrequency);

// "Position : f=1.00GHz, |Z|= 50.00" in the Mag(Z) mode, "..., Re(Z)=" in the two others.
std::string ImpedanceReadOut(double x, double y, ImpedanceMode mode);

}  // namespace graphwin::plots
