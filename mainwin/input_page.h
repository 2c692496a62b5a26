#pragma once

#include <QWidget>

#include "settings_file.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;

namespace mainwin {

// The entry controls of page 2, "Input: Extracted F.O.M. vs Parameter": analysis frequency,
// ground inductance, area, frequency multiplier, x-axis choice, options and the comment.
class InputPage : public QWidget {
  Q_OBJECT

 public:
  explicit InputPage(QWidget* parent = nullptr);

  // Fills the edits, radio buttons and check boxes from values read from the settings file.
  void ShowSettings(const IniSettings& settings);
  // The values to store; an edit without digits keeps the value it was last given.
  IniSettings CurrentSettings() const;
  void ShowSeriesCount(int count);

 private:
  QWidget* MakeEntries();
  QWidget* MakeMultiplier();
  QWidget* MakeXAxisChoice();
  QWidget* MakeOptions();
  QLineEdit* MakeEntry(const char* name, const QString& text);

  IniSettings shown_;
  QLabel* labelNo_ = nullptr;
  QLineEdit* foEingabe_ = nullptr;
  QLineEdit* lgndEingabe_ = nullptr;
  QLineEdit* areaEingabe_ = nullptr;
  QRadioButton* radioButtonHz_ = nullptr;
  QRadioButton* radioButtonMHz_ = nullptr;
  QRadioButton* radioButtonGHz_ = nullptr;
  QCheckBox* checkBoxLgnd_ = nullptr;
  QCheckBox* checkBoxDensity_ = nullptr;
  QCheckBox* checkBoxConnect_ = nullptr;
  QPlainTextEdit* memoComment_ = nullptr;
};

}  // namespace mainwin
