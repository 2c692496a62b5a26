#include "gwin.h"

#include "plots/gain_plot.h"

namespace graphwin {
namespace {

// In the order of plots::GainBox.
constexpr CheckBoxLook kBoxes[] = {
    {"CheckBoxMAG", 278, "MAG/MSG", "Maximum available gain and maximum stable gain"},
    {"CheckBoxMason", 368, "Mason", "Mason Gain U"},
    {"CheckBoxMUG", 441, "MUG", "Maximum unilateral gain"},
    {"CheckBoxS21", 508, "|S21|²", "Forward transmission"},
};

constexpr double kHighestFrequencyBound = 1e10;
constexpr double kGainBound = 100;

plots::GainChoice ChoiceOf(const std::vector<bool>& boxes) { return {boxes[0], boxes[1], boxes[2], boxes[3]}; }
std::vector<bool> BoxesOf(const plots::GainChoice& choice) { return {choice.mag, choice.mason, choice.mug, choice.s21}; }

std::vector<bool> AfterClick(std::vector<bool> boxes, std::size_t clicked) {
  const plots::GainChoice choice = plots::AfterGainClick(ChoiceOf(boxes), static_cast<plots::GainBox>(clicked));
  boxes[static_cast<std::size_t>(plots::GainBox::Mag)] = choice.mag;
  return boxes;
}

// A logarithmic axis cannot start at 0.
Bounds BoundsOf(AxisEnd end, bool logX) {
  if (!IsXEnd(end)) return {-kGainBound, kGainBound};
  return {end == AxisEnd::XMin && logX ? 1.0 : 0.0, kHighestFrequencyBound};
}

constexpr FrequencyWindow kGain{"FormG", "Gain", kBoxes, AfterClick, plots::SetGainDefaults, BoundsOf};

}  // namespace

TFormG::TFormG(InputsSource inputs, const GraphDialogs& dialogs)
    : TFrequencyForm(kGain, BoxesOf({}), std::move(inputs), dialogs) {
  AddHiddenTableItem(QStringLiteral("Save &Table"), plots::GainTableText);
}

plots::FrequencyPlot TFormG::BuildPlot() const { return plots::BuildGainPlot(Inputs(), ChoiceOf(Checked())); }

std::string TFormG::ReadOutText(double x, double y) const { return plots::GainReadOut(x, y); }

}  // namespace graphwin
