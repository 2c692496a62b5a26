#include "gwin.h"

#include <QAction>
#include <QCheckBox>

#include "controls/dialog_hooks.h"
#include "diagram/axis.h"
#include "plots/curve_table.h"

namespace graphwin {
namespace {

using plots::GainBox;

struct BoxLook {
  const char* name;
  int left;
  const char* caption;
  const char* hint;
};

constexpr BoxLook kBoxes[] = {
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
    : TGraphForm("FormG", tr("Gain"), std::move(inputs), dialogs) {
  const plots::GainChoice initial;
  const bool checked[] = {initial.mag, initial.mason, initial.mug, initial.s21};
  for (std::size_t i = 0; i < checkBoxes_.size(); ++i) {
    auto* box = new QCheckBox(QString::fromUtf8(kBoxes[i].caption), ToolPanel());
    box->setObjectName(kBoxes[i].name);
    box->setToolTip(tr(kBoxes[i].hint));
    box->setChecked(checked[i]);
    box->move(kBoxes[i].left, (ToolPanel()->height() - box->sizeHint().height()) / 2);
    connect(box, &QCheckBox::clicked, this, [this, i] { CheckBoxClick(static_cast<GainBox>(i)); });
    checkBoxes_[i] = box;
  }
  QAction* table = InsertFileItem("WerteinTabellespeichern1", tr("Save &Table"));
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
  const bool logX = diagram::CurrentDiagram().xMode == diagram::AxisMode::Log;
  return {end == AxisEnd::XMin && logX ? 1.0 : 0.0, kHighestFrequencyBound};
}

std::vector<double> TFormG::XValues() const { return plots::AllFrequencies(plot_); }
std::vector<double> TFormG::YValues() const { return plots::AllValues(plot_); }
std::string TFormG::CurvesCsv() const { return plots::CurveTableCsv(plot_); }

void TFormG::WerteinTabellespeichern1Click() {
  const QString path = controls::ChooseSaveFile(
      this, {"SaveDialogTabelle", tr("Save Table"), tr("Table File (*.tab)"), QStringLiteral("TAB"),
             QStringLiteral("*.TAB")});
  if (!path.isEmpty()) WriteTextFile(path, plots::GainTableText(plots::HighestFrequency(plot_)));
}

}  // namespace graphwin
