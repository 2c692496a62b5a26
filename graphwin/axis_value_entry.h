#pragma once

#include <string>
#include <string_view>

// The logic of the axis value dialog: a value kept within two bounds, typed with a unit prefix
// or stepped by the spin button. Plain C++, so the steps and limits are tested without a dialog.
namespace graphwin {

class AxisValueEntry {
 public:
  void SetBounds(double lower, double upper);
  void SetValue(double value) { value_ = value; }
  double Value() const { return value_; }

  // The dialog is shown: the value is kept for Cancel; returns the edit's text.
  std::string Show();
  // Every keystroke: the text's value, limited to the bounds; true when it lay beyond them
  // (the dialog beeps). The text itself is left as typed.
  bool Change(std::string_view text);
  // The spin steps, not limited to the bounds; each returns the edit's new text.
  std::string SpinUp();
  std::string SpinDown();
  void Ok(std::string_view text);
  // Back to the value the dialog was shown with; returns the edit's text.
  std::string Cancel();

 private:
  double lower_ = 0;
  double upper_ = 0;
  double value_ = 0;
  double kept_ = 0;
};

}  // namespace graphwin
