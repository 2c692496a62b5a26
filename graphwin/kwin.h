#pragma once

#include "frequency_form.h"

// "Stability Factor, etc.": k, mu and the unilateral figure u against frequency, as they are,
// chosen by three check boxes, with a table export that the menu keeps hidden.
namespace graphwin {

class TFormK : public TFrequencyForm {
  Q_OBJECT

 public:
  TFormK(InputsSource inputs, const GraphDialogs& dialogs);

 protected:
  plots::FrequencyPlot BuildPlot() const override;
  std::string ReadOutText(double x, double y) const override;
};

}  // namespace graphwin
