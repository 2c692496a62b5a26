#pragma once

#include <string>
#include <string_view>

#include "numerics/data_set.h"

// The CSV text of netrix --figures: one row of gain and stability figures per point.
namespace app {

inline constexpr std::string_view kFiguresHeader =
    "f_Hz,k,mu,mu_prime,stable,MAG_dB,MSG_or_MAG_dB,MUG_dB,U_dB,U_ratio_dB,S21sq_dB,h21_abs";
inline constexpr std::string_view kFileColumn = "file";

// Appends value with ten significant digits, exactly as printf's "%.10g" writes it.
void AppendNumber(std::string& text, double value);

// Appends path as one CSV field, quoted where it holds a comma, a quote or a line break.
void AppendCsvField(std::string& text, std::string_view path);

// The rows that hold a value which is not a finite number (an input number beyond double range
// gives inf), and the frequency of the first of them.
struct NonFiniteRows {
  int count = 0;
  double firstFrequency = 0;
};

// Appends one row per point of set; where firstField (already a CSV field) is not empty, each
// row starts with it and a comma.
NonFiniteRows AppendFiguresRows(std::string& text, const numerics::TwoPortDataSet& set, std::string_view firstField);

}  // namespace app
