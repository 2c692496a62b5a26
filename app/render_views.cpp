#include "render_views.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "diagram/axes.h"
#include "diagram/current.h"
#include "diagram/curves.h"
#include "diagram/parameter_curves.h"
#include "diagram/spline.h"
#include "numerics/complex_value.h"
#include "numerics/real_functions.h"
#include "numerics/rounding.h"

namespace app {
namespace {

using diagram::AxisMode;
using diagram::Canvas;
using diagram::Colour;

// One colour per file for the first and for the second parameter of a picture.
constexpr std::array<Colour, numerics::kMaxDataSets> kFirstColours = {diagram::kRed, diagram::kBlue, diagram::kGreen,
                                                                       diagram::MakeColour(0xC0, 0, 0xC0)};
constexpr std::array<Colour, numerics::kMaxDataSets> kSecondColours = {
    diagram::MakeColour(0xFF, 0x80, 0), diagram::MakeColour(0, 0x80, 0xFF), diagram::MakeColour(0x80, 0x80, 0),
    diagram::MakeColour(0x80, 0, 0x80)};

constexpr int kGridEvery = 5;  // grid lines and labels at every fifth step

std::vector<diagram::LoadedFile> FilesIn(const RenderScene& scene, const std::array<Colour, 4>& colours) {
  std::vector<diagram::LoadedFile> files;
  for (std::size_t i = 0; i < scene.sets.size(); ++i) {
    files.push_back({scene.sets[i], scene.names[i], true, colours[i % colours.size()]});
  }
  return files;
}

void StartPicture(Canvas& c) {
  diagram::ClearDiagram(diagram::kWhite, c);
  c.SetFont(diagram::DiagramFont{});
}

void UseCurveFont(Canvas& c) {
  diagram::DiagramFont bold;
  bold.bold = true;
  c.SetFont(bold);
}

// The names of the first parameter's curves end at their start, those of the second begin
// there, so that two loci starting side by side keep their names apart.
void DrawLocusPair(const RenderScene& scene, Canvas& c, int first, int second) {
  diagram::ParameterCurveOptions options;
  options.spline = scene.spline;
  UseCurveFont(c);
  const diagram::Diagram& d = diagram::CurrentDiagram();
  options.textLeft = true;
  diagram::DrawParameterCurves(d, c, FilesIn(scene, kFirstColours), first, options);
  options.textLeft = false;
  diagram::DrawParameterCurves(d, c, FilesIn(scene, kSecondColours), second, options);
}

// S11 and S22 over the range -1 .. 1 that the reflection window starts with.
void DrawSmithView(const RenderScene& scene, Canvas& c) {
  StartPicture(c);
  diagram::SetAxisModes(AxisMode::Smith, AxisMode::Smith);
  diagram::SetupAxes(c, 1, -1, 1, -1);
  diagram::SetAxisCrossing(0, 0);
  diagram::SetDrawColour(diagram::kGrey, c);
  diagram::DrawSmithGrid(scene.chart, c, true);
  diagram::SetDrawColour(diagram::kBlack, c);
  DrawLocusPair(scene, c, diagram::kParameterS11, diagram::kParameterS22);
  for (const double q : scene.qValues) diagram::DrawQArcs(c, q);
}

double LargestTransmission(const RenderScene& scene) {
  double largest = 0;
  for (const numerics::TwoPortDataSet* set : scene.sets) {
    for (int i = 0; i < set->pointCount; ++i) {
      const numerics::SParameters& p = set->points[static_cast<std::size_t>(i)];
      largest = std::max({largest, numerics::Abs(p.s[1][0]), numerics::Abs(p.s[0][1])});
    }
  }
  return largest > 0 ? numerics::RoundUpOneDigit(largest) : 1;
}

// S21 and S12 as the transmission window starts: symmetric range of the largest magnitude.
void DrawPolarView(const RenderScene& scene, Canvas& c) {
  StartPicture(c);
  const double limit = LargestTransmission(scene);
  diagram::SetAxisModes(AxisMode::Polar, AxisMode::Polar);
  diagram::SetupAxes(c, limit, -limit, limit, -limit);
  diagram::SetAxisCrossing(0, 0);
  diagram::Diagram& d = diagram::CurrentDiagram();
  d.xStep = d.yStep = numerics::NiceStep(limit / 20);
  d.xLabelEvery = d.yLabelEvery = kGridEvery;
  diagram::SetDrawColour(diagram::kGrey, c);
  diagram::DrawGrid(kGridEvery, kGridEvery, c);
  diagram::SetDrawColour(diagram::kBlack, c);
  diagram::DrawAxes(false, false, c, d.yStep, d.xStep);
  diagram::DrawAxisLabels({}, c);
  DrawLocusPair(scene, c, diagram::kParameterS21, diagram::kParameterS12);
}

using Samples = std::array<double, diagram::kSplineCapacity>;

struct Sweep {
  Samples frequency{}, decibels{};
  int count = 0;
};

Sweep TransmissionInDecibels(const numerics::TwoPortDataSet& set) {
  Sweep s;
  s.count = std::clamp(set.pointCount, 0, diagram::kSplineMaxPoints);
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
void ScaleCartesian(const std::vector<Sweep>& sweeps, Canvas& c) {
  std::vector<double> decibels;
  for (const Sweep& s : sweeps) decibels.insert(decibels.end(), s.decibels.begin(), s.decibels.begin() + s.count);
  const FrequencyRange f = RangeOf(sweeps);
  diagram::Diagram& d = diagram::CurrentDiagram();
  diagram::SetAxisModes(AxisMode::Log, AxisMode::Linear);
  d.firstIndex = 0;
  d.yMin = -20;  // kept when there is nothing to autoscale
  d.yMax = 20;
  diagram::AutoscaleY(decibels, static_cast<int>(decibels.size()));
  diagram::SetupAxes(c, f.highest, std::pow(10.0, std::floor(std::log10(f.lowest))), d.yMax, d.yMin);
  diagram::SetAxisCrossing(d.xMin, d.yCross);
}

void DrawSweep(Sweep s, const std::string& text, Colour colour, bool spline, Canvas& c) {
  diagram::SetDrawColour(colour, c);
  diagram::DrawMarkers(s.frequency, s.decibels, diagram::kMarkerCross, s.count, c);
  if (spline) {
    int last = s.count - 1;
    diagram::SplineResample(s.frequency, s.decibels, last, true, false, diagram::kSplineMaxPoints);
    s.count = last + 1;
  }
  diagram::DrawCurveWithText(s.frequency, s.decibels, false, s.count, c, text);
}

// |S21| in dB against frequency, as the transmission window's dB mode with a log x axis.
void DrawCartesianView(const RenderScene& scene, Canvas& c) {
  StartPicture(c);
  std::vector<Sweep> sweeps;
  for (const numerics::TwoPortDataSet* set : scene.sets) sweeps.push_back(TransmissionInDecibels(*set));
  ScaleCartesian(sweeps, c);
  const diagram::Diagram& d = diagram::CurrentDiagram();
  diagram::SetDrawColour(diagram::kGrey, c);
  diagram::DrawGrid(kGridEvery, d.yLabelEvery, c);
  diagram::SetDrawColour(diagram::kBlack, c);
  diagram::DrawAxes(false, false, c, d.yStep, d.xStep);
  diagram::DrawAxisLabels({}, c);
  UseCurveFont(c);
  const std::string label = diagram::ParameterLabel(diagram::kParameterS21, false);
  for (std::size_t i = 0; i < sweeps.size(); ++i) {
    DrawSweep(sweeps[i], scene.names[i] + label, kFirstColours[i % kFirstColours.size()], scene.spline, c);
  }
  diagram::SetDrawColour(diagram::kBlack, c);
  diagram::DrawXTitle("f in Hz", false, c);
  diagram::DrawYTitle("20log|S21|", c);
}

constexpr RenderView kViews[] = {
    {"smith", DrawSmithView},
    {"polar", DrawPolarView},
    {"cartesian", DrawCartesianView},
};

}  // namespace

const RenderView* FindRenderView(std::string_view name) {
  const auto found = std::find_if(std::begin(kViews), std::end(kViews), [&](const RenderView& v) { return name == v.name; });
  return found == std::end(kViews) ? nullptr : found;
}

std::string RenderViewNames() {
  std::string names;
  for (std::size_t i = 0; i < std::size(kViews); ++i) {
    names += i == 0 ? "" : (i + 1 == std::size(kViews) ? " or " : ", ");
    names += kViews[i].name;
  }
  return names;
}

}  // namespace app
