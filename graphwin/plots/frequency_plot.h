#pragma once

#include <QPointF>
#include <string>
#include <vector>

#include "diagram/canvas.h"
#include "diagram/colour.h"
#include "diagram/diagram_state.h"

// A diagram of values against frequency, as the gain, stability and impedance windows draw it:
// one curve per file and figure, named in place, with a heading, a title chosen by the window,
// a legend and the frequency page's comment. One drawing routine for the screen, the clipboard,
// the picture files, the printer and netrix --render.
namespace graphwin::plots {

struct FrequencyCurve {
  std::string name;    // written at the curve's first point, e.g. "amplifier.s2p, MAG/MSG"
  std::string column;  // the curve's column in the exported table, with its unit
  diagram::Colour colour = diagram::kBlack;
  std::vector<double> frequency;  // Hz, one per point
  std::vector<double> value;      // what is plotted, one per point
};

struct FrequencyPlot {
  std::string heading;        // top left, e.g. "Gain : MAG, MSG, MUG, etc."
  std::string title;          // top right, naming the curves shown; may be empty
  std::string legendHeading;  // e.g. "Gain(f) :"
  std::string xTitle;
  std::string yTitle;
  std::string comment;  // the first file's first line, when the page asks for it
  std::vector<FrequencyCurve> curves;
};

struct PlotLook {
  bool connect = true;    // lines between the points
  bool spline = true;     // the lines smoothed by the spline
  bool dots = false;      // the measured points marked
  bool straight = false;  // lines straight from point to point, whatever spline says
  bool legend = true;
};

// A box of texts in a corner of the frame: a heading, each entry's name after a line in its
// colour, and a footer.
struct LegendEntry {
  std::string name;
  diagram::Colour colour = diagram::kBlack;
};
struct Legend {
  std::string heading;
  std::vector<LegendEntry> entries;
  std::string footer;
};
enum class LegendCorner { UpperRight, LowerLeft };
void DrawLegend(const diagram::Diagram& d, const Legend& legend, LegendCorner corner, diagram::Canvas& canvas);

// The plot's legend: its heading, the curves and the highest frequency.
Legend LegendOf(const FrequencyPlot& plot);
// The title over the frame's right end; the heading and the comment in the bottom line.
void DrawHeadings(const diagram::Diagram& d, const FrequencyPlot& plot, diagram::Canvas& canvas);

// Every frequency and every value of the curves, for the autoscales.
std::vector<double> AllFrequencies(const FrequencyPlot& plot);
std::vector<double> AllValues(const FrequencyPlot& plot);
// The highest frequency of the curves; 0 without any point.
double HighestFrequency(const FrequencyPlot& plot);

// Where a frequency lies on the curves, as world points: on each curve that spans it, between its
// neighbouring points.
std::vector<QPointF> PointsAt(const FrequencyPlot& plot, double frequency);

// "Position : f=1.00GHz, ", how every read-out against frequency begins.
std::string PositionText(double frequency);

// The whole picture on the program-wide diagram state, whose modes, ranges, crossing, steps and
// label counts the window has set; the state is left as drawn.
void DrawFrequencyPlot(const FrequencyPlot& plot, const PlotLook& look, diagram::Canvas& canvas);

}  // namespace graphwin::plots
