#include "canvas.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QString>
#include <QTransform>

#include "fonts.h"

namespace diagram {
namespace {

QColor ToQColor(Colour c) { return QColor(RedOf(c), GreenOf(c), BlueOf(c)); }

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QFont PreparedFont(const DiagramFont& font) {
  InstallFontSubstitutions();
  return MakeQFont(font);
}

}  // namespace

Canvas::Canvas(QPainter& painter, int width, int height)
    : painter_(painter),
      width_(width),
      height_(height),
      qfont_(PreparedFont(font_)),
      metrics_(qfont_, painter.device()) {
  // Hard pixel edges and plain text, as users compare grid lines pixel by pixel; a diagram then
  // keeps a handful of colours, which GIF stores exactly. Vector outputs are unaffected.
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setRenderHint(QPainter::TextAntialiasing, false);
  painter_.setFont(qfont_);
  ApplyPen();
  ApplyBrush();
}

void Canvas::SetPenColour(Colour colour) {
  penColour_ = colour;
  ApplyPen();
}

void Canvas::SetPenStyle(PenStyle style) {
  penStyle_ = style;
  ApplyPen();
}

void Canvas::SetBrushColour(Colour colour) {
  brushColour_ = colour;
  ApplyBrush();
}

void Canvas::SetBrushStyle(BrushStyle style) {
  brushStyle_ = style;
  ApplyBrush();
}

void Canvas::SetFont(const DiagramFont& font) {
  font_ = font;
  qfont_ = PreparedFont(font_);
  metrics_ = QFontMetrics(qfont_, painter_.device());
  painter_.setFont(qfont_);
}

void Canvas::SetFontColour(Colour colour) { fontColour_ = colour; }

void Canvas::ApplyPen() {
  QPen pen(ToQColor(penColour_));
  pen.setWidth(0);  // cosmetic: one device pixel wide on every output
  pen.setStyle(penStyle_ == PenStyle::Dot ? Qt::DotLine : Qt::SolidLine);
  painter_.setPen(pen);
}

void Canvas::ApplyBrush() {
  if (brushStyle_ == BrushStyle::Clear) {
    painter_.setBrush(Qt::NoBrush);
  } else {
    painter_.setBrush(ToQColor(brushColour_));
  }
}

void Canvas::FillRect(int left, int top, int right, int bottom) {
  painter_.fillRect(QRect(left, top, right - left, bottom - top), ToQColor(brushColour_));
}

void Canvas::MoveTo(int x, int y) { position_ = QPoint(x, y); }

void Canvas::LineTo(int x, int y) {
  const QPoint to(x, y);
  painter_.drawLine(position_, to);
  position_ = to;
}

void Canvas::Rectangle(int left, int top, int right, int bottom) {
  painter_.drawRect(QRect(left, top, right - left, bottom - top));
}

void Canvas::Ellipse(double left, double top, double right, double bottom) {
  painter_.drawEllipse(QRectF(left, top, right - left, bottom - top));
}

void Canvas::Arc(double left, double top, double right, double bottom, double startDegrees, double spanDegrees) {
  // A path keeps the angles in double precision; drawArc would round them to 1/16 degree,
  // which moves the ends of the very large constant-Q circles by many pixels.
  const QRectF box(left, top, right - left, bottom - top);
  QPainterPath path;
  path.arcMoveTo(box, startDegrees);
  path.arcTo(box, startDegrees, spanDegrees);
  painter_.save();
  painter_.setBrush(Qt::NoBrush);
  painter_.drawPath(path);
  painter_.restore();
}

void Canvas::Hatch(const QPainterPath& region, Colour colour) {
  painter_.fillPath(region, QBrush(ToQColor(colour), Qt::BDiagPattern));
}

void Canvas::TextOut(int x, int y, std::string_view text) {
  painter_.save();
  painter_.setPen(ToQColor(fontColour_));
  painter_.translate(x, y);
  if (font_.orientation != 0) painter_.rotate(-font_.orientation / 10.0);
  painter_.drawText(QPointF(0, metrics_.ascent()), ToQString(text));
  painter_.restore();
  QTransform turn;
  turn.translate(x, y).rotate(-font_.orientation / 10.0);
  writtenTexts_.push_back(turn.mapRect(QRect(0, 0, TextWidth(text), TextHeight(text))));
}

int Canvas::TextWidth(std::string_view text) const { return metrics_.horizontalAdvance(ToQString(text)); }

int Canvas::TextHeight(std::string_view) const { return metrics_.height(); }

void Canvas::SetClipRect(int left, int top, int right, int bottom) {
  painter_.setClipRect(QRect(left, top, right - left, bottom - top));
}

void Canvas::ClearClip() { painter_.setClipping(false); }

}  // namespace diagram
