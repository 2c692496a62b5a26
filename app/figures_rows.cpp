#include "figures_rows.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <iterator>

#include "numerics/conversions.h"
#include "numerics/figures.h"
#include "numerics/real_functions.h"

namespace app {
namespace {

constexpr std::size_t kValuesPerRow = 12;
constexpr std::size_t kLongestNumber = 17;  // "-1.234567891e-100"

double Decibels(double ratio) { return 10 * numerics::Log10(ratio); }

// Only the gain figures are needed, then |h21| through Y and H of the guarded S-parameters.
// The guards leave S21 alone, so |S21|^2 comes from the measured magnitude.
std::array<double, kValuesPerRow> RowValues(double frequency, const numerics::SParameters& point,
                                            numerics::TwoPortState& st) {
  numerics::CopyPointToState(point, st);
  numerics::TwoPortFigures f;
  numerics::ComputeGainFigures(st, f);
  const double s21Squared = numerics::AbsSqr(point.s[1][0]);
  numerics::ConvertSToY(st);
  numerics::ConvertYToH(st);
  return {frequency,
          f.k,
          f.mu,
          f.muPrime,
          f.unconditionallyStable ? 1.0 : 0.0,
          Decibels(f.mag),
          Decibels(f.msgOrMag),
          Decibels(f.mug),
          Decibels(f.u),
          Decibels(f.uRatio),
          Decibels(s21Squared),
          numerics::Abs(st.h.m21)};
}

}  // namespace

void AppendNumber(std::string& text, double value) {
  char buffer[32];
  const std::to_chars_result written =
      std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::general, 10);
  assert(written.ec == std::errc{} && "ten significant digits always fit");
  text.append(buffer, written.ptr);
}

void AppendCsvField(std::string& text, std::string_view path) {
  if (path.find_first_of(",\"\r\n") == std::string_view::npos) {
    text += path;
    return;
  }
  text += '"';
  for (const char c : path) {
    if (c == '"') text += '"';
    text += c;
  }
  text += '"';
}

NonFiniteRows AppendFiguresRows(std::string& text, const numerics::TwoPortDataSet& set, std::string_view firstField) {
  const std::size_t longestRow = firstField.size() + kValuesPerRow * (kLongestNumber + 1);
  if (set.pointCount > 0) text.reserve(text.size() + static_cast<std::size_t>(set.pointCount) * longestRow);
  numerics::TwoPortState st;
  NonFiniteRows nonFinite;
  for (int i = 0; i < set.pointCount; ++i) {
    const auto index = static_cast<std::size_t>(i);
    const std::array<double, kValuesPerRow> values = RowValues(set.frequency[index], set.points[index], st);
    if (!std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); })) {
      if (nonFinite.count++ == 0) nonFinite.firstFrequency = values[0];
    }
    if (!firstField.empty()) {
      text += firstField;
      text += ',';
    }
    for (std::size_t v = 0; v < kValuesPerRow; ++v) {
      if (v > 0) text += ',';
      AppendNumber(text, values[v]);
    }
    text += '\n';
  }
  return nonFinite;
}

}  // namespace app
