#include "axis_labels.h"

#include <algorithm>
#include <cmath>

#include "axes.h"
#include "axis.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"
#include "scaling.h"
#include "ticks.h"

namespace diagram {
namespace {

constexpr int kExactDecimals = 3;  // enough for every label of a round step to read exactly
constexpr int kMostDecimals = 9;

std::string LabelText(int decimals, double value) {
  return numerics::TrimLeftText(numerics::FormatPrefixed(decimals, value));
}

bool ReadBackExactly(const std::vector<double>& values, int decimals) {
  double largest = 0;
  for (const double v : values) largest = std::max(largest, std::fabs(v));
  const double tolerance = 1e-6 * largest;
  return std::all_of(values.begin(), values.end(), [&](double v) {
    return std::fabs(numerics::ParseValueText(LabelText(decimals, v)).value - v) <= tolerance;
  });
}

bool NeighboursDiffer(std::vector<double> values, int decimals) {
  std::sort(values.begin(), values.end());
  for (std::size_t i = 1; i < values.size(); ++i) {
    if (LabelText(decimals, values[i - 1]) == LabelText(decimals, values[i])) return false;
  }
  return true;
}

// The fewest decimals with which every label, read back, gives its own value; where that takes
// more than a few (a narrow span far from zero, an origin off the step), the fewest with which
// neighbouring labels still differ.
int DecimalsFor(const std::vector<double>& values) {
  for (int decimals = 0; decimals < kExactDecimals; ++decimals) {
    if (ReadBackExactly(values, decimals)) return decimals;
  }
  for (int decimals = kExactDecimals; decimals < kMostDecimals; ++decimals) {
    if (NeighboursDiffer(values, decimals)) return decimals;
  }
  return kMostDecimals;
}

std::vector<AxisLabel> LabelsOf(const Axis& a) {
  if (a.mode != AxisMode::Log && a.min == a.max) return {};
  const std::vector<double> values = LabelValues(a);
  const int decimals = DecimalsFor(values);
  std::vector<AxisLabel> labels;
  for (const double v : values) labels.push_back({v, LabelText(decimals, v)});
  return labels;
}

}  // namespace

std::vector<AxisLabel> XAxisLabels(const Diagram& d) { return LabelsOf(d.x); }
std::vector<AxisLabel> YAxisLabels(const Diagram& d) { return LabelsOf(d.y); }

void DrawAxisLabels(const Diagram& d, LabelPlacement placement, Canvas& canvas) {
  const int row = YToPixel(d, d.y.cross);
  for (const AxisLabel& label : XAxisLabels(d)) {
    const int width = canvas.TextWidth(label.text);
    const int top = placement.xLabelsAbove ? row - 20 : row + 4;
    canvas.TextOut(XToPixel(d, label.value) - width / 2, top, label.text);
  }
  const int column = XToPixel(d, d.x.cross);
  for (const AxisLabel& label : YAxisLabels(d)) {
    const int width = canvas.TextWidth(label.text);
    const int height = canvas.TextHeight(label.text);
    const int left = placement.yLabelsRight ? column + 4 : column - 4 - width;
    int top = YToPixel(d, label.value) - height / 2;
    // The label at the crossing stands clear of the horizontal axis's labels.
    if (label.value == d.y.cross) top = placement.xLabelsAbove ? row + 1 : row - height;
    canvas.TextOut(left, top, label.text);
  }
}

void DrawXTitle(const Diagram& d, std::string_view text, bool below, Canvas& canvas) {
  const int row = YToPixel(d, d.y.cross);
  const int left = d.x.pixMax - XArrowLength(d) - 4 - canvas.TextWidth(text);
  canvas.TextOut(left, below ? row + 4 : row - canvas.TextHeight(text) - 3, text);
}

void DrawYTitle(const Diagram& d, std::string_view text, Canvas& canvas) {
  const int width = canvas.TextWidth(text);
  const int centred = XToPixel(d, d.x.cross) - width / 2;
  const int left = std::clamp(centred, 0, std::max(0, d.width - width));
  // Clear of the label at the top of the axis, which is centred on the arrow's tip.
  canvas.TextOut(left, d.y.pixMax - canvas.TextHeight(text) * 3 / 2 - 2, text);
}

}  // namespace diagram
