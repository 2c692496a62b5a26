#include "parameter_curves.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "axes.h"
#include "curve_names.h"
#include "curves.h"
#include "numerics/complex_value.h"
#include "scaling.h"
#include "spline.h"

namespace diagram {
namespace {

constexpr const char* kLongLabels[] = {", S11 ", ", S12 ", ", S21 ", ", S22 "};
constexpr const char* kShortLabels[] = {",S11", ",S12", ",S21", ",S22"};

using Samples = std::array<double, kSplineCapacity>;

struct Locus {
  Samples re{}, im{}, frequency{};
  int count = 0;
};

const numerics::ComplexValue& Element(const numerics::SParameters& p, int parameterIndex) {
  const int row = parameterIndex == kParameterS21 || parameterIndex == kParameterS22 ? 1 : 0;
  const int column = parameterIndex == kParameterS12 || parameterIndex == kParameterS22 ? 1 : 0;
  return p.s[row][column];
}

Locus LocusOf(const LoadedFile& file, int parameterIndex, double magnification) {
  const numerics::TwoPortDataSet& set = *file.set;
  Locus locus;
  locus.count = std::clamp(std::min(set.pointCount, file.shownPoints), 0, kSplineMaxPoints);
  for (std::size_t i = 0; i < static_cast<std::size_t>(locus.count); ++i) {
    const numerics::ComplexValue& z = Element(set.points[i], parameterIndex);
    locus.re[i] = numerics::Re(z) * magnification;
    locus.im[i] = numerics::Im(z) * magnification;
    locus.frequency[i] = set.frequency[i];
  }
  return locus;
}

// Real and imaginary part are each smoothed as functions of the frequency, which always rises;
// the locus itself may turn back on its real part.
void Smooth(Locus& locus) {
  Samples frequencyCopy = locus.frequency;
  int lastRe = locus.count - 1, lastIm = locus.count - 1;
  SplineResample(locus.frequency, locus.re, lastRe, false, false, kSplineMaxPoints);
  SplineResample(frequencyCopy, locus.im, lastIm, false, false, kSplineMaxPoints);
  assert(lastRe == lastIm);
  locus.count = lastRe + 1;
}

void DrawFile(const Diagram& d, Canvas& canvas, const LoadedFile& file, int parameterIndex,
              const ParameterCurveOptions& options) {
  Locus locus = LocusOf(file, parameterIndex, options.magnification);
  if (locus.count < 1) return;
  const std::string label = ParameterLabel(parameterIndex, options.shortLabels);
  SetDrawColour(file.colour, canvas);
  if (locus.count == 1) {
    WriteCurveName(canvas, XToPixel(d, locus.re[0]), YToPixel(d, locus.im[0]), false, "Start" + label);
    return;
  }
  if (options.markPoints) DrawMarkers(d, locus.re, locus.im, kMarkerCross, locus.count, canvas);
  if (options.connect && options.spline) Smooth(locus);
  DrawCurveWithText(d, locus.re, locus.im, options.textLeft, options.connect ? locus.count : 1, canvas,
                    file.name + label);
}

}  // namespace

std::string ParameterLabel(int parameterIndex, bool shortForm) {
  if (parameterIndex < kParameterS11 || parameterIndex > kParameterS22) return {};
  return (shortForm ? kShortLabels : kLongLabels)[parameterIndex];
}

void DrawParameterCurves(const Diagram& d, Canvas& canvas, std::span<const LoadedFile> files, int parameterIndex,
                         const ParameterCurveOptions& options) {
  if (ParameterLabel(parameterIndex, false).empty()) return;
  for (const LoadedFile& file : files) {
    if (file.show && file.set != nullptr) DrawFile(d, canvas, file, parameterIndex, options);
  }
}

}  // namespace diagram
