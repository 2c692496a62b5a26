#include "grid.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "axis.h"
#include "scaling.h"
#include "ticks.h"

namespace diagram {
namespace {

void DrawVerticalLines(const Diagram& d, double spacing, Canvas& c) {
  for (const double v : GridValues(d.x, spacing)) {
    const int column = XToPixel(d, v);
    c.MoveTo(column, d.y.pixMin);
    c.LineTo(column, d.y.pixMax);
  }
}

void DrawHorizontalLines(const Diagram& d, double spacing, Canvas& c) {
  for (const double v : GridValues(d.y, spacing)) {
    const int row = YToPixel(d, v);
    c.MoveTo(d.x.pixMin, row);
    c.LineTo(d.x.pixMax, row);
  }
}

// Distance from the origin to the outermost multiple of g inside the range, on the worse side.
double LargestInnerRadius(const Diagram& d, double g) {
  const double right = std::floor((d.x.max - d.x.cross) / g) * g;
  const double left = std::floor((d.x.cross - d.x.min) / g) * g;
  const double up = std::floor((d.y.max - d.y.cross) / g) * g;
  const double down = std::floor((d.y.cross - d.y.min) / g) * g;
  return std::min({right, left, up, down});
}

void DrawCircle(const Diagram& d, double radius, Canvas& c) {
  const int left = XToPixel(d, d.x.cross - radius), right = XToPixel(d, d.x.cross + radius);
  const int top = YToPixel(d, d.y.cross + radius), bottom = YToPixel(d, d.y.cross - radius);
  // A box cut by the frame would give an ellipse off the origin: leave that circle out.
  const bool centred = std::abs(left + right - 2 * XToPixel(d, d.x.cross)) < 4 &&
                       std::abs(top + bottom - 2 * YToPixel(d, d.y.cross)) < 4;
  if (centred) c.Ellipse(left, top, right, bottom);
}

void DrawCircles(const Diagram& d, double g, Canvas& c) {
  if (!(g > 0) || !std::isfinite(g)) return;
  const double largest = LargestInnerRadius(d, g) - g;
  const BrushStyle saved = c.CurrentBrushStyle();
  c.SetBrushStyle(BrushStyle::Clear);
  for (int k = 0; largest - k * g > 1e-9 * g; ++k) DrawCircle(d, largest - k * g, c);
  c.SetBrushStyle(saved);
}

}  // namespace

void DrawGrid(const Diagram& d, int nx, int ny, Canvas& canvas) {
  const PenStyle saved = canvas.CurrentPenStyle();
  canvas.SetPenStyle(PenStyle::Dot);
  if (IsRoundMode(d.x.mode)) {
    DrawCircles(d, nx * d.x.step, canvas);
  } else {
    DrawVerticalLines(d, nx * d.x.step, canvas);
    DrawHorizontalLines(d, ny * d.y.step, canvas);
  }
  canvas.SetPenStyle(saved);
}

}  // namespace diagram
