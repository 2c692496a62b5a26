#pragma once

#include <QDialog>

#include "plots/q_table.h"

class QLineEdit;

// "Constant Q Circle": one program-wide dialog through which the reflection window takes the Q
// of a new constant-Q circle. OK stores the typed value in the table it was run for.
namespace graphwin {

class TQcircle : public QDialog {
  Q_OBJECT

 public:
  explicit TQcircle(QWidget* parent = nullptr);

  // Runs the dialog modally; true when OK stored a value in the table.
  bool Execute(plots::ConstantQTable& table);

 private:
  void OKBtnClick();

  QLineEdit* edit1_ = nullptr;
  plots::ConstantQTable* table_ = nullptr;
};

}  // namespace graphwin
