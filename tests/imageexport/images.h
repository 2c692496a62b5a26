#pragma once

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <random>

// Pictures to export: a small diagram and pictures that stress the colour table.
namespace imageexport::test {

inline QImage DiagramLike(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter p(&image);
  p.setPen(QColor(128, 128, 128));
  for (int x = 40; x < width; x += 30) p.drawLine(x, 20, x, height - 20);
  p.setPen(Qt::black);
  p.drawLine(40, height - 20, width - 10, height - 20);
  p.drawText(50, 40, "f in Hz");
  p.setPen(Qt::red);
  p.drawEllipse(QRect(width / 4, height / 4, width / 2, height / 2));
  return image;
}

// Every pixel one of 256 colours at random: long LZW codes, several clear codes.
inline QImage Noise(int width, int height, int colours, unsigned seed) {
  QImage image(width, height, QImage::Format_RGB32);
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> pick(0, colours - 1);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int c = pick(random);
      image.setPixel(x, y, qRgb(c, (c * 7) & 0xFF, 255 - c));
    }
  }
  return image;
}

// 4096 colours on a plane of the colour cube.
inline QImage Gradient() {
  QImage image(64, 64, QImage::Format_RGB32);
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) image.setPixel(x, y, qRgb(4 * x, 4 * y, 128));
  }
  return image;
}

inline int LargestChannelError(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

inline double MeanChannelError(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
      sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
    }
  }
  return sum / (3.0 * a.width() * a.height());
}

}  // namespace imageexport::test
