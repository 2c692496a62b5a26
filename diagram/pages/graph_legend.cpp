#include "graph_legend.h"

#include <algorithm>
#include <array>
#include <limits>

#include "diagram/axes.h"
#include "diagram/curves.h"
#include "diagram/scaling.h"

namespace diagram::pages {
namespace {

using diagram::Canvas;

constexpr int kInset = 4;    // between the frame and the box
constexpr int kPadding = 4;  // inside the box, and between a marker and its name
constexpr const char* kRingMeaning = "doubtful at fo";

int CoveredMarkers(const diagram::Diagram& d, const PageGraph& graph, const QRect& box) {
  const int s = diagram::MarkerSize(d);
  const QRect reach = box.adjusted(-s, -s, s, s);
  int covered = 0;
  for (const PlotSeries& series : graph.series) {
    for (std::size_t i = 0; i < graph.x.size() && i < series.y.size(); ++i) {
      covered += reach.contains(diagram::XToPixel(d, graph.x[i]), diagram::YToPixel(d, series.y[i]));
    }
  }
  return covered;
}

// Where the marker's shape is centred on (column, row): circles and squares hang below and to
// the right of their point.
QPoint MarkerPoint(std::uint8_t kind, int column, int row, int s) {
  switch (kind) {
    case diagram::kMarkerCircle: return {column - s / 2, row - s / 2};
    case diagram::kMarkerSquare: return {column, row - s / 2};
    default: return {column, row};
  }
}

// Where the lines of the box and the column of their symbols are; the names follow the column.
struct Layout {
  QRect box;
  int lineHeight;
  int symbolWidth;
  int markerSize;

  QPoint LineStart(int line) const { return {box.left() + kPadding, box.top() + kPadding + line * lineHeight}; }
};

// The legend's ring fills its line, so that it reads as the same ring as on the points.
int LegendRingRadius(int lineHeight) { return lineHeight / 2 - 1; }

QSize BoxSize(const PageGraph& graph, bool ringed, const Layout& layout, const Canvas& canvas) {
  int widest = ringed ? canvas.TextWidth(kRingMeaning) : 0;
  for (const PlotSeries& series : graph.series) widest = std::max(widest, canvas.TextWidth(series.name));
  const int lines = static_cast<int>(graph.series.size()) + (ringed ? 1 : 0);
  return {3 * kPadding + layout.symbolWidth + widest, 2 * kPadding + lines * layout.lineHeight};
}

void DrawEntry(const PlotSeries& series, const Layout& layout, int line, Canvas& canvas) {
  const QPoint start = layout.LineStart(line);
  diagram::SetDrawColour(series.colour, canvas);
  canvas.SetBrushStyle(diagram::BrushStyle::Clear);
  const int s = layout.markerSize;
  const QPoint at = MarkerPoint(series.marker, start.x() + layout.symbolWidth / 2, start.y() + layout.lineHeight / 2, s);
  diagram::DrawMarker(canvas, series.marker, at.x(), at.y(), s);
  canvas.TextOut(start.x() + layout.symbolWidth + kPadding, start.y(), series.name);
}

void DrawRingEntry(const Layout& layout, int line, Canvas& canvas) {
  const QPoint start = layout.LineStart(line);
  const QPoint centre(start.x() + layout.symbolWidth / 2, start.y() + layout.lineHeight / 2);
  DrawRing(centre, LegendRingRadius(layout.lineHeight), canvas);
  canvas.TextOut(start.x() + layout.symbolWidth + kPadding, start.y(), kRingMeaning);
}

}  // namespace

QRect LegendBox(const diagram::Diagram& d, const PageGraph& graph, const QSize& size, std::span<const QRect> texts) {
  const int left = d.x.pixMin + kInset, right = d.x.pixMax - kInset - size.width();
  const int top = d.y.pixMax + kInset, bottom = d.y.pixMin - kInset - size.height();
  const std::array<QRect, 4> corners = {QRect({right, top}, size), QRect({left, top}, size),
                                        QRect({right, bottom}, size), QRect({left, bottom}, size)};
  QRect best = corners.front();
  int fewest = std::numeric_limits<int>::max();
  for (const QRect& box : corners) {
    const bool onText = std::any_of(texts.begin(), texts.end(), [&](const QRect& t) { return t.intersects(box); });
    const int cost = onText ? std::numeric_limits<int>::max() - 1 : CoveredMarkers(d, graph, box);
    if (cost < fewest) {
      fewest = cost;
      best = box;
    }
  }
  return best;
}

void DrawRing(QPoint centre, int radius, Canvas& canvas) {
  diagram::SetDrawColour(diagram::kBlue, canvas);
  canvas.SetPenStyle(diagram::PenStyle::Solid);
  canvas.SetBrushStyle(diagram::BrushStyle::Clear);
  canvas.Ellipse(centre.x() - radius, centre.y() - radius, centre.x() + radius, centre.y() + radius);
}

void DrawLegend(const diagram::Diagram& d, const PageGraph& graph, bool ringed, Canvas& canvas) {
  if (graph.series.empty()) return;
  Layout layout{{}, canvas.TextHeight("fT"), 0, diagram::MarkerSize(d)};
  layout.symbolWidth = 2 * layout.markerSize + 1;
  if (ringed) layout.symbolWidth = std::max(layout.symbolWidth, 2 * LegendRingRadius(layout.lineHeight) + 1);
  layout.box = LegendBox(d, graph, BoxSize(graph, ringed, layout, canvas), canvas.WrittenTexts());
  diagram::SetDrawColour(diagram::kBlack, canvas);
  canvas.SetBrushColour(diagram::kWhite);
  canvas.SetBrushStyle(diagram::BrushStyle::Solid);
  canvas.Rectangle(layout.box.left(), layout.box.top(), layout.box.right() + 1, layout.box.bottom() + 1);
  const int lines = static_cast<int>(graph.series.size());
  for (int line = 0; line < lines; ++line) DrawEntry(graph.series[static_cast<std::size_t>(line)], layout, line, canvas);
  if (ringed) DrawRingEntry(layout, lines, canvas);
  diagram::SetDrawColour(diagram::kBlack, canvas);
}

}  // namespace diagram::pages
