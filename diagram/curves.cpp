#include "curves.h"

#include <cassert>
#include <cmath>

#include "curve_names.h"
#include "scaling.h"

namespace diagram {
namespace {

struct Pixel {
  int column, row;
};

Pixel PixelOf(const Diagram& d, std::span<const double> x, std::span<const double> y, int i) {
  const auto index = static_cast<std::size_t>(i);
  return {XToPixel(d, x[index]), YToPixel(d, y[index])};
}

bool ArraysHold(std::span<const double> x, std::span<const double> y, int count) {
  return count >= 0 && static_cast<std::size_t>(count) <= x.size() && static_cast<std::size_t>(count) <= y.size();
}

}  // namespace

bool IsStrictlyInside(const Diagram& d, int column, int row) {
  return column > d.x.pixMin && column < d.x.pixMax && row > d.y.pixMax && row < d.y.pixMin;
}

void DrawMarker(Canvas& c, std::uint8_t kind, int x, int y, int s) {
  switch (kind) {
    case kMarkerSquare:  // hangs below the point, twice as wide as high
      c.Rectangle(x - s, y, x + s, y + s);
      break;
    case kMarkerCircle:  // to the lower right of the point
      c.Ellipse(x, y, x + s, y + s);
      break;
    case kMarkerCross:
      c.MoveTo(x - s, y + s);
      c.LineTo(x + s, y - s);
      c.MoveTo(x + s, y + s);
      c.LineTo(x - s, y - s);
      break;
    default:  // a filled 3 x 3 dot
      for (int row = y - 1; row <= y + 1; ++row) {
        c.MoveTo(x - 1, row);
        c.LineTo(x + 1, row);
      }
      break;
  }
}

int MarkerSize(const Diagram& d) { return static_cast<int>(std::nearbyint((d.x.pixMax + d.y.pixMin) / 500.0 + 1)); }

void DrawCurve(const Diagram& d, std::span<const double> x, std::span<const double> y, int count, Canvas& canvas) {
  assert(ArraysHold(x, y, count));
  if (count == 0) return;
  const PenStyle saved = canvas.CurrentPenStyle();
  canvas.SetPenStyle(PenStyle::Solid);
  Pixel p = PixelOf(d, x, y, 0);
  bool previousInside = IsStrictlyInside(d, p.column, p.row);
  canvas.MoveTo(p.column, p.row);
  for (int i = 1; i < count; ++i) {
    p = PixelOf(d, x, y, i);
    const bool inside = IsStrictlyInside(d, p.column, p.row);
    if (inside && previousInside) {
      canvas.LineTo(p.column, p.row);
    } else {
      canvas.MoveTo(p.column, p.row);
    }
    previousInside = inside;
  }
  canvas.SetPenStyle(saved);
}

void DrawMarkers(const Diagram& d, std::span<const double> x, std::span<const double> y, std::uint8_t kind,
                 int count, Canvas& canvas) {
  assert(ArraysHold(x, y, count));
  const int s = MarkerSize(d);
  const PenStyle savedPen = canvas.CurrentPenStyle();
  const BrushStyle savedBrush = canvas.CurrentBrushStyle();
  canvas.SetPenStyle(PenStyle::Solid);
  canvas.SetBrushStyle(BrushStyle::Clear);
  for (int i = 0; i < count; ++i) {
    const Pixel p = PixelOf(d, x, y, i);
    if (IsStrictlyInside(d, p.column, p.row)) DrawMarker(canvas, kind, p.column, p.row, s);
  }
  canvas.SetBrushStyle(savedBrush);
  canvas.SetPenStyle(savedPen);
}

void DrawCurveWithText(const Diagram& d, std::span<const double> x, std::span<const double> y, bool textLeft,
                       int count, Canvas& canvas, std::string_view text) {
  DrawCurve(d, x, y, count, canvas);
  if (count == 0) return;
  const Pixel p = PixelOf(d, x, y, 0);
  WriteCurveName(canvas, p.column, p.row, textLeft, text);
}

}  // namespace diagram
