#pragma once

#include <vector>

#include "extraction_checks.h"

// The results of a series evaluation: one entry per file of the series list, in list order.
namespace series {

struct FileFigures {
  double current = 0;  // bias current I in A, from the file's comment lines
  double fT = 0;       // transit frequency in Hz
  double fmax = 0;     // maximum oscillation frequency in Hz
  double magDb = 0;    // MAG or MSG in dB at the analysis point
  double s21 = 0;      // |S21| at the analysis point
  double k = 0;        // stability factor at the analysis point
  double fk = 0;       // stability limit f(k>1) in Hz; 0 when the file ends unstable
  ExtractionCheck check = {};  // how far fT and fmax can be trusted at fo
};

using SeriesArrays = std::vector<FileFigures>;

// Current density j in mA per square micrometre.
inline double CurrentDensity(const FileFigures& file, double area) { return 1000 * file.current / area; }

}  // namespace series
