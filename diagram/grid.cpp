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
  for (const double v : GridValues(XAxisOf(d), spacing)) {
    const int column = XToPixel(d, v);
    c.MoveTo(column, d.pixBottom);
    c.LineTo(column, d.pixTop);
  }
}

void DrawHorizontalLines(const Diagram& d, double spacing, Canvas& c) {
  for (const double v : GridValues(YAxisOf(d), spacing)) {
    const int row = YToPixel(d, v);
    c.MoveTo(d.pixLeft, row);
    c.LineTo(d.pixRight, row);
  }
}

// Distance from the origin to the outermost multiple of g inside the range, on the worse side.
double LargestInnerRadius(const Diagram& d, double g) {
  const double right = std::floor((d.xMax - d.xCross) / g) * g;
  const double left = std::floor((d.xCross - d.xMin) / g) * g;
  const double up = std::floor((d.yMax - d.yCross) / g) * g;
  const double down = std::floor((d.yCross - d.yMin) / g) * g;
  return std::min({right, left, up, down});
}

void DrawCircle(const Diagram& d, double radius, Canvas& c) {
  const int left = XToPixel(d, d.xCross - radius), right = XToPixel(d, d.xCross + radius);
  const int top = YToPixel(d, d.yCross + radius), bottom = YToPixel(d, d.yCross - radius);
  // A box cut by the frame would give an ellipse off the origin: leave that circle out.
  const bool centred = std::abs(left + right - 2 * XToPixel(d, d.xCross)) < 4 &&
                       std::abs(top + bottom - 2 * YToPixel(d, d.yCross)) < 4;
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
  if (IsRoundMode(d.xMode)) {
    DrawCircles(d, nx * d.xStep, canvas);
  } else {
    DrawVerticalLines(d, nx * d.xStep, canvas);
    DrawHorizontalLines(d, ny * d.yStep, canvas);
  }
  canvas.SetPenStyle(saved);
}

}  // namespace diagram
