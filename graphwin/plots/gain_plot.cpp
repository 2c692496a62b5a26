#include "gain_plot.h"

#include <array>
#include <cmath>

#include "figure_curves.h"
#include "frequency_defaults.h"
#include "numerics/figures.h"
#include "numerics/prefixed_number.h"
#include "numerics/real_functions.h"
#include "numerics/rounding.h"
#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

using numerics::Decibels;

constexpr FrequencyDefaults kGainDefaults{100, -20, 40, 1, 10};

struct GainFigure {
  bool GainChoice::*box;
  const char* name;
  const char* column;  // the column name of netrix --figures
  double (*value)(const numerics::TwoPortState& st, const numerics::TwoPortFigures& f);
};

constexpr std::array<GainFigure, 4> kFigures = {{
    {&GainChoice::mag, "MAG/MSG", "MSG_or_MAG_dB", [](const auto&, const auto& f) { return Decibels(f.msgOrMag); }},
    {&GainChoice::mason, "U", "U_dB", [](const auto&, const auto& f) { return Decibels(f.u); }},
    {&GainChoice::mug, "MUG", "MUG_dB", [](const auto&, const auto& f) { return Decibels(f.mug); }},
    {&GainChoice::s21, "|S21|²", "S21sq_dB",
     [](const auto& st, const auto&) { return Decibels(numerics::AbsSqr(st.s.m21)); }},
}};

}  // namespace

GainChoice AfterGainClick(GainChoice choice, GainBox clicked) {
  const bool nothingLeft = !choice.mag && !choice.mason && !choice.mug;
  const bool fromMagOrMason = clicked == GainBox::Mag || clicked == GainBox::Mason;
  if (nothingLeft && (!fromMagOrMason || !choice.s21)) choice.mag = true;
  return choice;
}

std::string GainTitle(const GainChoice& c) {
  if (c.mug && c.mason && c.mag) return "Mason Gain(f), MAG(f) or MSG(f) and MUG(f)";
  if (c.mason && c.mag) return "Mason Gain(f), MAG(f) or MSG(f)";
  if (c.mason && !c.mug) return "Mason Gain(f)";
  if (c.mag) return "MAG(f) or MSG(f)";
  return {};
}

FrequencyPlot BuildGainPlot(const GraphInputs& inputs, const GainChoice& choice) {
  FrequencyPlot plot{"Gain : MAG, MSG, MUG, etc.", GainTitle(choice), "Gain(f) :", "f in Hz", "Gain in dB", {}, {}};
  const std::vector<PlottedFigure> chosen = ChosenFigures(kFigures, choice);
  numerics::TwoPortState st;
  numerics::TwoPortFigures figures;
  const auto values = [&](const numerics::SParameters& point, std::vector<double>& out) {
    numerics::CopyPointToState(point, st);
    numerics::ComputeGainFigures(st, figures);
    for (const PlottedFigure& figure : chosen) out.push_back(kFigures[figure.slot].value(st, figures));
  };
  AddFigureCurves(inputs, chosen, values, plot);
  return plot;
}

void SetGainDefaults(diagram::Diagram& d, double highestFrequency) {
  SetFrequencyDefaults(d, highestFrequency, kGainDefaults);
}

std::string GainTableText(double f0) {
  return TableText("Calculated Values by NETRIX : f/Hz MAG/dB MSG/dB MUG/dB Mason/dB   k", f0);
}

std::string TableText(const std::string& header, double f0) {
  std::string text = header + "\n";
  const double last = numerics::RoundUpOneDigit(2 * f0);
  const double first = numerics::NiceStep(f0 / 100);
  const double step = numerics::NiceStep(first / 3);
  if (!(step > 0)) return text;
  for (double f = first; !(f > last); f += step) text += numerics::FormatPrefixedField(7, 3, f) + "\n";
  return text;
}

std::string GainReadOut(double x, double y) {
  return PositionText(x) + "Gain=" + numerics::FloatTextTrimmed(2, y) + "dB (" +
         numerics::FormatPrefixed(2, std::pow(10.0, y / 10)) + ")";
}

}  // namespace graphwin::plots
