#include "axes.h"

#include <algorithm>
#include <cmath>

#include "axis.h"
#include "scaling.h"
#include "ticks.h"

namespace diagram {
namespace {

int Rounded(double v) { return static_cast<int>(std::nearbyint(v)); }

void Line(Canvas& c, int x1, int y1, int x2, int y2) {
  c.MoveTo(x1, y1);
  c.LineTo(x2, y2);
}

void DrawHorizontalAxis(const Diagram& d, bool flip, Canvas& c, double step) {
  const int row = YToPixel(d, d.y.cross);
  Line(c, d.x.pixMin, row, d.x.pixMax, row);
  const int back = XArrowLength(d);
  const int side = Rounded(0.003 * d.height + 1);
  Line(c, d.x.pixMax, row, d.x.pixMax - back, row - side);
  Line(c, d.x.pixMax, row, d.x.pixMax - back, row + side);
  const int length = std::max(2, Rounded(std::sqrt(d.y.pixMin / 20.0)));
  const int end = flip ? row - length : row + length;
  for (const double v : TickValues(d.x, step)) {
    const int column = XToPixel(d, v);
    Line(c, column, row, column, end);
  }
}

void DrawVerticalAxis(const Diagram& d, bool flip, Canvas& c, double step) {
  const int column = XToPixel(d, d.x.cross);
  Line(c, column, d.y.pixMin, column, d.y.pixMax);
  const int back = Rounded(0.01 * d.height + 1);
  const int side = Rounded(0.003 * d.width + 1);
  Line(c, column, d.y.pixMax, column - side, d.y.pixMax + back);
  Line(c, column, d.y.pixMax, column + side, d.y.pixMax + back);
  const int length = std::max(2, Rounded(std::sqrt(d.x.pixMax / 30.0)));
  const int end = flip ? column + length : column - length;
  for (const double v : TickValues(d.y, step)) {
    const int row = YToPixel(d, v);
    Line(c, column, row, end, row);
  }
}

}  // namespace

int XArrowLength(const Diagram& d) { return Rounded(0.006 * d.width + 1); }

void ClearDiagram(Colour colour, Canvas& canvas) {
  canvas.SetBrushStyle(BrushStyle::Solid);
  canvas.SetBrushColour(colour);
  canvas.FillRect(0, 0, canvas.Width(), canvas.Height());
}

void SetDrawColour(Colour colour, Canvas& canvas) {
  canvas.SetPenColour(colour);
  canvas.SetFontColour(colour);
}

void DrawAxes(const Diagram& d, bool flipX, bool flipY, Canvas& canvas, double yStep, double xStep) {
  const PenStyle saved = canvas.CurrentPenStyle();
  canvas.SetPenStyle(PenStyle::Solid);
  DrawHorizontalAxis(d, flipX, canvas, xStep);
  DrawVerticalAxis(d, flipY, canvas, yStep);
  canvas.SetPenStyle(saved);
}

}  // namespace diagram
