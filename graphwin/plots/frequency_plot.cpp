#include "frequency_plot.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>

#include "diagram/axes.h"
#include "diagram/axis_labels.h"
#include "diagram/curves.h"
#include "diagram/frame.h"
#include "diagram/scaling.h"
#include "diagram/spline.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

using diagram::Canvas;
using diagram::Diagram;

constexpr int kMargin = 4;
constexpr int kLegendSample = 16;  // length of the coloured line before a name in the legend

using Samples = std::array<double, diagram::kSplineCapacity>;

bool RisesStrictly(const std::vector<double>& x) {
  return std::adjacent_find(x.begin(), x.end(), std::greater_equal<>()) == x.end();
}

// The curve as drawn: smoothed through the spline where the look asks for it and the curve allows.
int DrawnPoints(const Diagram& d, const FrequencyCurve& curve, const PlotLook& look, Samples& x, Samples& y) {
  const int count = static_cast<int>(curve.frequency.size());
  if (!look.spline || look.straight || count > diagram::kSplineMaxPoints || !RisesStrictly(curve.frequency)) {
    return -1;
  }
  std::copy(curve.frequency.begin(), curve.frequency.end(), x.begin());
  std::copy(curve.value.begin(), curve.value.end(), y.begin());
  int last = count - 1;
  diagram::SplineResample(x, y, last, d.x.mode == diagram::AxisMode::Log, false, diagram::kSplineMaxPoints);
  return last + 1;
}

void DrawCurve(const Diagram& d, const FrequencyCurve& curve, const PlotLook& look, Canvas& c) {
  const int count = static_cast<int>(curve.frequency.size());
  if (count == 0) return;
  diagram::SetDrawColour(curve.colour, c);
  if (look.dots) diagram::DrawMarkers(d, curve.frequency, curve.value, diagram::kMarkerCross, count, c);
  // Unconnected points whose dots are switched off would vanish: they keep their line.
  const bool lines = look.connect || !look.dots;
  Samples x{}, y{};
  const int smoothed = lines ? DrawnPoints(d, curve, look, x, y) : -1;
  if (smoothed > 0) {
    diagram::DrawCurveWithText(d, x, y, false, smoothed, c, curve.name);
  } else {
    diagram::DrawCurveWithText(d, curve.frequency, curve.value, false, lines ? count : 1, c, curve.name);
  }
}

// The value at frequency on the segment of the curve that spans it, linearly between its ends.
std::optional<double> ValueAt(const FrequencyCurve& curve, double frequency) {
  const std::vector<double>& f = curve.frequency;
  for (std::size_t i = 0; i < f.size(); ++i) {
    if (f[i] == frequency) return curve.value[i];
    if (i + 1 < f.size() && (frequency - f[i]) * (frequency - f[i + 1]) < 0) {
      return curve.value[i] + (curve.value[i + 1] - curve.value[i]) * (frequency - f[i]) / (f[i + 1] - f[i]);
    }
  }
  return std::nullopt;
}

}  // namespace

// Clear of the vertical axis's title.
void DrawHeadings(const Diagram& d, const FrequencyPlot& plot, Canvas& c) {
  diagram::SetDrawColour(diagram::kBlack, c);
  c.TextOut(d.x.pixMax - c.TextWidth(plot.title), 2, plot.title);
  const int bottomLine = c.Height() - c.TextHeight(plot.heading) - 2;
  c.TextOut(kMargin, bottomLine, plot.heading);
  c.TextOut(d.x.pixMax - c.TextWidth(plot.comment), bottomLine, plot.comment);
}

Legend LegendOf(const FrequencyPlot& plot) {
  Legend legend{plot.legendHeading, {}, {}};
  for (const FrequencyCurve& curve : plot.curves) legend.entries.push_back({curve.name, curve.colour});
  legend.footer = "Max. f=" + numerics::TrimLeftText(numerics::FormatPrefixed(2, HighestFrequency(plot))) + "Hz";
  return legend;
}

void DrawLegend(const Diagram& d, const Legend& legend, LegendCorner corner, Canvas& c) {
  int width = std::max(c.TextWidth(legend.heading), c.TextWidth(legend.footer));
  for (const LegendEntry& entry : legend.entries) {
    width = std::max(width, kLegendSample + kMargin + c.TextWidth(entry.name));
  }
  const int line = c.TextHeight(legend.heading);
  const int lines = static_cast<int>(legend.entries.size()) + 2;
  const bool upperRight = corner == LegendCorner::UpperRight;
  const int left = upperRight ? d.x.pixMax - kMargin - width : d.x.pixMin + kMargin;
  int top = upperRight ? d.y.pixMax + kMargin : d.y.pixMin - kMargin - lines * line;
  diagram::SetDrawColour(diagram::kBlack, c);
  c.TextOut(left, top, legend.heading);
  for (const LegendEntry& entry : legend.entries) {
    top += line;
    diagram::SetDrawColour(entry.colour, c);
    c.MoveTo(left, top + line / 2);
    c.LineTo(left + kLegendSample, top + line / 2);
    c.TextOut(left + kLegendSample + kMargin, top, entry.name);
  }
  diagram::SetDrawColour(diagram::kBlack, c);
  c.TextOut(left, top + line, legend.footer);
}

std::vector<double> AllFrequencies(const FrequencyPlot& plot) {
  std::vector<double> all;
  for (const FrequencyCurve& curve : plot.curves) all.insert(all.end(), curve.frequency.begin(), curve.frequency.end());
  return all;
}

std::vector<double> AllValues(const FrequencyPlot& plot) {
  std::vector<double> all;
  for (const FrequencyCurve& curve : plot.curves) all.insert(all.end(), curve.value.begin(), curve.value.end());
  return all;
}

double HighestFrequency(const FrequencyPlot& plot) {
  const std::vector<double> all = AllFrequencies(plot);
  return all.empty() ? 0 : *std::max_element(all.begin(), all.end());
}

std::vector<QPointF> PointsAt(const FrequencyPlot& plot, double frequency) {
  std::vector<QPointF> points;
  for (const FrequencyCurve& curve : plot.curves) {
    if (const std::optional<double> value = ValueAt(curve, frequency)) points.emplace_back(frequency, *value);
  }
  return points;
}

std::string PositionText(double frequency) {
  return "Position : f=" + numerics::FormatPrefixed(2, frequency) + "Hz, ";
}

void DrawFrequencyPlot(const FrequencyPlot& plot, const PlotLook& look, Canvas& canvas) {
  Diagram& d = diagram::CurrentDiagram();
  diagram::DrawFrame(d, canvas, diagram::GridFrame(d.x.labelEvery, d.y.labelEvery));
  DrawHeadings(d, plot, canvas);
  for (const FrequencyCurve& curve : plot.curves) DrawCurve(d, curve, look, canvas);
  if (look.legend) DrawLegend(d, LegendOf(plot), LegendCorner::UpperRight, canvas);
  diagram::SetDrawColour(diagram::kBlack, canvas);
  diagram::DrawXTitle(d, plot.xTitle, false, canvas);
  diagram::DrawYTitle(d, plot.yTitle, canvas);
}

}  // namespace graphwin::plots
