#include "curve_table.h"

#include <map>
#include <optional>
#include <vector>

#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

// A field with a comma, a quote or a line break is quoted, its quotes doubled.
std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

using Row = std::vector<std::optional<double>>;

std::map<double, Row> RowsOf(const FrequencyPlot& plot) {
  std::map<double, Row> rows;
  for (std::size_t column = 0; column < plot.curves.size(); ++column) {
    const FrequencyCurve& curve = plot.curves[column];
    for (std::size_t i = 0; i < curve.frequency.size(); ++i) {
      Row& row = rows[curve.frequency[i]];
      row.resize(plot.curves.size());
      row[column] = curve.value[i];
    }
  }
  return rows;
}

}  // namespace

std::string CurveTableCsv(const FrequencyPlot& plot) {
  std::string text = "f_Hz";
  for (const FrequencyCurve& curve : plot.curves) text += "," + CsvField(curve.column);
  text += '\n';
  for (const auto& [frequency, row] : RowsOf(plot)) {
    text += numerics::CsvNumber(frequency);
    for (const std::optional<double>& value : row) text += "," + (value ? numerics::CsvNumber(*value) : std::string());
    text += '\n';
  }
  return text;
}

}  // namespace graphwin::plots
