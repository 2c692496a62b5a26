#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>
#include <optional>

#include "diagram/canvas.h"
#include "diagram/colour.h"

// A white picture with a canvas on it, and pixel look-ups in the diagrams' colour notation.
namespace diagram::test {

class Picture {
 public:
  Picture(int width, int height) : image_(width, height, QImage::Format_RGB32) {
    image_.fill(Qt::white);
    painter_.begin(&image_);
    canvas_.emplace(painter_, width, height);
  }
  Canvas& canvas() { return *canvas_; }
  // Ends the drawing; the canvas must not be used afterwards.
  const QImage& Finish() {
    canvas_.reset();
    painter_.end();
    return image_;
  }

 private:
  QImage image_;
  QPainter painter_;
  std::optional<Canvas> canvas_;
};

inline Colour ColourAt(const QImage& image, int x, int y) {
  const QRgb p = image.pixel(x, y);
  return MakeColour(qRed(p), qGreen(p), qBlue(p));
}

// Whether a pixel of the colour lies within radius pixels (in both directions) of (x, y).
inline bool HasColourNear(const QImage& image, int x, int y, int radius, Colour colour) {
  for (int dy = -radius; dy <= radius; ++dy) {
    for (int dx = -radius; dx <= radius; ++dx) {
      if (image.rect().contains(x + dx, y + dy) && ColourAt(image, x + dx, y + dy) == colour) return true;
    }
  }
  return false;
}

inline int CountNotWhite(const QImage& image, const QRect& area) {
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) count += ColourAt(image, x, y) != kWhite;
  }
  return count;
}

}  // namespace diagram::test
