// The mouse on a graph window's picture: the read-out, the axis ends, the rubber band and the
// origin; and the scale commands of the menu and the tool bar.
#include <QApplication>
#include <QLabel>

#include "controls/message_box.h"
#include "diagram/autoscale.h"
#include "diagram/axis_ends.h"
#include "diagram/scaling.h"
#include "diagram/zoom.h"
#include "frequency_cursor.h"
#include "graph_form.h"
#include "graph_image.h"
#include "numerics/rounding.h"
#include "xmax_dlg.h"

namespace graphwin {
namespace {

using diagram::Diagram;

// Where the axis dialog stands against the mouse and against the window's middle.
constexpr QPoint kDialogOffset(-72, 48);
constexpr QPoint kOriginDialogOffset(-72, -10);

bool IsAtEnd(const Diagram& d, AxisEnd end, double x, double y) {
  switch (end) {
    case AxisEnd::XMax: return diagram::IsAtXMaxEnd(d, x, y);
    case AxisEnd::XMin: return diagram::IsAtXMinEnd(d, x, y);
    case AxisEnd::YMin: return diagram::IsAtYMinEnd(d, x, y);
    case AxisEnd::YMax: return diagram::IsAtYMaxEnd(d, x, y);
  }
  return false;
}

double& LimitOf(Diagram& d, AxisEnd end) {
  switch (end) {
    case AxisEnd::XMax: return d.x.max;
    case AxisEnd::XMin: return d.x.min;
    case AxisEnd::YMin: return d.y.min;
    case AxisEnd::YMax: break;
  }
  return d.y.max;
}

double GridStep(double min, double max) { return numerics::NiceStep((max - min) / 50); }

QPointF WorldPoint(const Diagram& d, QPoint at) { return {diagram::PixelToX(d, at.x()), diagram::PixelToY(d, at.y())}; }

}  // namespace

void TGraphForm::ImageMouseDown(QPoint at, Qt::MouseButton button) {
  const Diagram drawn = image_->Scale();
  const QPointF world = WorldPoint(drawn, at);
  if (button == Qt::LeftButton) {
    std::vector<AxisEnd> hit;
    for (const AxisEnd end : kAxisEnds) {
      if (IsAtEnd(drawn, end, world.x(), world.y())) hit.push_back(end);
    }
    for (const AxisEnd end : hit) AskAxisLimit(end, at);
  } else if (button == Qt::RightButton && diagram::IsInsideFrame(drawn, at.x(), at.y())) {
    rubberStart_ = world;
  }
}

void TGraphForm::AskAxisLimit(AxisEnd end, QPoint at) {
  Diagram& d = diagram::CurrentDiagram();
  double& limit = LimitOf(d, end);
  limit = AskValue(QString::fromStdString(AxisLabel(end)), limit, AxisBounds(end), pos() + at + kDialogOffset);
  if (IsXEnd(end)) {
    d.x.step = GridStep(d.x.min, d.x.max);
    diagram::RecomputeXAxis(d);
  } else {
    d.y.step = GridStep(d.y.min, d.y.max);
    diagram::RecomputeYAxis(d);
  }
  Rescaled();
}

double TGraphForm::AskValue(const QString& label, double value, Bounds bounds, QPoint position) {
  TXmaxDlg1& dialog = *dialogs_.axisValue;
  dialog.SetLabel(label);
  dialog.SetValue(value);
  dialog.SetBounds(bounds.lower, bounds.upper);
  dialog.SetPosition(position.x(), position.y());
  dialog.Execute();
  return dialog.Value();
}

// Only a rectangle drawn from its upper left to its lower right corner sets the scale.
void TGraphForm::ImageMouseUp(QPoint at, Qt::MouseButton button) {
  const Diagram drawn = image_->Scale();
  if (button != Qt::RightButton || !diagram::IsInsideFrame(drawn, at.x(), at.y())) return;
  const QPointF end = WorldPoint(drawn, at);
  if (rubberStart_ && end.x() > rubberStart_->x() && end.y() < rubberStart_->y()) {
    Diagram& d = diagram::CurrentDiagram();
    d.x.min = rubberStart_->x();
    d.x.max = end.x();
    d.y.min = end.y();
    d.y.max = rubberStart_->y();
    d.x.step = GridStep(d.x.min, d.x.max);
    d.y.step = GridStep(d.y.min, d.y.max);
    diagram::RecomputeXAxis(d);
    diagram::RecomputeYAxis(d);
    rubberStart_.reset();
    Rescaled();
    return;
  }
  rubberStart_.reset();
  Redraw();
}

// The cross-hair, or a sizing cursor at an axis end (the last end that holds wins); the frequency
// cursor follows the mouse in every open window.
void TGraphForm::ImageMouseMove(QPoint at) {
  const Diagram& drawn = image_->Scale();
  const QPointF world = WorldPoint(drawn, at);
  currentPanel_->setText(QString::fromStdString(ReadOutText(world.x(), world.y())));
  Qt::CursorShape shape = Qt::CrossCursor;
  for (const AxisEnd end : kAxisEnds) {
    if (IsAtEnd(drawn, end, world.x(), world.y())) shape = IsXEnd(end) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
  }
  image_->setCursor(shape);
  if (!dialogs_.cursor) return;
  if (const std::optional<double> frequency = NearestFrequency(at)) dialogs_.cursor->MoveTo(*frequency);
}

void TGraphForm::ImageDblClick() {
  const Diagram& d = diagram::CurrentDiagram();
  const bool polar = d.x.mode == diagram::AxisMode::Polar || d.y.mode == diagram::AxisMode::Polar;
  if (polar && !DefinesOriginOnEveryDoubleClick()) {
    QApplication::beep();
    return;
  }
  Ursprungfestlegen1Click();
}

void TGraphForm::Ursprungfestlegen1Click() {
  Diagram& d = diagram::CurrentDiagram();
  const QPoint middle = pos() + QPoint(width() / 2, height() / 2) + kOriginDialogOffset;
  d.x.cross = AskValue(QStringLiteral("xo="), d.x.cross, {d.x.min, d.x.max}, middle);
  d.y.cross = AskValue(QStringLiteral("yo="), d.y.cross, {d.y.min, d.y.max}, middle);
  Redraw();
}

void TGraphForm::ZoomButtonClick(bool in) {
  in ? diagram::ZoomIn(diagram::CurrentDiagram()) : diagram::ZoomOut(diagram::CurrentDiagram());
  Rescaled();
}

void TGraphForm::Autoscale(bool x, bool y) {
  Diagram& d = diagram::CurrentDiagram();
  if (x) {
    const std::vector<double> values = XValues();
    diagram::AutoscaleX(d, values, static_cast<int>(values.size()));
  }
  if (y) {
    const std::vector<double> values = YValues();
    diagram::AutoscaleY(d, values, static_cast<int>(values.size()));
  }
  Rescaled();
}

// The check mark has changed already: the item is checkable, and the tool button triggers it.
void TGraphForm::xlog1Click() {
  if (const std::string refusal = LogXRefusal(); !refusal.empty()) {
    xlog1_->setChecked(!xlog1_->isChecked());
    controls::ShowMessage(this, QString::fromStdString(refusal));
    return;
  }
  Diagram& d = diagram::CurrentDiagram();
  diagram::SetAxisModes(d, xlog1_->isChecked() ? diagram::AxisMode::Log : diagram::AxisMode::Linear, d.y.mode);
  Autoscale(true, false);
}

void TGraphForm::DotButtonClick() {
  dotState_ = NextDotState(dotState_);
  Redraw();
}

}  // namespace graphwin
