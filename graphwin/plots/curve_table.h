#pragma once

#include <string>

#include "frequency_plot.h"

// The curves of a frequency plot as CSV text for spreadsheets: one row per frequency of any
// curve, in rising order, the first column "f_Hz" and one column per curve headed by its column
// name; the values exactly as plotted (before the spline), empty where a curve has no point.
namespace graphwin::plots {

std::string CurveTableCsv(const FrequencyPlot& plot);

}  // namespace graphwin::plots
