// The frequency cursor on a graph window, and what a window of curves against frequency gives
// the common window without writing it itself.
#include <QLabel>
#include <algorithm>
#include <cassert>
#include <limits>

#include "diagram/scaling.h"
#include "graph_form.h"
#include "graph_image.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"
#include "plots/curve_table.h"

namespace graphwin {
namespace {

// The value at frequency on the segment of the curve that spans it, linearly between its ends.
std::optional<double> ValueAt(const plots::FrequencyCurve& curve, double frequency) {
  const std::vector<double>& f = curve.frequency;
  for (std::size_t i = 0; i < f.size(); ++i) {
    if (f[i] == frequency) return curve.value[i];
    if (i + 1 < f.size() && (frequency - f[i]) * (frequency - f[i + 1]) < 0) {
      return curve.value[i] + (curve.value[i + 1] - curve.value[i]) * (frequency - f[i]) / (f[i + 1] - f[i]);
    }
  }
  return std::nullopt;
}

bool IsInRange(const diagram::Diagram& d, const QPointF& p) {
  return p.x() >= d.x.min && p.x() <= d.x.max && p.y() >= d.y.min && p.y() <= d.y.max;
}

QPoint PixelOf(const diagram::Diagram& d, const QPointF& p) {
  return {diagram::XToPixel(d, p.x()), diagram::YToPixel(d, p.y())};
}

long long SquaredDistance(QPoint a, QPoint b) {
  const QPoint d = a - b;
  return 1LL * d.x() * d.x() + 1LL * d.y() * d.y();
}

const plots::GraphFile* FirstActiveFile(const plots::GraphInputs& inputs) {
  for (const plots::GraphFile& file : inputs.files) {
    if (file.active && file.set != nullptr) return &file;
  }
  return nullptr;
}

const plots::FrequencyPlot& SweptCurves(const plots::FrequencyPlot* curves) {
  assert(curves != nullptr && "a locus window gives its own autoscale values and table");
  return *curves;
}

}  // namespace

std::string TGraphForm::AxisLabel(AxisEnd end) const { return AxisEndLabel(end); }

std::vector<double> TGraphForm::XValues() const { return plots::AllFrequencies(SweptCurves(FrequencyCurves())); }
std::vector<double> TGraphForm::YValues() const { return plots::AllValues(SweptCurves(FrequencyCurves())); }
std::string TGraphForm::CurvesCsv() const { return plots::CurveTableCsv(SweptCurves(FrequencyCurves())); }

std::vector<QPointF> TGraphForm::CursorPoints(double frequency) const {
  std::vector<QPointF> points;
  const plots::FrequencyPlot* plot = FrequencyCurves();
  if (plot == nullptr) return points;
  for (const plots::FrequencyCurve& curve : plot->curves) {
    if (const std::optional<double> value = ValueAt(curve, frequency)) points.emplace_back(frequency, *value);
  }
  return points;
}

void TGraphForm::ShowCursor(std::optional<double> frequency) {
  std::vector<QPoint> marks;
  const diagram::Diagram& drawn = image_->Scale();
  if (frequency && activated_) {
    for (const QPointF& point : CursorPoints(*frequency)) {
      if (IsInRange(drawn, point)) marks.push_back(PixelOf(drawn, point));
    }
  }
  image_->ShowMarks(std::move(marks));
  const std::string text = frequency ? numerics::TrimLeftText(numerics::FormatPrefixed(2, *frequency)) : "";
  cursorPanel_->setText(frequency ? QStringLiteral("Cursor : f=%1Hz").arg(QString::fromStdString(text)) : QString());
}

std::optional<double> TGraphForm::NearestFrequency(QPoint at) const {
  const plots::GraphFile* first = FirstActiveFile(inputs_);
  if (!activated_ || first == nullptr) return std::nullopt;
  const diagram::Diagram& drawn = image_->Scale();
  const bool byColumn = FrequencyCurves() != nullptr;
  const auto distance = [&](double frequency) {
    long long least = std::numeric_limits<long long>::max();
    if (byColumn) return SquaredDistance(QPoint(diagram::XToPixel(drawn, frequency), at.y()), at);
    for (const QPointF& point : CursorPoints(frequency)) {
      least = std::min(least, SquaredDistance(PixelOf(drawn, point), at));
    }
    return least;
  };
  std::optional<double> nearest;
  long long best = std::numeric_limits<long long>::max();
  for (int i = 0; i < plots::ShownPoints(inputs_, *first); ++i) {
    const double frequency = first->set->frequency[static_cast<std::size_t>(i)];
    if (const long long d = distance(frequency); d < best) {
      best = d;
      nearest = frequency;
    }
  }
  return nearest;
}

}  // namespace graphwin
