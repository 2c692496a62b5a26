#pragma once

#include <QDialog>

#include "axis_value_entry.h"

class QLabel;
class QLineEdit;

// "Axis Scale": one program-wide dialog through which the graph windows take every axis limit
// and the origin. The caller sets the label, the value, the bounds and the position, runs it
// and reads the value back: the typed one limited to the bounds after OK, the shown one after
// Cancel.
namespace graphwin {

class TXmaxDlg1 : public QDialog {
  Q_OBJECT

 public:
  explicit TXmaxDlg1(QWidget* parent = nullptr);

  void SetLabel(const QString& text);
  void SetBounds(double lower, double upper) { entry_.SetBounds(lower, upper); }
  void SetValue(double value) { entry_.SetValue(value); }
  double Value() const { return entry_.Value(); }
  // Places the dialog's top-left corner, keeping its size.
  void SetPosition(int left, int top);
  // Shows the value and runs the dialog modally.
  void Execute();

  void reject() override;

 private:
  QWidget* MakeEntry();
  void EditChange(const QString& text);
  void ShowSpun(const std::string& text);
  void OKBtnClick();

  AxisValueEntry entry_;
  QLabel* namenLabel_ = nullptr;
  QLineEdit* edit_ = nullptr;
};

}  // namespace graphwin
