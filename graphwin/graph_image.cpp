#include "graph_image.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace graphwin {
namespace {

constexpr int kMarkRadius = 4;
constexpr int kMarkPen = 2;

QPoint PositionOf(const QMouseEvent* event) { return event->position().toPoint(); }

QRect AroundMark(QPoint mark) {
  constexpr int reach = kMarkRadius + kMarkPen;
  return {mark.x() - reach, mark.y() - reach, 2 * reach + 1, 2 * reach + 1};
}

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

void TDiagramImage::ShowMarks(std::vector<QPoint> marks) {
  UpdateAroundMarks();
  marks_ = std::move(marks);
  UpdateAroundMarks();
}

void TDiagramImage::UpdateAroundMarks() {
  for (const QPoint& mark : marks_) update(AroundMark(mark));
}

// Only the part asked for is copied from the picture, so that moving the marks stays cheap.
void TDiagramImage::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRect asked = event->rect();
  painter.fillRect(asked, Qt::white);
  if (!picture_.isNull()) painter.drawImage(asked.topLeft(), picture_, asked);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, kMarkPen));
  painter.setBrush(Qt::NoBrush);
  for (const QPoint& mark : marks_) painter.drawEllipse(mark, kMarkRadius, kMarkRadius);
}

void TDiagramImage::resizeEvent(QResizeEvent*) { emit Resized(); }
void TDiagramImage::mousePressEvent(QMouseEvent* event) { emit MouseDown(PositionOf(event), event->button()); }
void TDiagramImage::mouseMoveEvent(QMouseEvent* event) { emit MouseMove(PositionOf(event)); }
void TDiagramImage::mouseReleaseEvent(QMouseEvent* event) { emit MouseUp(PositionOf(event), event->button()); }
void TDiagramImage::mouseDoubleClickEvent(QMouseEvent* event) { emit DoubleClick(PositionOf(event)); }

}  // namespace graphwin
