// Redraw and export speed of the diagram engine: a window redraws on every resize and zoom,
// so a whole picture must take a few milliseconds.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <array>
#include <cmath>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "diagram/axes.h"
#include "diagram/axis_labels.h"
#include "diagram/curves.h"
#include "diagram/grid.h"
#include "diagram/parameter_curves.h"
#include "diagram/scaling.h"
#include "diagram/smith_chart.h"
#include "diagram/spline.h"
#include "imageexport/gif_encoder.h"
#include "numerics/complex_value.h"

namespace {

using namespace diagram;

constexpr int kWidth = 768;
constexpr int kHeight = 576;
constexpr std::array<Colour, 4> kColours = {kRed, kBlue, kGreen, MakeColour(0xC0, 0, 0xC0)};

// Four sweeps of a transistor-like two-port: S11 spirals inwards, S21 falls with frequency.
std::unique_ptr<numerics::DataSetStore> MakeStore(int points) {
  auto store = std::make_unique<numerics::DataSetStore>();
  for (std::size_t s = 0; s < 4; ++s) {
    numerics::TwoPortDataSet& set = store->sets[s];
    set.pointCount = points;
    for (int i = 0; i < points; ++i) {
      const auto k = static_cast<std::size_t>(i);
      const double t = static_cast<double>(i) / points;
      set.frequency[k] = 1e7 * std::pow(1000.0, t);
      set.points[k].s[0][0] = numerics::MakePolar(0.9 - 0.4 * t - 0.05 * static_cast<double>(s), -300 * t);
      set.points[k].s[1][0] = numerics::MakePolar(10 / (1 + 8 * t) + static_cast<double>(s), 180 - 200 * t);
    }
  }
  return store;
}

std::vector<LoadedFile> FilesOf(const numerics::DataSetStore& store) {
  std::vector<LoadedFile> files;
  for (std::size_t s = 0; s < 4; ++s) files.push_back({&store.sets[s], "file" + std::to_string(s) + ".s2p", true, kColours[s]});
  return files;
}

void DrawSmithPicture(Canvas& c, Diagram& d, std::span<const LoadedFile> files) {
  ClearDiagram(kWhite, c);
  SetAxisModes(d, AxisMode::Smith, AxisMode::Smith);
  SetupAxes(d, kWidth, kHeight, 1, -1, 1, -1);
  SetAxisCrossing(d, 0, 0);
  SetDrawColour(kGrey, c);
  DrawSmithGrid(d, ChartKind::Impedance, c, true, 50);
  SetDrawColour(kBlack, c);
  DrawParameterCurves(d, c, files, kParameterS11, ParameterCurveOptions{});
  for (const double q : {0.5, 1.0, 2.0, 5.0, 10.0, 50.0}) DrawQArcs(d, c, q);
}

void SmithChart(benchmark::State& state) {
  const auto store = MakeStore(static_cast<int>(state.range(0)));
  const std::vector<LoadedFile> files = FilesOf(*store);
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  Diagram d;
  for (auto _ : state) {
    QPainter painter(&image);
    Canvas canvas(painter, kWidth, kHeight);
    DrawSmithPicture(canvas, d, files);
  }
}
// 253 points per file (the spline leaves curves of more than 150 points as they are), and
// 100 points per file, which the spline triples.
BENCHMARK(SmithChart)->Arg(253)->Arg(100)->Unit(benchmark::kMillisecond);

struct Sweep {
  std::array<double, kSplineCapacity> f{}, db{};
};

void DrawCartesianPicture(Canvas& c, Diagram& d, const std::vector<Sweep>& sweeps, int points) {
  ClearDiagram(kWhite, c);
  SetAxisModes(d, AxisMode::Log, AxisMode::Linear);
  SetupAxes(d, kWidth, kHeight, 1e10, 1e7, 30, -10);
  SetAxisCrossing(d, 1e7, 0);
  d.y.step = 1;
  SetDrawColour(kGrey, c);
  DrawGrid(d, 5, 5, c);
  SetDrawColour(kBlack, c);
  DrawAxes(d, false, false, c, d.y.step, d.x.step);
  DrawAxisLabels(d, {}, c);
  for (std::size_t s = 0; s < sweeps.size(); ++s) {
    SetDrawColour(kColours[s], c);
    DrawMarkers(d, sweeps[s].f, sweeps[s].db, kMarkerCross, points, c);
    DrawCurveWithText(d, sweeps[s].f, sweeps[s].db, false, points, c, "file.s2p, S21 ");
  }
  SetDrawColour(kBlack, c);
  DrawXTitle(d, "f in Hz", false, c);
  DrawYTitle(d, "20log|S21|", c);
}

void CartesianLogDiagram(benchmark::State& state) {
  const auto store = MakeStore(numerics::kMaxPoints);
  std::vector<Sweep> sweeps(4);
  for (std::size_t s = 0; s < 4; ++s) {
    for (std::size_t i = 0; i < numerics::kMaxPoints; ++i) {
      sweeps[s].f[i] = store->sets[s].frequency[i];
      sweeps[s].db[i] = 20 * std::log10(numerics::Abs(store->sets[s].points[i].s[1][0]));
    }
  }
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  Diagram d;
  for (auto _ : state) {
    QPainter painter(&image);
    Canvas canvas(painter, kWidth, kHeight);
    DrawCartesianPicture(canvas, d, sweeps, numerics::kMaxPoints);
  }
}
BENCHMARK(CartesianLogDiagram)->Unit(benchmark::kMillisecond);

void GifOfADiagram(benchmark::State& state) {
  const auto store = MakeStore(numerics::kMaxPoints);
  const std::vector<LoadedFile> files = FilesOf(*store);
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  {
    QPainter painter(&image);
    Canvas canvas(painter, kWidth, kHeight);
    Diagram d;
    DrawSmithPicture(canvas, d, files);
  }
  const std::span<const std::uint32_t> pixels(reinterpret_cast<const std::uint32_t*>(image.constBits()),
                                              static_cast<std::size_t>(kWidth * kHeight));
  for (auto _ : state) benchmark::DoNotOptimize(imageexport::EncodeGif(kWidth, kHeight, pixels));
}
BENCHMARK(GifOfADiagram)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  benchmark::Initialize(&argc, argv);
  const QGuiApplication application(argc, argv);  // fonts need it
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
