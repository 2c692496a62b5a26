#pragma once

#include "frequency_form.h"

// "Gain": MAG or MSG, Mason's U, MUG and |S21|^2 in dB against frequency, chosen by four check
// boxes, with a table export that the menu keeps hidden.
namespace graphwin {

class TFormG : public TFrequencyForm {
  Q_OBJECT

 public:
  TFormG(InputsSource inputs, const GraphDialogs& dialogs);

 protected:
  plots::FrequencyPlot BuildPlot() const override;
  std::string ReadOutText(double x, double y) const override;
};

}  // namespace graphwin
