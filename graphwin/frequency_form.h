#pragma once

#include <span>
#include <vector>

#include "graph_form.h"

// What the windows of curves against frequency (gain, stability, impedance) share on top of the
// common window: the check boxes that choose the curves, the plot and its drawing, the defaults,
// the axis bounds, the cursor on the curves, the autoscale values and the curve and table exports.
namespace graphwin {

// What sets one window apart from the others, besides its curves and read-out: its names, its check
// boxes and its rules as plain functions.
struct FrequencyWindow {
  const char* name;
  const char* caption;
  std::span<const CheckBoxLook> boxes;
  // The boxes after a click has changed one: a rule checks one of them again where none is left.
  std::vector<bool> (*afterClick)(std::vector<bool> boxes, std::size_t clicked);
  // The ranges, steps, crossing and label counts the window starts with.
  void (*setDefaults)(diagram::Diagram& d, double highestFrequency);
  // What the axis dialog allows at an axis end.
  Bounds (*bounds)(AxisEnd end, bool logX);
};

class TFrequencyForm : public TGraphForm {
  Q_OBJECT

 public:
  const plots::FrequencyPlot& Plot() const { return plot_; }

 protected:
  // kind: a constant of the window's own file; checked: the boxes' states at the start.
  TFrequencyForm(const FrequencyWindow& kind, const std::vector<bool>& checked, InputsSource inputs,
                 const GraphDialogs& dialogs);

  // The check boxes' states in the order of their looks.
  std::vector<bool> Checked() const;
  // A "Save Table" item of "&File" that the menu keeps hidden; text takes the highest frequency.
  void AddHiddenTableItem(const QString& caption, std::string (*text)(double highestFrequency));

  // The curves of the inputs as the check boxes choose them.
  virtual plots::FrequencyPlot BuildPlot() const = 0;

  void ComputeCurves() override { plot_ = BuildPlot(); }
  void ResetScale(diagram::Diagram& d) override;
  void DrawPicture(diagram::Canvas& canvas) override;
  Bounds AxisBounds(AxisEnd end) const override;
  bool PlotsAgainstFrequency() const override { return true; }
  std::vector<QPointF> CursorPoints(double frequency) const override;
  std::vector<double> XValues() const override;
  std::vector<double> YValues() const override;
  std::string CurvesCsv() const override;

 private:
  void CheckBoxClick(std::size_t box);

  const FrequencyWindow& kind_;
  std::vector<QCheckBox*> checkBoxes_;
  plots::FrequencyPlot plot_;
};

}  // namespace graphwin
