#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "diagram/colour.h"
#include "page_scene.h"
#include "series/check_texts.h"

// What an output page plots: the x value of every file, the y series with their colours and
// markers, and the axis titles. Pure functions of the scene, so they are tested without drawing.
namespace diagram::pages {

// Unless only k is shown, k shares the gain axis ten times enlarged.
inline constexpr double kKScale = 10;

struct PlotSeries {
  std::vector<double> y;  // one value per file
  diagram::Colour colour;
  std::uint8_t marker;
  std::string name;  // as the legend names it
  std::optional<series::CheckedFigure> checked = std::nullopt;  // the figure whose check the points carry
  std::vector<bool> flagged = {};  // per file, when checked: the check failed
};

struct PageGraph {
  std::vector<double> x;           // one value per file
  std::vector<PlotSeries> series;  // in drawing order; the first is marked with crosses
  std::string xTitle;
  std::string yTitle;
  double leastYMax = 0;  // the upper y limit is raised to at least this
};

// The file number 1, 2, ...; else the current in A, or the current density in mA per square
// micrometre when the density is asked for.
std::vector<double> XValues(const PageScene& scene);
std::string XAxisTitle(const series::SeriesSettings& settings);

// Whether the page shows both of its series, which is when its legend label is visible.
bool BothSeriesShown(OutputPage page, const GraphicChoice& choice);

PageGraph GraphOf(OutputPage page, const PageScene& scene);

}  // namespace diagram::pages
