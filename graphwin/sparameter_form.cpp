#include "sparameter_form.h"

#include <QAction>
#include <QActionGroup>

#include "plots/sparameter_readout.h"

namespace graphwin {
namespace {

constexpr Bounds kXBounds{-1000, 1e10};
constexpr Bounds kYBounds{-1000, 1000};

}  // namespace

TSParameterForm::TSParameterForm(const char* name, plots::SWindow window, plots::SView startView, InputsSource inputs,
                                 const GraphDialogs& dialogs)
    : TGraphForm(name, QStringLiteral("S-Parameters"), std::move(inputs), dialogs),
      window_(window),
      startView_(startView),
      view_(startView),
      choice_(plots::BothParameters(window)),
      viewItems_(new QActionGroup(this)) {}

void TSParameterForm::AddViewItems(std::span<const ViewItem> items) {
  for (const ViewItem& item : items) {
    const bool afterLoci = !viewActions_.empty() && plots::IsLocus(viewActions_.back().first);
    if (afterLoci && !plots::IsLocus(item.view)) InsertScalesSeparator("N5");
    AddViewItem(item);
  }
}

// The polar and cartesian items say that they show a locus.
void TSParameterForm::AddViewItem(const ViewItem& item) {
  QAction* action = InsertScalesItem(item.name, QString::fromUtf8(item.caption));
  action->setCheckable(true);
  action->setChecked(item.view == view_);
  if (item.view == plots::SView::Polar || item.view == plots::SView::Cartesian) {
    action->setToolTip(QStringLiteral("Ortskurvendarstellung"));
  }
  viewItems_->addAction(action);
  viewActions_.emplace_back(item.view, action);
  connect(action, &QAction::triggered, this, [this, view = item.view] { SetView(view); });
}

void TSParameterForm::SetView(plots::SView view) {
  view_ = view;
  CheckViewItem();
  ComputeCurves();
  plots::SetViewDefaults(diagram::CurrentDiagram(), plot_);
  ShowScaleModes();
  Rescaled();
}

void TSParameterForm::CheckViewItem() {
  for (const auto& [view, item] : viewActions_) item->setChecked(view == view_);
}

plots::LocusLook TSParameterForm::Locus() const {
  plots::LocusLook look;
  look.z0 = Inputs().z0;
  return look;
}

void TSParameterForm::ComputeCurves() {
  if (const std::optional<plots::SParameterChoice> asked = plots::ChoiceOf(window_, Inputs().mode)) choice_ = *asked;
  plot_ = plots::BuildSParameterPlot(Inputs(), window_, choice_, view_, S12Zoom());
}

// Every activation returns to the window's first display mode at the standard size.
void TSParameterForm::ResetScale(diagram::Diagram& d) {
  findChild<QAction*>("Standardgroesse1")->trigger();
  view_ = startView_;
  CheckViewItem();
  ComputeCurves();
  plots::SetViewDefaults(d, plot_);
}

void TSParameterForm::DrawPicture(diagram::Canvas& canvas) {
  plots::DrawSParameterPlot(plot_, Look(), Locus(), canvas);
}

std::string TSParameterForm::ReadOutText(double x, double y) const {
  return plots::SParameterReadOut(window_, view_, x, y, Inputs().z0);
}

Bounds TSParameterForm::AxisBounds(AxisEnd end) const { return IsXEnd(end) ? kXBounds : kYBounds; }

std::vector<QPointF> TSParameterForm::CursorPoints(double frequency) const {
  return plots::IsLocus(view_) ? plots::LocusPointsAt(plot_, frequency) : plots::PointsAt(plot_.curves, frequency);
}

std::vector<double> TSParameterForm::XValues() const { return plots::XValuesOf(plot_); }
std::vector<double> TSParameterForm::YValues() const { return plots::YValuesOf(plot_); }
std::string TSParameterForm::CurvesCsv() const { return plots::SParameterCsv(plot_); }

std::string TSParameterForm::LogXRefusal() const {
  switch (diagram::CurrentDiagram().x.mode) {
    case diagram::AxisMode::Smith: return "log not available for Smith chart!";
    case diagram::AxisMode::Polar: return "log not available for polar diagram!";
    default: return {};
  }
}

}  // namespace graphwin
