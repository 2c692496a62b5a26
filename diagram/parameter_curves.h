#pragma once

#include <span>
#include <string>

#include "canvas.h"
#include "colour.h"
#include "diagram_state.h"
#include "numerics/data_set.h"

// S11, S12, S21 or S22 of the loaded data sets as curves in a polar diagram, a Smith chart or
// a cartesian locus (x = real part, y = imaginary part), one curve per file, named in place.
namespace diagram {

inline constexpr int kParameterS11 = 0;
inline constexpr int kParameterS12 = 1;
inline constexpr int kParameterS21 = 2;
inline constexpr int kParameterS22 = 3;

// ", S11 " (or ",S11" in the short form) for the parameter index; empty for any other index.
std::string ParameterLabel(int parameterIndex, bool shortForm);

struct LoadedFile {
  const numerics::TwoPortDataSet* set = nullptr;
  std::string name;  // what the curve is called, usually the file name
  bool show = true;
  Colour colour = kBlack;
  int shownPoints = numerics::kMaxPoints;  // the first points of the set that are drawn
};

struct ParameterCurveOptions {
  double magnification = 1;  // real and imaginary part are multiplied by it
  bool spline = true;
  bool markPoints = true;  // diagonal crosses at the measured points
  bool connect = true;     // without it only the crosses and the name are drawn
  bool shortLabels = false;
  bool textLeft = false;  // names end at the first point instead of starting there
};

// Draws each shown file in its colour (pen and font). A data set of a single point is drawn as
// its label alone, "Start, S11 " for example, at that point. Other indices draw nothing.
void DrawParameterCurves(const Diagram& d, Canvas& canvas, std::span<const LoadedFile> files, int parameterIndex,
                         const ParameterCurveOptions& options);

}  // namespace diagram
