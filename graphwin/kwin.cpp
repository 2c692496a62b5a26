#include "kwin.h"

#include "plots/stability_plot.h"

namespace graphwin {
namespace {

// In the order k, u, mu.
constexpr CheckBoxLook kBoxes[] = {
    {"CheckBoxk", 276, "k-Factor", "Stability factor"},
    {"CheckBoxU", 349, "u-FOM", "u is a measure for two-port unilaterality"},
    {"CheckBoxMu", 413, "µ-Factor", "µ is a measure for stability"},
};

plots::StabilityChoice ChoiceOf(const std::vector<bool>& boxes) { return {boxes[0], boxes[1], boxes[2]}; }
std::vector<bool> BoxesOf(const plots::StabilityChoice& choice) { return {choice.k, choice.u, choice.mu}; }

std::vector<bool> AfterClick(std::vector<bool> boxes, std::size_t) {
  boxes[0] = plots::AfterStabilityClick(ChoiceOf(boxes)).k;
  return boxes;
}

Bounds BoundsOf(AxisEnd end, bool) { return IsXEnd(end) ? Bounds{0, 1e10} : Bounds{-100, 100}; }

constexpr FrequencyWindow kStability{"FormK", "Stability Factor, etc.", kBoxes, AfterClick,
                                     plots::SetStabilityDefaults, BoundsOf};

}  // namespace

TFormK::TFormK(InputsSource inputs, const GraphDialogs& dialogs)
    : TFrequencyForm(kStability, BoxesOf({}), std::move(inputs), dialogs) {
  AddHiddenTableItem(QStringLiteral("Save &Table Data"), plots::StabilityTableText);
}

plots::FrequencyPlot TFormK::BuildPlot() const { return plots::BuildStabilityPlot(Inputs(), ChoiceOf(Checked())); }

std::string TFormK::ReadOutText(double x, double y) const { return plots::StabilityReadOut(x, y); }

}  // namespace graphwin
