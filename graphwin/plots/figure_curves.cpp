#include "figure_curves.h"

#include <cassert>

namespace graphwin::plots {
namespace {

// Each file's curves take the colours in an order of their own, so that the same figure of two
// files is told apart.
constexpr std::array<diagram::Colour, 6> kColours = {diagram::kRed,
                                                     diagram::kGreen,
                                                     diagram::kBlue,
                                                     diagram::MakeColour(0xC0, 0, 0xC0),
                                                     diagram::MakeColour(0, 0x80, 0x80),
                                                     diagram::MakeColour(0xE0, 0x80, 0)};

void AddFileCurves(const GraphInputs& inputs, std::size_t fileIndex, const std::vector<PlottedFigure>& figures,
                   const FigureValues& values, FrequencyPlot& plot) {
  const GraphFile& file = inputs.files[fileIndex];
  const std::size_t first = plot.curves.size();
  const std::string prefix = inputs.options.fileNames ? FileName(file) + ", " : std::string();
  for (const PlottedFigure& figure : figures) {
    plot.curves.push_back({prefix + figure.name, figure.column + " (" + FileName(file) + ")",
                           kColours[(figure.slot + fileIndex) % kColours.size()], {}, {}});
  }
  std::vector<double> point;
  const int points = ShownPoints(inputs, file);
  for (int i = 0; i < points; ++i) {
    const auto index = static_cast<std::size_t>(i);
    point.clear();
    values(file.set->points[index], point);
    assert(point.size() == figures.size());
    for (std::size_t c = 0; c < figures.size(); ++c) {
      plot.curves[first + c].frequency.push_back(file.set->frequency[index]);
      plot.curves[first + c].value.push_back(point[c]);
    }
  }
}

}  // namespace

void AddFigureCurves(const GraphInputs& inputs, const std::vector<PlottedFigure>& figures, const FigureValues& values,
                     FrequencyPlot& plot) {
  for (std::size_t i = 0; i < inputs.files.size(); ++i) {
    const GraphFile& file = inputs.files[i];
    if (!file.active || file.set == nullptr) continue;
    if (inputs.options.comment && plot.comment.empty()) plot.comment = file.set->title;
    AddFileCurves(inputs, i, figures, values, plot);
  }
}

}  // namespace graphwin::plots
