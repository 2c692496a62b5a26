#include "frequency_form.h"

#include <QAction>
#include <QCheckBox>
#include <cassert>

#include "diagram/axis.h"
#include "plots/curve_table.h"

namespace graphwin {

TFrequencyForm::TFrequencyForm(const FrequencyWindow& kind, const std::vector<bool>& checked, InputsSource inputs,
                               const GraphDialogs& dialogs)
    : TGraphForm(kind.name, QString::fromUtf8(kind.caption), std::move(inputs), dialogs), kind_(kind) {
  assert(kind.boxes.size() == checked.size());
  for (std::size_t i = 0; i < checked.size(); ++i) {
    checkBoxes_.push_back(AddCheckBox(kind.boxes[i], checked[i]));
    connect(checkBoxes_.back(), &QCheckBox::clicked, this, [this, i] { CheckBoxClick(i); });
  }
}

std::vector<bool> TFrequencyForm::Checked() const {
  std::vector<bool> checked;
  for (const QCheckBox* box : checkBoxes_) checked.push_back(box->isChecked());
  return checked;
}

void TFrequencyForm::AddHiddenTableItem(const QString& caption, std::string (*text)(double highestFrequency)) {
  QAction* table = InsertFileItem("WerteinTabellespeichern1", caption);
  table->setVisible(false);
  connect(table, &QAction::triggered, this, [this, text] { SaveTable(text(plots::HighestFrequency(plot_))); });
}

void TFrequencyForm::CheckBoxClick(std::size_t box) {
  const std::vector<bool> checked = kind_.afterClick(Checked(), box);
  for (std::size_t i = 0; i < checkBoxes_.size(); ++i) checkBoxes_[i]->setChecked(checked[i]);
  ComputeCurves();
  Redraw();
}

void TFrequencyForm::ResetScale(diagram::Diagram& d) { kind_.setDefaults(d, plots::HighestFrequency(plot_)); }

void TFrequencyForm::DrawPicture(diagram::Canvas& canvas) { plots::DrawFrequencyPlot(plot_, Look(), canvas); }

Bounds TFrequencyForm::AxisBounds(AxisEnd end) const {
  return kind_.bounds(end, diagram::CurrentDiagram().x.mode == diagram::AxisMode::Log);
}

std::vector<QPointF> TFrequencyForm::CursorPoints(double frequency) const { return plots::PointsAt(plot_, frequency); }

std::vector<double> TFrequencyForm::XValues() const { return plots::AllFrequencies(plot_); }
std::vector<double> TFrequencyForm::YValues() const { return plots::AllValues(plot_); }
std::string TFrequencyForm::CurvesCsv() const { return plots::CurveTableCsv(plot_); }

}  // namespace graphwin
