#pragma once

#include <string>

#include "diagram/diagram_state.h"
#include "frequency_plot.h"
#include "graph_inputs.h"

// What the gain window plots: MAG or MSG, Mason's U, MUG and |S21|^2 in dB against frequency
// for every active file, the titles, the defaults it starts with and its mouse read-out.
namespace graphwin::plots {

// The four check boxes of the window.
struct GainChoice {
  bool mag = true;  // MAG/MSG
  bool mason = false;
  bool mug = false;
  bool s21 = false;
};

enum class GainBox { Mag, Mason, Mug, S21 };

// The choice after a click has changed one box: a click on MAG/MSG or Mason checks MAG/MSG
// again when no box is left checked; a click on MUG or |S21|^2 does so when MAG/MSG, Mason and
// MUG are unchecked, whatever |S21|^2 shows.
GainChoice AfterGainClick(GainChoice choice, GainBox clicked);

// The diagram title for the boxes MUG, Mason and MAG/MSG; empty where none fits.
std::string GainTitle(const GainChoice& choice);

// The chosen curves of every active file, point for point the figures of netrix --figures
// (MSG_or_MAG_dB, U_dB, MUG_dB, S21sq_dB).
FrequencyPlot BuildGainPlot(const GraphInputs& inputs, const GainChoice& choice);

// The ranges the window starts with at every activation, for data up to highestFrequency: a
// frequency axis from a hundredth of NiceStep(highest) to it, gains from -20 to 40 dB.
void SetGainDefaults(diagram::Diagram& d, double highestFrequency);

// The hidden table export as the program has always written it: the header naming the figures,
// then only frequencies, from NiceStep(f0 / 100) in steps of NiceStep of a third of that until
// they pass RoundUpOneDigit(2 f0).
std::string TableText(const std::string& header, double f0);
std::string GainTableText(double f0);

// "Position : f=1.00GHz, Gain=3.00dB (2.00)".
std::string GainReadOut(double x, double y);

}  // namespace graphwin::plots
