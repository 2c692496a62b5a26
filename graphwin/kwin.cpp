#include "kwin.h"

#include <QAction>
#include <QCheckBox>

namespace graphwin {
namespace {

constexpr CheckBoxLook kBoxes[] = {
    {"CheckBoxk", 276, "k-Factor", "Stability factor"},
    {"CheckBoxU", 349, "u-FOM", "u is a measure for two-port unilaterality"},
    {"CheckBoxMu", 413, "µ-Factor", "µ is a measure for stability"},
};

constexpr Bounds kFrequencyBounds{0, 1e10};
constexpr Bounds kValueBounds{-100, 100};

}  // namespace

TFormK::TFormK(InputsSource inputs, const GraphDialogs& dialogs)
    : TGraphForm("FormK", QStringLiteral("Stability Factor, etc."), std::move(inputs), dialogs) {
  const plots::StabilityChoice initial;
  const bool checked[] = {initial.k, initial.u, initial.mu};
  for (std::size_t i = 0; i < checkBoxes_.size(); ++i) {
    checkBoxes_[i] = AddCheckBox(kBoxes[i], checked[i]);
    connect(checkBoxes_[i], &QCheckBox::clicked, this, &TFormK::CheckBoxClick);
  }
  QAction* table = InsertFileItem("WerteinTabellespeichern1", QStringLiteral("Save &Table Data"));
  table->setVisible(false);
  connect(table, &QAction::triggered, this,
          [this] { SaveTable(plots::StabilityTableText(plots::HighestFrequency(plot_))); });
}

plots::StabilityChoice TFormK::Choice() const {
  return {checkBoxes_[0]->isChecked(), checkBoxes_[1]->isChecked(), checkBoxes_[2]->isChecked()};
}

void TFormK::CheckBoxClick() {
  checkBoxes_[0]->setChecked(plots::AfterStabilityClick(Choice()).k);
  ComputeCurves();
  Redraw();
}

void TFormK::ComputeCurves() { plot_ = plots::BuildStabilityPlot(Inputs(), Choice()); }

void TFormK::ResetScale(diagram::Diagram& d) { plots::SetStabilityDefaults(d, plots::HighestFrequency(plot_)); }

void TFormK::DrawPicture(diagram::Canvas& canvas) { plots::DrawFrequencyPlot(plot_, Look(), canvas); }

std::string TFormK::ReadOutText(double x, double y) const { return plots::StabilityReadOut(x, y); }

Bounds TFormK::AxisBounds(AxisEnd end) const { return IsXEnd(end) ? kFrequencyBounds : kValueBounds; }

}  // namespace graphwin
