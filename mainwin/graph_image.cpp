#include "graph_image.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <cassert>

#include "diagram/pages/graph_data.h"
#include "diagram/pages/read_out.h"
#include "diagram/scaling.h"
#include "series/check_texts.h"

namespace mainwin {
namespace {

// Smaller pictures leave no room for a diagram frame.
constexpr int kSmallestSide = 64;

}  // namespace

TGraphImage::TGraphImage(diagram::pages::OutputPage page, QWidget* parent) : QWidget(parent), page_(page) {
  setMouseTracking(true);
  setCursor(Qt::CrossCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TGraphImage::Draw(const diagram::pages::PageScene& scene) {
  scene_ = scene;
  drawn_ = true;
  Render();
}

void TGraphImage::Paint(QPainter& painter, const QRect& rect) const {
  assert(drawn_ && "an output page is drawn before its picture is used");
  painter.save();
  painter.translate(rect.topLeft());
  painter.setClipRect(QRect(QPoint(0, 0), rect.size()));
  diagram::Canvas canvas(painter, rect.width(), rect.height());
  diagram::pages::RoutineOf(page_)(scene_, canvas);
  painter.restore();
}

void TGraphImage::Render() {
  if (!drawn_ || width() < kSmallestSide || height() < kSmallestSide) return;
  picture_ = QImage(size(), QImage::Format_RGB32);
  QPainter painter(&picture_);
  Paint(painter, picture_.rect());
  scale_ = diagram::CurrentDiagram();
  update();
}

bool TGraphImage::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const diagram::pages::PageGraph graph = diagram::pages::GraphOf(page_, scene_);
  const std::optional<diagram::pages::CheckedPoint> point =
      picture_.isNull() ? std::nullopt : diagram::pages::CheckedPointNear(scale_, graph, help->pos());
  if (!point) {
    QToolTip::hideText();
    event->ignore();
    return true;
  }
  QToolTip::showText(help->globalPos(),
                     QString::fromStdString(series::CheckTipText(scene_.results[point->file], point->figure)), this);
  return true;
}

void TGraphImage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (!picture_.isNull()) painter.drawImage(0, 0, picture_);
}

void TGraphImage::resizeEvent(QResizeEvent*) { Render(); }

void TGraphImage::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (picture_.isNull() || !diagram::IsInsideFrame(scale_, at.x(), at.y())) {
    emit ReadOut(QString());
    return;
  }
  const double x = diagram::PixelToX(scale_, at.x()), y = diagram::PixelToY(scale_, at.y());
  emit ReadOut(QString::fromStdString(diagram::pages::ReadOutText(page_, scene_, x, y)));
}

void TGraphImage::leaveEvent(QEvent*) { emit ReadOut(QString()); }

}  // namespace mainwin
