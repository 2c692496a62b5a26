#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "diagram/curves.h"
#include "diagram/pages/graph_data.h"
#include "diagram/pages/read_out.h"

namespace diagram::pages {
namespace {

// Three files at 1, 2 and 4 mA.
PageScene ThreeFiles() {
  PageScene scene;
  scene.settings = series::DefaultSeriesSettings();
  scene.results = {{1e-3, 10e9, 16e9, 12.5, 0, 0.8, 0},
                   {2e-3, 20e9, 30e9, 15.0, 0, 1.2, 3e9},
                   {4e-3, 25e9, 35e9, 16.5, 0, 2.5, 1e9}};
  return scene;
}

// j = 1000 * I / area: 1 mA on 500 square micrometres is 0.002 mA per square micrometre.
TEST(XValues, FollowTheXAxisChoice) {
  using enum series::XAxisChoice;
  const std::tuple<series::XAxisChoice, bool, std::vector<double>, std::string> cases[] = {
      {FileNumber, true, {1, 2, 3}, "File Number"},
      {CurrentIc, false, {1e-3, 2e-3, 4e-3}, "I in A"},
      {CurrentIc, true, {0.002, 0.004, 0.008}, "I in mA/µm²"}};
  for (const auto& [choice, density, expected, title] : cases) {
    PageScene scene = ThreeFiles();
    scene.settings.xAxis = choice;
    scene.settings.density = density;
    scene.settings.area = 500;
    const std::vector<double> x = XValues(scene);
    ASSERT_EQ(x.size(), expected.size());
    for (std::size_t i = 0; i < x.size(); ++i) EXPECT_DOUBLE_EQ(x[i], expected[i]) << title << i;
    EXPECT_EQ(XAxisTitle(scene.settings), title);
  }
}

constexpr GraphicChoice kAll{};
constexpr GraphicChoice kFTOnly{true, false, false, false};
constexpr GraphicChoice kFmaxOnly{false, true, false, false};
constexpr GraphicChoice kMagOnly{false, false, true, false};
constexpr GraphicChoice kKOnly{false, false, false, true};

TEST(PageGraph, ShowsTheChosenSeries) {
  const struct {
    OutputPage page;
    GraphicChoice choice;
    const char* yTitle;
    std::vector<std::vector<double>> series;  // the y values of each series shown
    double leastYMax;
    const char* names;    // the series' names as the legend inside the picture shows them, joined by "|"
    bool crosses = true;  // the first series shown is fT, k or f(k>1): green crosses, else red circles
  } cases[] = {
      {OutputPage::FtFmax, kAll, "fT & fmax in Hz", {{10e9, 20e9, 25e9}, {16e9, 30e9, 35e9}}, 0, "fT|fmax"},
      {OutputPage::FtFmax, kFTOnly, "fT in Hz", {{10e9, 20e9, 25e9}}, 0, "fT"},
      {OutputPage::FtFmax, kFmaxOnly, "fmax in Hz", {{16e9, 30e9, 35e9}}, 0, "fmax", false},
      {OutputPage::KMag, kAll, "k (x10), MAG+MSG in dB", {{8, 12, 25}, {12.5, 15, 16.5}}, 15, "k (x10)|MAG/MSG"},
      {OutputPage::KMag, kKOnly, "k Factor", {{0.8, 1.2, 2.5}}, 0, "k"},
      {OutputPage::KMag, kMagOnly, "MAG/MSG in dB", {{12.5, 15, 16.5}}, 15, "MAG/MSG", false},
      {OutputPage::StabilityLimit, kAll, "f(k>1) in Hz", {{0, 3e9, 1e9}}, 0, "f(k>1)"}};
  for (const auto& c : cases) {
    PageScene scene = ThreeFiles();
    scene.choice = c.choice;
    const PageGraph graph = GraphOf(c.page, scene);
    EXPECT_EQ(graph.yTitle, c.yTitle);
    ASSERT_EQ(graph.series.size(), c.series.size()) << c.yTitle;
    for (std::size_t s = 0; s < graph.series.size(); ++s) EXPECT_EQ(graph.series[s].y, c.series[s]) << c.yTitle;
    EXPECT_EQ(graph.series.front().colour, c.crosses ? diagram::kGreen : diagram::kRed) << c.yTitle;
    EXPECT_EQ(graph.series.front().marker, c.crosses ? diagram::kMarkerCross : diagram::kMarkerCircle) << c.yTitle;
    EXPECT_EQ(graph.leastYMax, c.leastYMax) << c.yTitle;
    std::string names;
    for (const PlotSeries& s : graph.series) names += (names.empty() ? "" : "|") + s.name;
    EXPECT_EQ(names, c.names);
  }
}

// The warning stands in the axis title when no limit exceeds 1e-6 Hz, or there is no file.
TEST(UnstableTitle, WarnsInTheAxisTitleWhenNoFileHasALimit) {
  const std::string unstable = "Sorry! In the whole measured region the device is unstable!";
  PageScene scene;
  scene.results = {{.fk = 0}, {.fk = 1e-6}};
  EXPECT_EQ(GraphOf(OutputPage::StabilityLimit, scene).yTitle, unstable);
  EXPECT_EQ(GraphOf(OutputPage::StabilityLimit, PageScene{}).yTitle, unstable);
}

// Without a choice the gain page's axis holds MAG in dB and ten times k: 12.3 reads both ways.
TEST(ReadOut, NamesBothAxesWithTheirUnits) {
  using enum series::XAxisChoice;
  // page, x axis, density, choice, x, y and the text
  const std::tuple<OutputPage, series::XAxisChoice, bool, GraphicChoice, double, double, std::string> cases[] = {
      {OutputPage::FtFmax, CurrentIc, false, kAll, 15.18e-3, 28.64e9, "Ic = 15.18 mA, fT, fmax = 28.64 GHz"},
      {OutputPage::FtFmax, CurrentId, false, kFTOnly, 5e-6, 2e9, "Id = 5.00 µA, fT = 2.00 GHz"},
      {OutputPage::StabilityLimit, CurrentIc, true, kAll, 0.0304, 1.5e9, "j = 0.030 mA/µm², f(k>1) = 1.50 GHz"},
      {OutputPage::KMag, FileNumber, true, kAll, 2.6, 12.3, "File Number = 3, MAG/MSG = 12.30 dB, k = 1.230"},
      {OutputPage::KMag, CurrentIc, false, kKOnly, 1e-3, 1.23, "Ic = 1.00 mA, k = 1.230"},
      {OutputPage::KMag, CurrentIc, false, kMagOnly, 1e-3, 12.3, "Ic = 1.00 mA, MAG/MSG = 12.30 dB"}};
  for (const auto& [page, xAxis, density, choice, x, y, text] : cases) {
    PageScene scene;
    scene.settings.xAxis = xAxis;
    scene.settings.density = density;
    scene.choice = choice;
    EXPECT_EQ(ReadOutText(page, scene, x, y), text);
  }
}

}  // namespace
}  // namespace diagram::pages
