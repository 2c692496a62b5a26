#pragma once

#include "sparameter_form.h"

namespace controls {
class TSpinButton;
}

// "S-Parameters", heading "Transmission": S21 and S12 of the loaded files as a polar or
// cartesian locus or against frequency, with a zoom factor that makes a small S12 visible in the
// polar diagram beside S21.
namespace graphwin {

class TFormVu : public TSParameterForm {
  Q_OBJECT

 public:
  TFormVu(InputsSource inputs, const GraphDialogs& dialogs);

  double S12ZoomFactor() const { return s12Zoom_; }

 protected:
  double S12Zoom() const override { return s12Zoom_; }

 private:
  void SpinButtonS12ZoomClick(bool up);

  controls::TSpinButton* spinButtonS12Zoom_ = nullptr;
  double s12Zoom_ = 1;
};

}  // namespace graphwin
