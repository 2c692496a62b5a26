#pragma once

#include <span>
#include <utility>
#include <vector>

#include "graph_form.h"
#include "plots/sparameter_plot.h"

class QActionGroup;

// What the reflection and the transmission windows share on top of the common window: the
// display modes of "&Scales", the curves of the chosen parameters, their read-out, the bounds
// of the axis dialog, the refusal of a logarithmic x axis in the polar diagram and the Smith
// chart, and bitmap printing.
namespace graphwin {

// A display mode's item of "&Scales".
struct ViewItem {
  const char* name;
  const char* caption;
  plots::SView view;
};

class TSParameterForm : public TGraphForm {
  Q_OBJECT

 public:
  const plots::SParameterPlot& Plot() const { return plot_; }

 protected:
  // startView: the display mode each activation returns to.
  TSParameterForm(const char* name, plots::SWindow window, plots::SView startView, InputsSource inputs,
                  const GraphDialogs& dialogs);

  // Checkable items at the top of "&Scales" that show their views from their starting ranges:
  // the loci, a separator, the views against frequency.
  void AddViewItems(std::span<const ViewItem> items);

  // What the window adds to its loci; the Smith chart labelled at the page's Z0.
  virtual plots::LocusLook Locus() const;
  // The factor S12 is magnified by in the polar diagram.
  virtual double S12Zoom() const { return 1; }

  void ComputeCurves() override;
  void ResetScale(diagram::Diagram& d) override;
  void DrawPicture(diagram::Canvas& canvas) override;
  std::string ReadOutText(double x, double y) const override;
  Bounds AxisBounds(AxisEnd end) const override;
  bool PlotsAgainstFrequency() const override { return !plots::IsLocus(view_); }
  std::vector<QPointF> CursorPoints(double frequency) const override;
  std::vector<double> XValues() const override;
  std::vector<double> YValues() const override;
  std::string CurvesCsv() const override;
  std::string LogXRefusal() const override;
  bool PrintsBitmap() const override { return true; }

 private:
  void AddViewItem(const ViewItem& item);
  void SetView(plots::SView view);
  void CheckViewItem();

  plots::SWindow window_;
  plots::SView startView_;
  plots::SView view_;
  plots::SParameterChoice choice_;
  plots::SParameterPlot plot_;
  QActionGroup* viewItems_ = nullptr;
  std::vector<std::pair<plots::SView, QAction*>> viewActions_;
};

}  // namespace graphwin
