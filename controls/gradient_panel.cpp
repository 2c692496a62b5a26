#include "gradient_panel.h"

#include <QLinearGradient>
#include <QPainter>

namespace controls {

TGradientPanel::TGradientPanel(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void TGradientPanel::SetColors(const QColor& start, const QColor& end) {
  start_ = start;
  end_ = end;
  update();
}

void TGradientPanel::SetDirection(Direction direction) {
  direction_ = direction;
  update();
}

void TGradientPanel::paintEvent(QPaintEvent*) {
  const QRectF area = rect();
  const QPointF finalStop =
      direction_ == Direction::TopToBottom ? area.bottomLeft() : area.topRight();
  QLinearGradient gradient(area.topLeft(), finalStop);
  gradient.setColorAt(0, start_);
  gradient.setColorAt(1, end_);
  QPainter painter(this);
  painter.fillRect(area, gradient);
}

}  // namespace controls
