#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "series/series_settings.h"
#include "settings_file.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;

namespace controls {
class TStringAlignGrid;
}

namespace mainwin {

// The controls of page 2, "Input: Extracted F.O.M. vs Parameter": the series file list with its
// buttons, analysis frequency, ground inductance, area, frequency multiplier, x-axis choice,
// options, the comment, and the buttons that calculate and export. The series itself is the
// main window's; the page shows it and reports what the user asks for.
class InputPage : public QWidget {
  Q_OBJECT

 public:
  explicit InputPage(QWidget* parent = nullptr);

  // Fills the edits, radio buttons and check boxes from values read from the settings file.
  void ShowSettings(const IniSettings& settings);
  // The values to store; an edit without digits keeps the value it was last given.
  IniSettings CurrentSettings() const;
  // Row r (1..40) of StringGridFiles shows path r, abbreviated when long, with the whole path as
  // its tool tip; the rows below are cleared.
  void ShowFiles(const std::vector<std::string>& paths);

  // What the series evaluation and the output pages are asked for; the comment is left empty
  // and the files are read plain.
  series::SeriesSettings EvaluationSettings() const;
  // The "automatical" multiplier takes each file's unit from its option line, so it is offered
  // only while files are read as Touchstone files.
  void EnableAutomaticMultiplier(bool enabled);
  bool AutoCalculate() const;
  bool ConnectPoints() const;
  bool CommentToOutputs() const;
  QString Comment() const;

 signals:
  void FileRowSelected(int row);
  void DeleteListClicked();
  void DeleteLastClicked();
  void CalculateClicked();
  void ExportClicked();

 private:
  QWidget* MakeFileList();
  QWidget* MakeActions();
  QWidget* MakeEntries();
  QWidget* MakeMultiplier();
  QWidget* MakeXAxisChoice();
  QWidget* MakeOptions();
  QLineEdit* MakeEntry(const char* name, const QString& text);
  void ShowSeriesCount(int count);
  void CheckUnitButton(double multiplier);

  IniSettings shown_;
  QLabel* labelNo_ = nullptr;
  controls::TStringAlignGrid* stringGridFiles_ = nullptr;
  QLineEdit* foEingabe_ = nullptr;
  QLineEdit* lgndEingabe_ = nullptr;
  QLineEdit* areaEingabe_ = nullptr;
  QRadioButton* radioButtonHz_ = nullptr;
  QRadioButton* radioButtonMHz_ = nullptr;
  QRadioButton* radioButtonGHz_ = nullptr;
  QRadioButton* radioButtonAutoPrefix_ = nullptr;
  double unitMultiplier_ = kDefaultMultiplier;  // of the unit button checked last
  QCheckBox* checkBoxLgnd_ = nullptr;
  QCheckBox* checkBoxDensity_ = nullptr;
  QCheckBox* checkBoxConnect_ = nullptr;
  QCheckBox* checkBoxU_ = nullptr;
  QCheckBox* checkBoxAutoCalculate_ = nullptr;
  QCheckBox* checkBoxComment_ = nullptr;
  QRadioButton* radioButtonFileNo_ = nullptr;
  QRadioButton* radioButtonIc_ = nullptr;
  QPlainTextEdit* memoComment_ = nullptr;
};

}  // namespace mainwin
