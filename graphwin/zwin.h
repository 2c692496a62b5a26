#pragma once

#include "frequency_form.h"
#include "plots/impedance_plot.h"

// "Impedance Z(f)": impedances of the two-port against frequency (at each port with the other
// short-circuited, the pi model's series element, the image impedance and the push-pull sum),
// chosen by five check boxes, as magnitude, real part or quality factor. Its axis dialog names
// the frequency limits "fmax=" and "fmin=", and it prints the window as it stands.
namespace graphwin {

class TFormZ : public TFrequencyForm {
  Q_OBJECT

 public:
  TFormZ(InputsSource inputs, const GraphDialogs& dialogs);

 protected:
  plots::FrequencyPlot BuildPlot() const override;
  std::string ReadOutText(double x, double y) const override;
  std::string AxisLabel(AxisEnd end) const override;
  void PrintPage(QPainter& painter, QSize page) override;

 private:
  void BuildModeItems();
  void ModeClick(plots::ImpedanceMode mode);

  plots::ImpedanceMode mode_ = plots::ImpedanceMode::Magnitude;
};

}  // namespace graphwin
