// The frequency cursor on a graph window.
#include <QLabel>
#include <algorithm>
#include <limits>

#include "diagram/scaling.h"
#include "graph_form.h"
#include "graph_image.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace graphwin {
namespace {

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

}  // namespace

std::string TGraphForm::AxisLabel(AxisEnd end) const { return AxisEndLabel(end); }

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
  const bool byColumn = PlotsAgainstFrequency();
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
