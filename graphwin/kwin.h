#pragma once

#include <array>

#include "graph_form.h"
#include "plots/stability_plot.h"

class QCheckBox;

// "Stability Factor, etc.": k, mu and the unilateral figure u against frequency, as they are,
// chosen by three check boxes, with a table export that the menu keeps hidden.
namespace graphwin {

class TFormK : public TGraphForm {
  Q_OBJECT

 public:
  TFormK(InputsSource inputs, const GraphDialogs& dialogs);

  const plots::FrequencyPlot& Plot() const { return plot_; }

 protected:
  void ComputeCurves() override;
  void ResetScale(diagram::Diagram& d) override;
  void DrawPicture(diagram::Canvas& canvas) override;
  std::string ReadOutText(double x, double y) const override;
  Bounds AxisBounds(AxisEnd end) const override;
  const plots::FrequencyPlot* FrequencyCurves() const override { return &plot_; }

 private:
  plots::StabilityChoice Choice() const;
  void CheckBoxClick();

  std::array<QCheckBox*, 3> checkBoxes_{};  // k, u, mu
  plots::FrequencyPlot plot_;
};

}  // namespace graphwin
