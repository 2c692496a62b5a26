#pragma once

#include <optional>
#include <string>
#include <vector>

#include "diagram/canvas.h"
#include "diagram/diagram_state.h"
#include "diagram/parameter_curves.h"
#include "diagram/smith_chart.h"
#include "frequency_plot.h"
#include "graph_inputs.h"
#include "stability_circles.h"

// What the reflection and the transmission windows plot: S11 and S22, or S21 and S12, of every
// active file as a locus (Smith chart, polar or cartesian diagram) or against frequency (|S|,
// 20 log|S| or the phase), the ranges each display mode starts with, and the one drawing routine.
namespace graphwin::plots {

enum class SView { Polar, Smith, Cartesian, Magnitude, Decibels, Phase };
bool IsLocus(SView view);

enum class SWindow { Reflection, Transmission };

// The parameters a diagram button asks for, in drawing order, and their legend text.
struct SParameterChoice {
  std::vector<int> parameters;  // diagram::kParameterS11 ...
  std::string text;             // "S11", "S22", "S11 & S22", "S21", "S12" or "S21 & S12"
};
// Both parameters of the window.
SParameterChoice BothParameters(SWindow window);
// The choice of a display mode that belongs to the window; none for the other windows' modes.
std::optional<SParameterChoice> ChoiceOf(SWindow window, DisplayMode mode);

struct SParameterPlot {
  SWindow window = SWindow::Reflection;
  SView view = SView::Smith;
  SParameterChoice choice;
  double s12Zoom = 1;  // S12 magnified in the polar diagram
  std::vector<diagram::LoadedFile> files;  // the active files with their curve names
  std::vector<std::string> fileNames;      // one per file, for the exported table
  // One curve per parameter and file: the view's value against frequency (|S| in the loci),
  // with the headings, the titles and the legend.
  FrequencyPlot curves;
};

SParameterPlot BuildSParameterPlot(const GraphInputs& inputs, SWindow window, const SParameterChoice& choice,
                                   SView view, double s12Zoom);

// The ranges a display mode starts with: the Smith chart -1 .. 1; the polar and cartesian loci
// symmetric up to RoundUpOneDigit of the largest magnitude; against frequency from 0 to the
// highest frequency, |S| from 0 to the largest magnitude rounded up, dB and phase autoscaled.
void SetViewDefaults(diagram::Diagram& d, const SParameterPlot& plot);

// What the autoscales look at: real and imaginary parts in the loci, else frequency and value.
std::vector<double> XValuesOf(const SParameterPlot& plot);
std::vector<double> YValuesOf(const SParameterPlot& plot);

// The curves as plotted, as CSV: real and imaginary parts in the loci.
std::string SParameterCsv(const SParameterPlot& plot);

// What the reflection window adds to its loci.
struct LocusLook {
  diagram::ChartKind chart = diagram::ChartKind::Impedance;
  double z0 = 50;                // the Smith chart's labels in ohms
  std::vector<double> qValues;   // constant-Q arcs of the Smith chart
  std::optional<MatchCircles> circles;
};

// The whole picture on the program-wide diagram state, which the window has set up.
void DrawSParameterPlot(const SParameterPlot& plot, const PlotLook& look, const LocusLook& locus,
                        diagram::Canvas& canvas);

}  // namespace graphwin::plots
