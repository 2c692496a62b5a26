#pragma once

#include <array>

#include "graph_form.h"
#include "plots/impedance_plot.h"

class QActionGroup;
class QCheckBox;

// "Impedance Z(f)": impedances of the two-port against frequency (at each port with the other
// short-circuited, the pi model's series element, the image impedance and the push-pull sum),
// chosen by five check boxes, as magnitude, real part or quality factor. Its axis dialog names
// the frequency limits "fmax=" and "fmin=", and it prints the window as it stands.
namespace graphwin {

class TFormZ : public TGraphForm {
  Q_OBJECT

 public:
  TFormZ(InputsSource inputs, const GraphDialogs& dialogs);

  const plots::FrequencyPlot& Plot() const { return plot_; }

 protected:
  void ComputeCurves() override;
  void ResetScale(diagram::Diagram& d) override;
  void DrawPicture(diagram::Canvas& canvas) override;
  std::string ReadOutText(double x, double y) const override;
  Bounds AxisBounds(AxisEnd end) const override;
  std::string AxisLabel(AxisEnd end) const override;
  void PrintPage(QPainter& painter, QSize page) override;
  const plots::FrequencyPlot* FrequencyCurves() const override { return &plot_; }

 private:
  void BuildModeItems();
  plots::ImpedanceChoice Choice() const;
  void CheckBoxClick();
  void ModeClick(plots::ImpedanceMode mode);

  std::array<QCheckBox*, 5> checkBoxes_{};  // in the order of plots::ImpedanceChoice
  plots::ImpedanceMode mode_ = plots::ImpedanceMode::Magnitude;
  plots::FrequencyPlot plot_;
};

}  // namespace graphwin
