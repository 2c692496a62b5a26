#pragma once

#include "plots/q_table.h"
#include "sparameter_form.h"

class QLabel;

namespace controls {
class TSpinButton;
}

// "S-Parameters", heading "Reflexion Coefficient": S11 and S22 of the loaded files in a Smith
// chart with impedance, admittance or both grids, constant-Q arcs and, at a chosen point of the
// first file, the stability circles and the simultaneous conjugate match; or as a polar or
// cartesian locus, or against frequency.
namespace graphwin {

class TFormPhi : public TSParameterForm {
  Q_OBJECT

 public:
  TFormPhi(InputsSource inputs, const GraphDialogs& dialogs);

  const plots::ConstantQTable& QTable() const { return qTable_; }

 protected:
  plots::LocusLook Locus() const override;
  bool DefinesOriginOnEveryDoubleClick() const override { return true; }
  void ComputeCurves() override;

 private:
  void BuildParameterMenu();
  void BuildCirclesMenu();
  void constantQ1Click();
  void DeleteQClick();
  void DelAllQClick();
  void EnableDeleteItems();
  void SpinButtonCirclesClick(bool up);
  // The first active file, whose points the circles are drawn at; null without one.
  const plots::GraphFile* CirclesFile() const;
  void ShowCirclesFrequency();

  plots::ConstantQTable qTable_;
  diagram::ChartKind chart_ = diagram::ChartKind::Impedance;
  bool circles_ = false;
  int circlesPoint_ = 0;
  QAction* deleteQ_ = nullptr;
  QAction* delAllQ_ = nullptr;
  controls::TSpinButton* spinButtonCircles_ = nullptr;
  QLabel* labelCircles_ = nullptr;
};

}  // namespace graphwin
