#include "smith_chart.h"

#include <cmath>
#include <string>

#include "axis.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"
#include "smith_geometry.h"

namespace diagram {
namespace {

// The reflection plane in pixels: the diagram's linear mapping without rounding or clamping,
// since the boxes of the large circles reach far beyond the frame.
struct ChartTransform {
  explicit ChartTransform(const Diagram& d) : x(d.x), y(d.y) {}
  double Column(double re) const { return ToPixelExact(x, re); }
  double Row(double im) const { return ToPixelExact(y, im); }
  int ColumnPixel(double re) const { return static_cast<int>(std::nearbyint(Column(re))); }
  int RowPixel(double im) const { return static_cast<int>(std::nearbyint(Row(im))); }
  double PixelsPerUnit() const { return (x.pixMax - x.pixMin) / (x.max - x.min); }
  bool IsInView(PlanePoint p) const { return p.re >= x.min && p.re <= x.max && p.im >= y.min && p.im <= y.max; }
  Axis x, y;
};

// Restores what the chart changes on the canvas.
class SavedStyle {
 public:
  explicit SavedStyle(Canvas& c)
      : c_(c), pen_(c.PenColour()), style_(c.CurrentPenStyle()), brush_(c.CurrentBrushStyle()),
        font_(c.Font()), fontColour_(c.FontColour()) {}
  ~SavedStyle() {
    c_.ClearClip();
    c_.SetPenColour(pen_);
    c_.SetPenStyle(style_);
    c_.SetBrushStyle(brush_);
    c_.SetFont(font_);
    c_.SetFontColour(fontColour_);
  }
  SavedStyle(const SavedStyle&) = delete;
  SavedStyle& operator=(const SavedStyle&) = delete;

 private:
  Canvas& c_;
  Colour pen_;
  PenStyle style_;
  BrushStyle brush_;
  DiagramFont font_;
  Colour fontColour_;
};

void PrepareCanvas(const Diagram& d, Canvas& c) {
  c.SetPenStyle(PenStyle::Solid);
  c.SetBrushStyle(BrushStyle::Clear);
  c.SetClipRect(d.x.pixMin, d.y.pixMax, d.x.pixMax + 1, d.y.pixMin + 1);
  DiagramFont font;
  font.pointSize = SmithLabelPointSize(d.width, d.height);
  c.SetFont(font);
}

void DrawArc(Canvas& c, const ChartTransform& t, const PlaneArc& arc) {
  const double column = t.Column(arc.centre.re), row = t.Row(arc.centre.im);
  const double r = arc.radius * t.PixelsPerUnit();
  c.Arc(column - r, row - r, column + r, row + r, arc.startDegrees, arc.spanDegrees);
}

void DrawRimAndRealAxis(Canvas& c, const ChartTransform& t) {
  c.Ellipse(t.Column(-1), t.Row(1), t.Column(1), t.Row(-1));
  c.MoveTo(t.ColumnPixel(-1), t.RowPixel(0));
  c.LineTo(t.ColumnPixel(1), t.RowPixel(0));
}

PlaneArc Oriented(const PlaneArc& arc, bool mirrored) { return mirrored ? MirrorLeftRight(arc) : arc; }

void DrawFamilies(Canvas& c, const ChartTransform& t, bool mirrored) {
  for (auto it = kResistanceCircles.rbegin(); it != kResistanceCircles.rend(); ++it) {
    DrawArc(c, t, Oriented(ResistanceArc(it->value, it->extent), mirrored));
  }
  for (const GridCircle& circle : kReactanceCircles) {
    DrawArc(c, t, Oriented(ReactanceArc(circle.value, circle.extent), mirrored));
    DrawArc(c, t, Oriented(ReactanceArc(-circle.value, circle.extent), mirrored));
  }
}

std::string Trimmed(const std::string& text) { return numerics::TrimLeftText(text); }

// Impedance chart: in ohms, left of each circle's left-most point, below the real axis.
// Admittance chart: in siemens, right of the mirrored circle's right-most point, above it.
void DrawResistanceLabels(Canvas& c, const ChartTransform& t, bool mirrored, double z0) {
  const int axisRow = t.RowPixel(0);
  for (const GridCircle& circle : kResistanceCircles) {
    const double inner = (circle.value - 1) / (circle.value + 1);
    if (!t.IsInView({mirrored ? -inner : inner, 0})) continue;
    if (mirrored) {
      const std::string text = Trimmed(numerics::FloatText(6, 3, circle.value / z0));
      c.TextOut(t.ColumnPixel(-inner) + 3, axisRow - 1 - c.TextHeight(text), text);
    } else {
      const std::string text = Trimmed(numerics::FormatPrefixed(1, circle.value * z0));
      c.TextOut(t.ColumnPixel(inner) - 3 - c.TextWidth(text), axisRow + 1, text);
    }
  }
}

// Just outside the rim where the arc meets it, turned away from the chart's centre; left out
// when that point is not in view.
void DrawRimLabel(Canvas& c, const ChartTransform& t, PlanePoint rim, const std::string& text) {
  if (!t.IsInView(rim)) return;
  const double angle = std::atan2(rim.im, rim.re);
  const double cosine = std::cos(angle), sine = std::sin(angle);
  const double column = t.Column(rim.re) + 5 * cosine;
  const double row = t.Row(rim.im) - 5 * sine;
  const int width = c.TextWidth(text), height = c.TextHeight(text);
  c.TextOut(static_cast<int>(std::nearbyint(column + (cosine - 1) / 2 * width)),
            static_cast<int>(std::nearbyint(row - (sine + 1) / 2 * height)), text);
}

void DrawReactanceLabels(Canvas& c, const ChartTransform& t, bool mirrored, double z0) {
  for (const GridCircle& circle : kReactanceCircles) {
    for (const double x : {circle.value, -circle.value}) {
      const PlanePoint rim = ReflectionOf(0, x);
      // Mirrored, the arc of reactance x carries the susceptance -x: the upper half stays inductive.
      const std::string text = mirrored ? Trimmed(numerics::FloatText(6, 3, -x / z0))
                                        : Trimmed(numerics::FloatText(6, 1, x * z0));
      DrawRimLabel(c, t, mirrored ? MirrorLeftRight(rim) : rim, text);
    }
  }
}

// Beside the ends of the real axis, when both are in view.
void DrawEndMarks(Canvas& c, const ChartTransform& t) {
  if (!t.IsInView({-1, 0}) || !t.IsInView({1, 0})) return;
  const int left = t.ColumnPixel(-1), right = t.ColumnPixel(1);
  const int top = t.RowPixel(0) - c.TextHeight("0") / 2;
  c.TextOut(left - c.TextWidth("0 "), top, "0");
  c.TextOut(right, top, " \u221E");
}

// Labels may reach into the margins; each is left out when the point it names is not in view.
void DrawLabels(ChartKind kind, Canvas& c, const ChartTransform& t, double z0) {
  c.ClearClip();
  c.SetFontColour(kBlack);
  if (kind != ChartKind::Admittance) {
    DrawResistanceLabels(c, t, false, z0);
    DrawReactanceLabels(c, t, false, z0);
  }
  if (kind != ChartKind::Impedance) DrawResistanceLabels(c, t, true, z0);
  // The combined chart would stack both reactance labels at the same rim points.
  if (kind == ChartKind::Admittance) DrawReactanceLabels(c, t, true, z0);
  DrawEndMarks(c, t);
}

}  // namespace

int SmithLabelPointSize(int width, int height) { return width > 500 && height > 400 ? 8 : 6; }

void DrawSmithGrid(const Diagram& d, ChartKind kind, Canvas& canvas, bool labels, double z0) {
  const SavedStyle saved(canvas);
  PrepareCanvas(d, canvas);
  const ChartTransform t(d);
  DrawRimAndRealAxis(canvas, t);
  if (kind != ChartKind::Admittance) DrawFamilies(canvas, t, false);
  if (kind == ChartKind::Combined) canvas.SetPenColour(kAdmittanceGridColour);
  if (kind != ChartKind::Impedance) DrawFamilies(canvas, t, true);
  if (labels) DrawLabels(kind, canvas, t, z0);
}

void DrawQArcs(const Diagram& d, Canvas& canvas, double q) {
  if (!(q > 0)) return;
  const SavedStyle saved(canvas);
  PrepareCanvas(d, canvas);
  canvas.SetPenColour(kBlack);
  canvas.SetFontColour(kBlack);
  const ChartTransform t(d);
  const QArcs arcs = ConstantQArcs(q);
  DrawArc(canvas, t, arcs.upper);
  DrawArc(canvas, t, arcs.lower);
  if (!t.IsInView({0, arcs.s})) return;
  canvas.ClearClip();
  const std::string text = ("Q=" + Trimmed(numerics::FormatPrefixed(1, q))).substr(0, 10);
  canvas.TextOut(t.ColumnPixel(0) + 3, t.RowPixel(arcs.s) - canvas.TextHeight(text) - 1, text);
}

}  // namespace diagram
