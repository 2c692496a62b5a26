#include "graph_data.h"

#include <algorithm>
#include <utility>

#include "diagram/curves.h"

namespace diagram::pages {
namespace {

struct SeriesLook {
  diagram::Colour colour;
  std::uint8_t marker;
};

constexpr SeriesLook kFirstSeries = {diagram::kGreen, diagram::kMarkerCross};
constexpr SeriesLook kSecondSeries = {diagram::kRed, diagram::kMarkerCircle};
// Below this a stability limit counts as not found.
constexpr double kNoLimit = 1e-6;
// The gain axis keeps room up to 15 dB.
constexpr double kLeastGainAxisTop = 15;

double FT(const series::FileFigures& f) { return f.fT; }
double Fmax(const series::FileFigures& f) { return f.fmax; }
double K(const series::FileFigures& f) { return f.k; }
double KTimesTen(const series::FileFigures& f) { return kKScale * f.k; }
double MagDb(const series::FileFigures& f) { return f.magDb; }
double Limit(const series::FileFigures& f) { return f.fk; }

PlotSeries Series(const SeriesLook& look, const char* name, const series::SeriesArrays& results,
                  double (*value)(const series::FileFigures&)) {
  PlotSeries series{{}, look.colour, look.marker, name};
  for (const series::FileFigures& file : results) series.y.push_back(value(file));
  return series;
}

// The points of a series that carry the check of fT or of fmax, flagged where it failed.
PlotSeries Checked(PlotSeries series, const series::SeriesArrays& results, series::CheckedFigure figure) {
  series.checked = figure;
  for (const series::FileFigures& file : results) series.flagged.push_back(series::IsFlagged(file.check, figure));
  return series;
}

PageGraph FtFmaxGraph(const PageScene& scene) {
  const GraphicChoice& c = scene.choice;
  PageGraph graph{XValues(scene), {}, XAxisTitle(scene.settings), "fT & fmax in Hz"};
  if (c.fTOnly) graph.yTitle = "fT in Hz";
  if (c.fmaxOnly) graph.yTitle = "fmax in Hz";
  using series::CheckedFigure;
  const series::SeriesArrays& r = scene.results;
  if (!c.fmaxOnly) graph.series.push_back(Checked(Series(kFirstSeries, "fT", r, FT), r, CheckedFigure::FT));
  if (!c.fTOnly) graph.series.push_back(Checked(Series(kSecondSeries, "fmax", r, Fmax), r, CheckedFigure::Fmax));
  return graph;
}

PageGraph KMagGraph(const PageScene& scene) {
  const GraphicChoice& c = scene.choice;
  PageGraph graph{XValues(scene), {}, XAxisTitle(scene.settings), "k (x10), MAG+MSG in dB", kLeastGainAxisTop};
  if (c.kOnly) {
    graph.yTitle = "k Factor";
    graph.leastYMax = 0;
    graph.series.push_back(Series(kFirstSeries, "k", scene.results, K));
    return graph;
  }
  if (c.magMsgOnly) {
    graph.yTitle = "MAG/MSG in dB";
  } else {
    graph.series.push_back(Series(kFirstSeries, "k (x10)", scene.results, KTimesTen));
  }
  // MAG/MSG carries the check of fmax while fmax is taken from it.
  PlotSeries gain = Series(kSecondSeries, "MAG/MSG", scene.results, MagDb);
  if (!scene.settings.fmaxFromU) gain = Checked(std::move(gain), scene.results, series::CheckedFigure::Fmax);
  graph.series.push_back(std::move(gain));
  return graph;
}

PageGraph StabilityGraph(const PageScene& scene) {
  PageGraph graph{XValues(scene), {}, XAxisTitle(scene.settings), "f(k>1) in Hz"};
  graph.series.push_back(Series(kFirstSeries, "f(k>1)", scene.results, Limit));
  const std::vector<double>& fk = graph.series.front().y;
  // The warning stands where the axis title would, not in a message box.
  if (fk.empty() || *std::max_element(fk.begin(), fk.end()) <= kNoLimit) {
    graph.yTitle = "Sorry! In the whole measured region the device is unstable!";
  }
  return graph;
}

}  // namespace

std::vector<double> XValues(const PageScene& scene) {
  std::vector<double> x;
  const series::SeriesSettings& s = scene.settings;
  for (std::size_t i = 0; i < scene.results.size(); ++i) {
    const series::FileFigures& file = scene.results[i];
    if (s.xAxis == series::XAxisChoice::FileNumber) {
      x.push_back(static_cast<double>(i + 1));
    } else {
      x.push_back(s.density ? series::CurrentDensity(file, s.area) : file.current);
    }
  }
  return x;
}

// The density axis is labelled "I" as well.
std::string XAxisTitle(const series::SeriesSettings& settings) {
  if (settings.xAxis == series::XAxisChoice::FileNumber) return "File Number";
  return settings.density ? "I in mA/µm²" : "I in A";
}

bool BothSeriesShown(OutputPage page, const GraphicChoice& choice) {
  switch (page) {
    case OutputPage::FtFmax: return !choice.fTOnly && !choice.fmaxOnly;
    case OutputPage::KMag: return !choice.kOnly && !choice.magMsgOnly;
    case OutputPage::StabilityLimit: return false;
  }
  return false;
}

PageGraph GraphOf(OutputPage page, const PageScene& scene) {
  switch (page) {
    case OutputPage::FtFmax: return FtFmaxGraph(scene);
    case OutputPage::KMag: return KMagGraph(scene);
    case OutputPage::StabilityLimit: return StabilityGraph(scene);
  }
  return {};
}

}  // namespace diagram::pages
