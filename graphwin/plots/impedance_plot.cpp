#include "impedance_plot.h"

#include <array>

#include "figure_curves.h"
#include "frequency_defaults.h"
#include "numerics/conversions.h"
#include "numerics/rounding.h"
#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

using numerics::ComplexValue;
using numerics::TwoPortState;

constexpr FrequencyDefaults kImpedanceDefaults{1000, 0, 1000, 20, 5};

struct ImpedanceFigure {
  bool ImpedanceChoice::*box;
  const char* name;
  const char* column;  // completed by the mode
  ComplexValue (*impedance)(const TwoPortState& st);
};

// Port1 first, so that the curve a window opens with takes the first colour.
constexpr std::array<ImpedanceFigure, 5> kFigures = {{
    {&ImpedanceChoice::port1, "Port1", "port1", [](const TwoPortState& st) { return numerics::Inverse(st.y.m11); }},
    {&ImpedanceChoice::port2, "Port2", "port2", [](const TwoPortState& st) { return numerics::Inverse(st.y.m22); }},
    {&ImpedanceChoice::cross, "Cross", "pi", [](const TwoPortState& st) { return numerics::Inverse(st.pi.series); }},
    {&ImpedanceChoice::image, "Zchar", "image", [](const TwoPortState& st) { return st.image.impedance; }},
    {&ImpedanceChoice::sym, "symmetrical", "sym",
     [](const TwoPortState& st) {
       return numerics::Sub(numerics::Add(st.z.m11, st.z.m22), numerics::Add(st.z.m12, st.z.m21));
     }},
}};

const char* const kModeColumns[] = {"_mag_ohm", "_re_ohm", "_q"};

// Q through the guarded quotient of the complex type, so that Re(Z) = 0 gives a large finite Q.
double ModeValue(const ComplexValue& z, ImpedanceMode mode) {
  switch (mode) {
    case ImpedanceMode::Magnitude: return numerics::Abs(z);
    case ImpedanceMode::Real: return numerics::Re(z);
    case ImpedanceMode::Q: break;
  }
  return numerics::Re(
      numerics::Div(numerics::MakeCartesian(numerics::Im(z), 0), numerics::MakeCartesian(numerics::Re(z), 0)));
}

// Every conversion the five impedances need; the guards of the later ones do not touch Y11, Y22
// or the pi model.
void ConvertPoint(const numerics::SParameters& point, TwoPortState& st) {
  numerics::CopyPointToState(point, st);
  numerics::ConvertSToY(st);
  numerics::ConvertYToPi(st);
  numerics::ConvertYToChain(st);
  numerics::ConvertChainToImage(st);
  numerics::ConvertYToZ(st);
}

std::string Title(ImpedanceMode mode) {
  switch (mode) {
    case ImpedanceMode::Magnitude: return "Impedance |Z(f)|";
    case ImpedanceMode::Real: return "Impedance Re(Z(f))";
    case ImpedanceMode::Q: break;
  }
  return "Quality Factor Q(f)";
}

const char* YTitle(ImpedanceMode mode) {
  const char* const titles[] = {"|Z|", "Re(Z)", "Q"};
  return titles[static_cast<std::size_t>(mode)];
}

}  // namespace

ImpedanceChoice AfterImpedanceClick(ImpedanceChoice c) {
  if (!c.sym && !c.port1 && !c.port2 && !c.cross && !c.image) c.port1 = true;
  return c;
}

FrequencyPlot BuildImpedancePlot(const GraphInputs& inputs, const ImpedanceChoice& choice, ImpedanceMode mode) {
  FrequencyPlot plot{"", Title(mode), "Re(Z(f)) :", "f in Hz", YTitle(mode), {}, {}};
  std::vector<PlottedFigure> chosen = ChosenFigures(kFigures, choice);
  for (PlottedFigure& figure : chosen) figure.column += kModeColumns[static_cast<std::size_t>(mode)];
  TwoPortState st;
  st.z0 = inputs.z0;
  const auto values = [&](const numerics::SParameters& point, std::vector<double>& out) {
    ConvertPoint(point, st);
    for (const PlottedFigure& figure : chosen) out.push_back(ModeValue(kFigures[figure.slot].impedance(st), mode));
  };
  AddFigureCurves(inputs, chosen, values, plot);
  return plot;
}

void SetImpedanceDefaults(diagram::Diagram& d, double highestFrequency) {
  SetFrequencyDefaults(d, highestFrequency, kImpedanceDefaults);
  d.x.step = numerics::NiceStep((d.x.max - d.x.min) / 50);
}

std::string ImpedanceReadOut(double x, double y, ImpedanceMode mode) {
  return PositionText(x) + (mode == ImpedanceMode::Magnitude ? "|Z|=" : "Re(Z)=") + numerics::FloatText(6, 2, y);
}

}  // namespace graphwin::plots
