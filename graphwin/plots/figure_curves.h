#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "frequency_plot.h"
#include "graph_inputs.h"
#include "numerics/data_set.h"

// The curves of the windows that plot figures against frequency: for every active file one
// curve per chosen figure, filled point by point and named after the file and the figure.
namespace graphwin::plots {

struct PlottedFigure {
  std::size_t slot;    // its place among the window's figures, which picks its colour
  std::string name;    // written after the file's name, e.g. "MAG/MSG"
  std::string column;  // its column in the exported table, before the file's name
};

// The chosen figures of a window's table, whose rows name their check box as a member of Choice.
template <typename Choice, typename Figure, std::size_t N>
std::vector<PlottedFigure> ChosenFigures(const std::array<Figure, N>& figures, const Choice& choice) {
  std::vector<PlottedFigure> chosen;
  for (std::size_t i = 0; i < N; ++i) {
    if (choice.*figures[i].box) chosen.push_back({i, figures[i].name, figures[i].column});
  }
  return chosen;
}

// Writes one value per chosen figure, in their order, for one point of a file.
using FigureValues = std::function<void(const numerics::SParameters& point, std::vector<double>& values)>;

// Adds the curves of every active file; the first active file's title becomes the comment when
// the page asks for it.
void AddFigureCurves(const GraphInputs& inputs, const std::vector<PlottedFigure>& figures, const FigureValues& values,
                     FrequencyPlot& plot);

}  // namespace graphwin::plots
