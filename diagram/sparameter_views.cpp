#include "sparameter_views.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "autoscale.h"
#include "axes.h"
#include "axis_labels.h"
#include "curves.h"
#include "frame.h"
#include "numerics/complex_value.h"
#include "numerics/real_functions.h"
#include "numerics/rounding.h"
#include "numerics/two_port_state.h"
#include "parameter_curves.h"
#include "scaling.h"
#include "spline.h"

namespace diagram {
namespace {

// One colour per file for the first and for the second parameter of a picture.
constexpr std::array<Colour, numerics::kMaxDataSets> kFirstColours = {kRed, kBlue, kGreen, MakeColour(0xC0, 0, 0xC0)};
constexpr std::array<Colour, numerics::kMaxDataSets> kSecondColours = {
    MakeColour(0xFF, 0x80, 0), MakeColour(0, 0x80, 0xFF), MakeColour(0x80, 0x80, 0), MakeColour(0x80, 0, 0x80)};

constexpr int kGridEvery = 5;  // grid lines and labels at every fifth step

std::vector<LoadedFile> FilesIn(const SParameterScene& scene, const std::array<Colour, 4>& colours) {
  std::vector<LoadedFile> files;
  for (std::size_t i = 0; i < scene.sets.size(); ++i) {
    files.push_back({scene.sets[i], scene.names[i], true, colours[i % colours.size()]});
  }
  return files;
}

// The names of the first parameter's curves end at their start, those of the second begin
// there, so that two loci starting side by side keep their names apart.
void DrawLocusPair(const SParameterScene& scene, Canvas& c, int first, int second) {
  ParameterCurveOptions options;
  options.spline = scene.spline;
  const Diagram& d = CurrentDiagram();
  options.textLeft = true;
  DrawParameterCurves(d, c, FilesIn(scene, kFirstColours), first, options);
  options.textLeft = false;
  DrawParameterCurves(d, c, FilesIn(scene, kSecondColours), second, options);
}

void SetRoundRange(Diagram& d, AxisMode mode, double limit) {
  SetAxisModes(d, mode, mode);
  d.xMin = d.yMin = -limit;
  d.xMax = d.yMax = limit;
  d.xCross = d.yCross = 0;
}

double LargestTransmission(const SParameterScene& scene) {
  double largest = 0;
  for (const numerics::TwoPortDataSet* set : scene.sets) {
    for (int i = 0; i < set->pointCount; ++i) {
      const numerics::SParameters& p = set->points[static_cast<std::size_t>(i)];
      largest = std::max({largest, numerics::Abs(p.s[1][0]), numerics::Abs(p.s[0][1])});
    }
  }
  return largest > 0 ? numerics::RoundUpOneDigit(largest) : 1;
}

using Samples = std::array<double, kSplineCapacity>;

struct Sweep {
  Samples frequency{}, decibels{};
  int count = 0;
};

Sweep TransmissionInDecibels(const numerics::TwoPortDataSet& set) {
  Sweep s;
  s.count = std::clamp(set.pointCount, 0, kSplineMaxPoints);
  for (std::size_t i = 0; i < static_cast<std::size_t>(s.count); ++i) {
    s.frequency[i] = set.frequency[i];
    s.decibels[i] = 20 * numerics::Log10(numerics::Abs(set.points[i].s[1][0]));
  }
  return s;
}

struct FrequencyRange {
  double lowest, highest;
};

FrequencyRange RangeOf(const std::vector<Sweep>& sweeps) {
  FrequencyRange r{std::numeric_limits<double>::infinity(), 0};
  for (const Sweep& s : sweeps) {
    for (int i = 0; i < s.count; ++i) {
      r.lowest = std::min(r.lowest, s.frequency[static_cast<std::size_t>(i)]);
      r.highest = std::max(r.highest, s.frequency[static_cast<std::size_t>(i)]);
    }
  }
  if (!(r.lowest <= r.highest)) return {1e9, 1e10};  // no file has a point
  return r;
}

// Log frequency axis from the decade below the lowest frequency, so that no point is clamped;
// the dB axis autoscaled over every file.
void ScaleCartesian(const std::vector<Sweep>& sweeps, Diagram& d) {
  std::vector<double> decibels;
  for (const Sweep& s : sweeps) decibels.insert(decibels.end(), s.decibels.begin(), s.decibels.begin() + s.count);
  const FrequencyRange f = RangeOf(sweeps);
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  d.firstIndex = 0;
  d.yMin = -20;  // kept when there is nothing to autoscale
  d.yMax = 20;
  AutoscaleY(d, decibels, static_cast<int>(decibels.size()));
  d.xMin = std::pow(10.0, std::floor(std::log10(f.lowest)));
  d.xMax = f.highest;
  d.xCross = d.xMin;
}

void DrawSweep(const Diagram& d, Sweep s, const std::string& text, Colour colour, bool spline, Canvas& c) {
  SetDrawColour(colour, c);
  DrawMarkers(d, s.frequency, s.decibels, kMarkerCross, s.count, c);
  if (spline) {
    int last = s.count - 1;
    SplineResample(s.frequency, s.decibels, last, true, false, kSplineMaxPoints);
    s.count = last + 1;
  }
  DrawCurveWithText(d, s.frequency, s.decibels, false, s.count, c, text);
}

}  // namespace

void DrawSmithView(const SParameterScene& scene, Canvas& canvas) {
  Diagram& d = CurrentDiagram();
  SetRoundRange(d, AxisMode::Smith, 1);
  DrawFrame(d, canvas, SmithFrame(scene.chart, numerics::WorkingState().z0));
  DrawLocusPair(scene, canvas, kParameterS11, kParameterS22);
  for (const double q : scene.qValues) DrawQArcs(d, canvas, q);
}

void DrawPolarView(const SParameterScene& scene, Canvas& canvas) {
  Diagram& d = CurrentDiagram();
  const double limit = LargestTransmission(scene);
  SetRoundRange(d, AxisMode::Polar, limit);
  d.xStep = d.yStep = numerics::NiceStep(limit / 20);
  d.xLabelEvery = d.yLabelEvery = kGridEvery;
  DrawFrame(d, canvas, GridFrame(kGridEvery, kGridEvery));
  DrawLocusPair(scene, canvas, kParameterS21, kParameterS12);
}

void DrawCartesianView(const SParameterScene& scene, Canvas& canvas) {
  std::vector<Sweep> sweeps;
  for (const numerics::TwoPortDataSet* set : scene.sets) sweeps.push_back(TransmissionInDecibels(*set));
  Diagram& d = CurrentDiagram();
  ScaleCartesian(sweeps, d);
  DrawFrame(d, canvas, GridFrame(kGridEvery, d.yLabelEvery));
  const std::string label = ParameterLabel(kParameterS21, false);
  for (std::size_t i = 0; i < sweeps.size(); ++i) {
    DrawSweep(d, sweeps[i], scene.names[i] + label, kFirstColours[i % kFirstColours.size()], scene.spline, canvas);
  }
  SetDrawColour(kBlack, canvas);
  DrawXTitle(d, "f in Hz", false, canvas);
  DrawYTitle(d, "20log|S21|", canvas);
}

}  // namespace diagram
