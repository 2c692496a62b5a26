#include "page_graphs.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <span>

#include "diagram/autoscale.h"
#include "diagram/axes.h"
#include "diagram/axis_labels.h"
#include "diagram/curves.h"
#include "diagram/frame.h"
#include "diagram/scaling.h"
#include "graph_data.h"
#include "graph_legend.h"
#include "numerics/rounding.h"

namespace diagram::pages {
namespace {

using diagram::Canvas;

// The autoscaling leaves the largest value this much below the axis end, so that no point
// lands on the frame's edge, where it would get no marker.
constexpr double kHeadroom = 1.001;

// The smallest value and the largest one with headroom: all that the autoscaling looks at.
std::vector<double> ScalingValues(std::span<const double> values) {
  assert(!values.empty());
  const auto [low, high] = std::minmax_element(values.begin(), values.end());
  return {*low, *high * (*high > 0 ? kHeadroom : 1)};
}

std::vector<double> AllY(const PageGraph& graph) {
  std::vector<double> y;
  for (const PlotSeries& s : graph.series) y.insert(y.end(), s.y.begin(), s.y.end());
  return y;
}

// A range without width (one current for every file, every value 0) still gets a frame.
void WidenEmptyRange(double& min, double& max) {
  if (!(max > min)) max = min + (min == 0 ? 1 : std::fabs(min));
}

void ScaleAxes(const PageGraph& graph, diagram::Diagram& d) {
  d = diagram::Diagram{};  // ranges 0 to 1, kept when there is nothing to scale
  if (!graph.x.empty()) {
    const std::vector<double> x = ScalingValues(graph.x);
    diagram::AutoscaleX(d, x, static_cast<int>(x.size()));
  }
  const std::vector<double> y = AllY(graph);
  if (!y.empty()) diagram::AutoscaleY(d, y, static_cast<int>(y.size()));
  if (d.y.max < graph.leastYMax) d.y.max = graph.leastYMax;
  WidenEmptyRange(d.x.min, d.x.max);
  WidenEmptyRange(d.y.min, d.y.max);
  d.y.step = numerics::NiceStep((d.y.max - 0) / 50);
}

// Returns whether a ring was drawn, which is when the legend says what a ring means.
bool DrawRings(const diagram::Diagram& d, const PageGraph& graph, Canvas& c) {
  bool drawn = false;
  for (const PlotSeries& s : graph.series) {
    for (std::size_t i = 0; i < s.flagged.size(); ++i) {
      const QPoint at = PointPixel(d, graph, s, i);
      if (!s.flagged[i] || !diagram::IsStrictlyInside(d, at.x(), at.y())) continue;
      DrawRing(at, RingRadius(d), c);
      drawn = true;
    }
  }
  c.SetBrushStyle(diagram::BrushStyle::Solid);  // the titles and the legend box are drawn filled
  return drawn;
}

void DrawPageGraph(const PageGraph& graph, bool connect, Canvas& c) {
  diagram::Diagram& d = diagram::CurrentDiagram();
  ScaleAxes(graph, d);
  diagram::DrawFrame(d, c, diagram::GridFrame(d.x.labelEvery, d.y.labelEvery));
  const int count = static_cast<int>(graph.x.size());
  for (const PlotSeries& s : graph.series) {
    diagram::SetDrawColour(s.colour, c);
    diagram::DrawMarkers(d, graph.x, s.y, s.marker, count, c);
    if (connect) diagram::DrawCurve(d, graph.x, s.y, count, c);
  }
  const bool ringed = DrawRings(d, graph, c);
  diagram::SetDrawColour(diagram::kBlack, c);
  diagram::DrawXTitle(d, graph.xTitle, false, c);
  diagram::DrawYTitle(d, graph.yTitle, c);
  DrawLegend(d, graph, ringed, c);
}

}  // namespace

int RingRadius(const diagram::Diagram& d) { return 2 * diagram::MarkerSize(d) + 2; }

QPoint PointPixel(const diagram::Diagram& d, const PageGraph& graph, const PlotSeries& series, std::size_t file) {
  return {diagram::XToPixel(d, graph.x[file]), diagram::YToPixel(d, series.y[file])};
}

std::optional<CheckedPoint> CheckedPointNear(const diagram::Diagram& d, const PageGraph& graph, QPoint at) {
  const int radius = RingRadius(d);
  for (const PlotSeries& s : graph.series) {
    for (std::size_t i = 0; s.checked && i < s.y.size(); ++i) {
      const QPoint offset = PointPixel(d, graph, s, i) - at;
      if (offset.x() * offset.x() + offset.y() * offset.y() <= radius * radius) return CheckedPoint{*s.checked, i};
    }
  }
  return std::nullopt;
}

void DrawFtFmaxPage(const PageScene& scene, Canvas& canvas) {
  DrawPageGraph(GraphOf(OutputPage::FtFmax, scene), scene.connect, canvas);
}

void DrawKMagPage(const PageScene& scene, Canvas& canvas) {
  DrawPageGraph(GraphOf(OutputPage::KMag, scene), scene.connect, canvas);
}

void DrawStabilityPage(const PageScene& scene, Canvas& canvas) {
  DrawPageGraph(GraphOf(OutputPage::StabilityLimit, scene), scene.connect, canvas);
}

PageRoutine RoutineOf(OutputPage page) {
  switch (page) {
    case OutputPage::FtFmax: return DrawFtFmaxPage;
    case OutputPage::KMag: return DrawKMagPage;
    case OutputPage::StabilityLimit: return DrawStabilityPage;
  }
  return nullptr;
}

}  // namespace diagram::pages
