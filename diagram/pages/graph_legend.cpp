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

QSize BoxSize(const PageGraph& graph, int markerWidth, const Canvas& canvas) {
  int widest = 0;
  for (const PlotSeries& series : graph.series) widest = std::max(widest, canvas.TextWidth(series.name));
  const int lines = static_cast<int>(graph.series.size());
  return {3 * kPadding + markerWidth + widest, 2 * kPadding + lines * canvas.TextHeight("fT")};
}

void DrawEntry(const PlotSeries& series, const QPoint& lineStart, int s, int lineHeight, Canvas& canvas) {
  diagram::SetDrawColour(series.colour, canvas);
  canvas.SetBrushStyle(diagram::BrushStyle::Clear);
  const QPoint at = MarkerPoint(series.marker, lineStart.x() + s, lineStart.y() + lineHeight / 2, s);
  diagram::DrawMarker(canvas, series.marker, at.x(), at.y(), s);
  canvas.TextOut(lineStart.x() + 2 * s + 1 + kPadding, lineStart.y(), series.name);
}

}  // namespace

QRect LegendBox(const diagram::Diagram& d, const PageGraph& graph, const QSize& size, std::span<const QRect> texts) {
  const int left = d.pixLeft + kInset, right = d.pixRight - kInset - size.width();
  const int top = d.pixTop + kInset, bottom = d.pixBottom - kInset - size.height();
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

void DrawLegend(const diagram::Diagram& d, const PageGraph& graph, Canvas& canvas) {
  if (graph.series.empty()) return;
  const int s = diagram::MarkerSize(d);
  const int lineHeight = canvas.TextHeight("fT");
  const QRect box = LegendBox(d, graph, BoxSize(graph, 2 * s + 1, canvas), canvas.WrittenTexts());
  diagram::SetDrawColour(diagram::kBlack, canvas);
  canvas.SetBrushColour(diagram::kWhite);
  canvas.SetBrushStyle(diagram::BrushStyle::Solid);
  canvas.Rectangle(box.left(), box.top(), box.right() + 1, box.bottom() + 1);
  for (std::size_t i = 0; i < graph.series.size(); ++i) {
    const QPoint lineStart(box.left() + kPadding, box.top() + kPadding + static_cast<int>(i) * lineHeight);
    DrawEntry(graph.series[i], lineStart, s, lineHeight, canvas);
  }
  diagram::SetDrawColour(diagram::kBlack, canvas);
}

}  // namespace diagram::pages
