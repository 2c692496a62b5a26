#include "sparameter_plot.h"

#include <algorithm>
#include <array>
#include <functional>

#include "curve_table.h"
#include "diagram/autoscale.h"
#include "diagram/axes.h"
#include "diagram/axis_labels.h"
#include "diagram/frame.h"
#include "diagram/scaling.h"
#include "numerics/complex_value.h"
#include "numerics/real_functions.h"
#include "numerics/rounding.h"
#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

using diagram::AxisMode;
using diagram::Colour;

constexpr int kLabelEvery = 5;
constexpr double kSmithLimit = 1;
// Without a point to scale to, the frequency axis still gets a frame.
constexpr double kFallbackHighestFrequency = 1e10;

// One colour per file for the first and for the second parameter of a picture.
constexpr std::array<Colour, numerics::kMaxDataSets> kFirstColours = {diagram::kRed, diagram::kBlue, diagram::kGreen,
                                                                       diagram::MakeColour(0xC0, 0, 0xC0)};
constexpr std::array<Colour, numerics::kMaxDataSets> kSecondColours = {
    diagram::MakeColour(0xFF, 0x80, 0), diagram::MakeColour(0, 0x80, 0xFF), diagram::MakeColour(0x80, 0x80, 0),
    diagram::MakeColour(0x80, 0, 0x80)};

const char* NameOf(int parameter) {
  static constexpr const char* kNames[] = {"S11", "S12", "S21", "S22"};
  return kNames[parameter];
}

const numerics::ComplexValue& Element(const numerics::SParameters& p, int parameter) {
  return p.s[parameter == diagram::kParameterS21 || parameter == diagram::kParameterS22 ? 1 : 0]
            [parameter == diagram::kParameterS12 || parameter == diagram::kParameterS22 ? 1 : 0];
}

// "Sii" or "Sij" in the axis titles, as the window names its pair.
std::string Pair(SWindow window) { return window == SWindow::Reflection ? "Sii" : "Sij"; }

double ValueOf(SView view, const numerics::ComplexValue& s) {
  if (view == SView::Decibels) return 20 * numerics::Log10(numerics::Abs(s));
  if (view == SView::Phase) return numerics::AngleOf(s);
  return numerics::Abs(s);
}

// "|S11|", "20log|S11|" or "phi(S11)" for the name "S11".
std::string Quantity(SView view, const std::string& name) {
  if (view == SView::Decibels) return "20log|" + name + "|";
  if (view == SView::Phase) return "phi(" + name + ")";
  return "|" + name + "|";
}

double Magnification(const SParameterPlot& plot, int parameter) {
  return plot.view == SView::Polar && parameter == diagram::kParameterS12 ? plot.s12Zoom : 1;
}

std::string CurveName(const SParameterPlot& plot, const std::string& prefix, int parameter) {
  const double zoom = Magnification(plot, parameter);
  return prefix + NameOf(parameter) + (zoom != 1 ? " x" + numerics::FloatTextTrimmed(1, zoom) : std::string());
}

void AddCurves(SParameterPlot& plot, const GraphInputs& inputs, const GraphFile& file, std::size_t fileIndex) {
  const std::string name = FileName(file);
  const int points = ShownPoints(inputs, file);
  plot.files.push_back({file.set, inputs.options.fileNames ? name : std::string(), true, diagram::kBlack, points});
  plot.fileNames.push_back(name);
  const std::string prefix = inputs.options.fileNames ? name + ", " : std::string();
  for (std::size_t k = 0; k < plot.choice.parameters.size(); ++k) {
    const int parameter = plot.choice.parameters[k];
    FrequencyCurve curve{CurveName(plot, prefix, parameter), Quantity(plot.view, NameOf(parameter)) + " (" + name + ")",
                         (k == 0 ? kFirstColours : kSecondColours)[fileIndex % numerics::kMaxDataSets], {}, {}};
    for (std::size_t i = 0; i < static_cast<std::size_t>(points); ++i) {
      curve.frequency.push_back(file.set->frequency[i]);
      curve.value.push_back(ValueOf(plot.view, Element(file.set->points[i], parameter)));
    }
    plot.curves.curves.push_back(std::move(curve));
  }
}

void SetTitles(SParameterPlot& plot) {
  const std::string pair = Pair(plot.window);
  FrequencyPlot& c = plot.curves;
  c.heading = plot.window == SWindow::Reflection ? "Reflexion Coefficient" : "Transmission";
  c.legendHeading = plot.choice.text;
  if (plot.view == SView::Cartesian) {
    c.xTitle = "Re(" + pair + ")";
    c.yTitle = "Im(" + pair + ")";
  } else if (!IsLocus(plot.view)) {
    c.xTitle = "f in Hz";
    c.yTitle = Quantity(plot.view, pair);
  }
}

// Every plotted point of the loci, as drawn (S12 magnified in the polar diagram).
void ForEachLocusPoint(const SParameterPlot& plot, const std::function<void(double re, double im)>& visit) {
  for (const diagram::LoadedFile& file : plot.files) {
    for (const int parameter : plot.choice.parameters) {
      const double zoom = Magnification(plot, parameter);
      for (std::size_t i = 0; i < static_cast<std::size_t>(file.shownPoints); ++i) {
        const numerics::ComplexValue& s = Element(file.set->points[i], parameter);
        visit(numerics::Re(s) * zoom, numerics::Im(s) * zoom);
      }
    }
  }
}

double LargestMagnitude(const SParameterPlot& plot) {
  double largest = 0;
  for (const diagram::LoadedFile& file : plot.files) {
    for (const int parameter : plot.choice.parameters) {
      for (std::size_t i = 0; i < static_cast<std::size_t>(file.shownPoints); ++i) {
        largest = std::max(largest, numerics::Abs(Element(file.set->points[i], parameter)));
      }
    }
  }
  return largest > 0 ? numerics::RoundUpOneDigit(largest) : 1;
}

// The point of the file at or below frequency and how far frequency lies towards the next one.
struct Span {
  std::size_t index;
  double fraction;
};

std::optional<Span> SpanOf(const diagram::LoadedFile& file, double frequency) {
  const auto& f = file.set->frequency;
  const auto shown = static_cast<std::size_t>(file.shownPoints);
  for (std::size_t i = 0; i < shown; ++i) {
    if (f[i] == frequency) return Span{i, 0};
    if (i + 1 < shown && (frequency - f[i]) * (frequency - f[i + 1]) < 0) {
      return Span{i, (frequency - f[i]) / (f[i + 1] - f[i])};
    }
  }
  return std::nullopt;
}

void SetRoundRange(diagram::Diagram& d, AxisMode mode, double limit) {
  diagram::SetAxisModes(d, mode, mode);
  d.x.min = d.y.min = -limit;
  d.x.max = d.y.max = limit;
  d.x.cross = d.y.cross = 0;
  d.x.step = d.y.step = numerics::NiceStep(limit / (mode == AxisMode::Smith ? 25 : 20));
}

void SetFrequencyRange(diagram::Diagram& d, const SParameterPlot& plot) {
  diagram::SetAxisModes(d, AxisMode::Linear, AxisMode::Linear);
  const double highest = HighestFrequency(plot.curves);
  d.x.min = 0;
  d.x.max = highest > 0 ? highest : kFallbackHighestFrequency;
  d.x.step = numerics::NiceStep(d.x.max / 50);
  d.x.cross = d.x.min;
  if (plot.view == SView::Magnitude) {
    d.y.min = d.y.cross = 0;
    d.y.max = LargestMagnitude(plot);
    d.y.step = numerics::NiceStep(d.y.max / 50);
  } else {
    d.y.min = -1;  // kept when there is nothing to autoscale
    d.y.max = 1;
    const std::vector<double> values = AllValues(plot.curves);
    diagram::AutoscaleY(d, values, static_cast<int>(values.size()));
  }
}

void DrawLoci(const diagram::Diagram& d, const SParameterPlot& plot, const PlotLook& look, diagram::Canvas& c) {
  diagram::ParameterCurveOptions options;
  options.spline = look.spline && !look.straight;
  options.markPoints = look.dots;
  options.connect = look.connect || !look.dots;
  std::vector<diagram::LoadedFile> files = plot.files;
  for (std::size_t k = 0; k < plot.choice.parameters.size(); ++k) {
    const int parameter = plot.choice.parameters[k];
    for (std::size_t i = 0; i < files.size(); ++i) {
      files[i].colour = (k == 0 ? kFirstColours : kSecondColours)[i % numerics::kMaxDataSets];
    }
    // The names of the first parameter's curves end at their start, those of the second begin
    // there, so that two loci starting side by side keep their names apart.
    options.textLeft = k == 0;
    options.magnification = Magnification(plot, parameter);
    diagram::DrawParameterCurves(d, c, files, parameter, options);
  }
}

void DrawLocusPlot(const SParameterPlot& plot, const PlotLook& look, const LocusLook& locus, diagram::Canvas& c) {
  diagram::Diagram& d = diagram::CurrentDiagram();
  const bool smith = plot.view == SView::Smith;
  diagram::DrawFrame(d, c, smith ? diagram::SmithFrame(locus.chart, locus.z0)
                                 : diagram::GridFrame(d.x.labelEvery, d.y.labelEvery));
  if (smith) {
    for (const double q : locus.qValues) diagram::DrawQArcs(d, c, q);
  }
  if (locus.circles) DrawMatchCircles(d, *locus.circles, c);
  DrawLoci(d, plot, look, c);
  DrawHeadings(d, plot.curves, c);
  if (look.legend) DrawLegend(d, LegendOf(plot.curves), LegendCorner::UpperRight, c);
  diagram::SetDrawColour(diagram::kBlack, c);
  diagram::DrawXTitle(d, plot.curves.xTitle, false, c);
  diagram::DrawYTitle(d, plot.curves.yTitle, c);
}

}  // namespace

bool IsLocus(SView view) { return view == SView::Polar || view == SView::Smith || view == SView::Cartesian; }

SParameterChoice BothParameters(SWindow window) {
  if (window == SWindow::Reflection) return {{diagram::kParameterS11, diagram::kParameterS22}, "S11 & S22"};
  return {{diagram::kParameterS21, diagram::kParameterS12}, "S21 & S12"};
}

std::optional<SParameterChoice> ChoiceOf(SWindow window, DisplayMode mode) {
  const bool reflection = window == SWindow::Reflection;
  switch (mode) {
    case DisplayMode::InputReflection: if (reflection) return SParameterChoice{{diagram::kParameterS11}, "S11"}; break;
    case DisplayMode::OutputReflection: if (reflection) return SParameterChoice{{diagram::kParameterS22}, "S22"}; break;
    case DisplayMode::BothReflections: if (reflection) return BothParameters(window); break;
    case DisplayMode::ForwardTransmission: if (!reflection) return SParameterChoice{{diagram::kParameterS21}, "S21"}; break;
    case DisplayMode::ReverseTransmission: if (!reflection) return SParameterChoice{{diagram::kParameterS12}, "S12"}; break;
    case DisplayMode::BothTransmissions: if (!reflection) return BothParameters(window); break;
    default: break;
  }
  return std::nullopt;
}

SParameterPlot BuildSParameterPlot(const GraphInputs& inputs, SWindow window, const SParameterChoice& choice,
                                   SView view, double s12Zoom) {
  SParameterPlot plot{window, view, choice, s12Zoom, {}, {}, {}};
  for (std::size_t i = 0; i < inputs.files.size(); ++i) {
    const GraphFile& file = inputs.files[i];
    if (!file.active || file.set == nullptr) continue;
    if (inputs.options.comment && plot.curves.comment.empty()) plot.curves.comment = file.set->title;
    AddCurves(plot, inputs, file, i);
  }
  SetTitles(plot);
  return plot;
}

void SetViewDefaults(diagram::Diagram& d, const SParameterPlot& plot) {
  d.x.labelEvery = d.y.labelEvery = kLabelEvery;
  if (plot.view == SView::Smith) {
    SetRoundRange(d, AxisMode::Smith, kSmithLimit);
  } else if (plot.view == SView::Polar) {
    SetRoundRange(d, AxisMode::Polar, LargestMagnitude(plot));
  } else if (plot.view == SView::Cartesian) {
    SetRoundRange(d, AxisMode::Linear, LargestMagnitude(plot));
  } else {
    SetFrequencyRange(d, plot);
  }
}

std::vector<double> XValuesOf(const SParameterPlot& plot) {
  if (!IsLocus(plot.view)) return AllFrequencies(plot.curves);
  std::vector<double> values;
  ForEachLocusPoint(plot, [&](double re, double) { values.push_back(re); });
  return values;
}

std::vector<double> YValuesOf(const SParameterPlot& plot) {
  if (!IsLocus(plot.view)) return AllValues(plot.curves);
  std::vector<double> values;
  ForEachLocusPoint(plot, [&](double, double im) { values.push_back(im); });
  return values;
}

std::string SParameterCsv(const SParameterPlot& plot) {
  if (!IsLocus(plot.view)) return CurveTableCsv(plot.curves);
  FrequencyPlot parts;
  for (std::size_t f = 0; f < plot.files.size(); ++f) {
    const diagram::LoadedFile& file = plot.files[f];
    for (const int parameter : plot.choice.parameters) {
      const std::string suffix = std::string(NameOf(parameter)) + ") (" + plot.fileNames[f] + ")";
      FrequencyCurve re{{}, "Re(" + suffix, {}, {}, {}}, im{{}, "Im(" + suffix, {}, {}, {}};
      const double zoom = Magnification(plot, parameter);
      for (std::size_t i = 0; i < static_cast<std::size_t>(file.shownPoints); ++i) {
        const numerics::ComplexValue& s = Element(file.set->points[i], parameter);
        re.frequency.push_back(file.set->frequency[i]);
        re.value.push_back(numerics::Re(s) * zoom);
        im.frequency.push_back(file.set->frequency[i]);
        im.value.push_back(numerics::Im(s) * zoom);
      }
      parts.curves.push_back(std::move(re));
      parts.curves.push_back(std::move(im));
    }
  }
  return CurveTableCsv(parts);
}

std::vector<QPointF> LocusPointsAt(const SParameterPlot& plot, double frequency) {
  std::vector<QPointF> points;
  for (const diagram::LoadedFile& file : plot.files) {
    const std::optional<Span> span = SpanOf(file, frequency);
    if (!span) continue;
    for (const int parameter : plot.choice.parameters) {
      const auto at = [&](std::size_t i) {
        const numerics::ComplexValue& s = Element(file.set->points[i], parameter);
        return QPointF(numerics::Re(s), numerics::Im(s)) * Magnification(plot, parameter);
      };
      const QPointF first = at(span->index);
      points.push_back(span->fraction == 0 ? first : first + (at(span->index + 1) - first) * span->fraction);
    }
  }
  return points;
}

void DrawSParameterPlot(const SParameterPlot& plot, const PlotLook& look, const LocusLook& locus,
                        diagram::Canvas& canvas) {
  if (IsLocus(plot.view)) {
    DrawLocusPlot(plot, look, locus, canvas);
  } else {
    DrawFrequencyPlot(plot.curves, look, canvas);
  }
}

}  // namespace graphwin::plots
