#pragma once

#include <array>

#include "graph_form.h"
#include "plots/gain_plot.h"

class QCheckBox;

// "Gain": MAG or MSG, Mason's U, MUG and |S21|^2 in dB against frequency, chosen by four check
// boxes, with a table export that the menu keeps hidden.
namespace graphwin {

class TFormG : public TGraphForm {
  Q_OBJECT

 public:
  TFormG(InputsSource inputs, const GraphDialogs& dialogs);

  const plots::FrequencyPlot& Plot() const { return plot_; }

 protected:
  void ComputeCurves() override;
  void ResetScale(diagram::Diagram& d) override;
  void DrawPicture(diagram::Canvas& canvas) override;
  std::string ReadOutText(double x, double y) const override;
  Bounds AxisBounds(AxisEnd end) const override;
  const plots::FrequencyPlot* FrequencyCurves() const override { return &plot_; }

 private:
  void CheckBoxClick(plots::GainBox box);
  void WerteinTabellespeichern1Click();

  std::array<QCheckBox*, 4> checkBoxes_{};  // in the order of plots::GainBox
  plots::FrequencyPlot plot_;
};

}  // namespace graphwin
