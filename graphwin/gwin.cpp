#include "gwin.h"

#include <QAction>
#include <QCheckBox>

#include "diagram/axis.h"

namespace graphwin {
namespace {

using plots::GainBox;

constexpr CheckBoxLook kBoxes[] = {
    {"CheckBoxMAG", 278, "MAG/MSG", "Maximum available gain and maximum stable gain"},
    {"CheckBoxMason", 368, "Mason", "Mason Gain U"},
    {"CheckBoxMUG", 441, "MUG", "Maximum unilateral gain"},
    {"CheckBoxS21", 508, "|S21|²", "Forward transmission"},
};

constexpr double kHighestFrequencyBound = 1e10;
constexpr double kGainBound = 100;

plots::GainChoice ChoiceOf(const std::array<QCheckBox*, 4>& boxes) {
  return {boxes[0]->isChecked(), boxes[1]->isChecked(), boxes[2]->isChecked(), boxes[3]->isChecked()};
}

}  // namespace

TFormG::TFormG(InputsSource inputs, const GraphDialogs& dialogs)
    : TGraphForm("FormG", QStringLiteral("Gain"), std::move(inputs), dialogs) {
  const plots::GainChoice initial;
  const bool checked[] = {initial.mag, initial.mason, initial.mug, initial.s21};
  for (std::size_t i = 0; i < checkBoxes_.size(); ++i) {
    checkBoxes_[i] = AddCheckBox(kBoxes[i], checked[i]);
    connect(checkBoxes_[i], &QCheckBox::clicked, this, [this, i] { CheckBoxClick(static_cast<GainBox>(i)); });
  }
  QAction* table = InsertFileItem("WerteinTabellespeichern1", QStringLiteral("Save &Table"));
  table->setVisible(false);
  connect(table, &QAction::triggered, this, &TFormG::WerteinTabellespeichern1Click);
}

void TFormG::CheckBoxClick(GainBox box) {
  const plots::GainChoice choice = plots::AfterGainClick(ChoiceOf(checkBoxes_), box);
  checkBoxes_[static_cast<std::size_t>(GainBox::Mag)]->setChecked(choice.mag);
  ComputeCurves();
  Redraw();
}

void TFormG::ComputeCurves() { plot_ = plots::BuildGainPlot(Inputs(), ChoiceOf(checkBoxes_)); }

void TFormG::ResetScale(diagram::Diagram& d) { plots::SetGainDefaults(d, plots::HighestFrequency(plot_)); }

void TFormG::DrawPicture(diagram::Canvas& canvas) { plots::DrawFrequencyPlot(plot_, Look(), canvas); }

std::string TFormG::ReadOutText(double x, double y) const { return plots::GainReadOut(x, y); }

// A logarithmic axis cannot start at 0.
Bounds TFormG::AxisBounds(AxisEnd end) const {
  if (!IsXEnd(end)) return {-kGainBound, kGainBound};
  const bool logX = diagram::CurrentDiagram().x.mode == diagram::AxisMode::Log;
  return {end == AxisEnd::XMin && logX ? 1.0 : 0.0, kHighestFrequencyBound};
}

void TFormG::WerteinTabellespeichern1Click() { SaveTable(plots::GainTableText(plots::HighestFrequency(plot_))); }

}  // namespace graphwin
