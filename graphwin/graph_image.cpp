#include "graph_image.h"

#include <QMouseEvent>
#include <QPainter>

namespace graphwin {
namespace {

QPoint PositionOf(const QMouseEvent* event) { return event->position().toPoint(); }

}  // namespace

TDiagramImage::TDiagramImage(QWidget* parent) : QWidget(parent) {
  setObjectName("Image");
  setMouseTracking(true);
  setCursor(Qt::CrossCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TDiagramImage::ShowPicture(const QImage& picture, const diagram::Diagram& scale) {
  picture_ = picture;
  scale_ = scale;
  update();
}

void TDiagramImage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (!picture_.isNull()) painter.drawImage(0, 0, picture_);
}

void TDiagramImage::resizeEvent(QResizeEvent*) { emit Resized(); }
void TDiagramImage::mousePressEvent(QMouseEvent* event) { emit MouseDown(PositionOf(event), event->button()); }
void TDiagramImage::mouseMoveEvent(QMouseEvent* event) { emit MouseMove(PositionOf(event)); }
void TDiagramImage::mouseReleaseEvent(QMouseEvent* event) { emit MouseUp(PositionOf(event), event->button()); }
void TDiagramImage::mouseDoubleClickEvent(QMouseEvent* event) { emit DoubleClick(PositionOf(event)); }

}  // namespace graphwin
