// Speed of the reader and of the figures, the two steps every window repeats per point.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "numerics/data_set.h"
#include "numerics/figures.h"
#include "numerics/file_reader.h"

namespace {

// A 253-point file in the program's own format, written once; later reads hit the page cache.
const std::string& SweepFile() {
  static const std::string path = [] {
    const std::string p = (std::filesystem::temp_directory_path() / "netrix_bench_253.s2p").string();
    std::ofstream out(p);
    out << "Benchmark sweep, 253 points\n";
    for (int i = 0; i < 254; ++i) {
      char line[200];
      const double f = 1e8 + i * 5e7;
      std::snprintf(line, sizeof line, "%.0f %.6f %.4f %.6f %.4f %.6f %.4f %.6f %.4f\n", f, 0.8 - i * 1e-3,
                    -30.0 - i * 0.7, 5.0 - i * 0.01, 150.0 - i * 0.5, 0.02 + i * 1e-4, 70.0 - i * 0.2,
                    0.6 - i * 1e-3, -20.0 - i * 0.3);
      out << line;
    }
    return p;
  }();
  return path;
}

// Loads path again and again into the emptied first slot of one store, as the program has one.
void LoadRepeatedly(benchmark::State& state, const std::string& path, const numerics::ReadingChoice& choice) {
  static numerics::DataSetStore store;
  for (auto _ : state) {
    store.openCount = 0;
    const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(store, path, choice);
    if (store.sets[0].pointCount != numerics::kMaxPoints) state.SkipWithError(outcome.message.c_str());
    benchmark::DoNotOptimize(store.sets[0].points[252]);
  }
}

void BM_LoadTwoPortFile(benchmark::State& state) { LoadRepeatedly(state, SweepFile(), {}); }
BENCHMARK(BM_LoadTwoPortFile)->Unit(benchmark::kMicrosecond);

// A network analyser sweep of 1601 points as a Touchstone file in DB, as such instruments write it.
const std::string& AnalyserSweepFile() {
  static const std::string path = [] {
    const std::string p = (std::filesystem::temp_directory_path() / "netrix_bench_1601_db.s2p").string();
    std::ofstream out(p);
    out << "! Benchmark sweep, 1601 points\n# HZ S DB R 50\n";
    for (int i = 0; i < 1601; ++i) {
      char line[200];
      const double f = 1e6 + i * 3e6;
      std::snprintf(line, sizeof line, "%.0f %.6f %.4f %.6f %.4f %.6f %.4f %.6f %.4f\n", f, -0.5 - i * 1e-3,
                    std::fmod(-30.0 - i * 0.7, 360.0) + 180, 14.0 - i * 0.005, std::fmod(150.0 - i * 0.5, 360.0) + 180,
                    -40.0 + i * 1e-3, std::fmod(70.0 - i * 0.2, 360.0) + 180, -3.0 - i * 1e-3,
                    std::fmod(-20.0 - i * 0.3, 360.0) + 180);
      out << line;
    }
    return p;
  }();
  return path;
}

// The Touchstone reading thins the sweep to the store's 253 points.
void BM_LoadTouchstoneDb1601(benchmark::State& state) {
  LoadRepeatedly(state, AnalyserSweepFile(), {numerics::FileReading::Touchstone});
}
BENCHMARK(BM_LoadTouchstoneDb1601)->Unit(benchmark::kMicrosecond);

// Per point, from the measured Polar values as the windows and the commands take them.
template <void (*Compute)(numerics::TwoPortState&, numerics::TwoPortFigures&)>
void FiguresPerPoint(benchmark::State& state) {
  static numerics::DataSetStore store;
  store.openCount = 0;
  numerics::LoadTwoPortFile(store, SweepFile());
  const numerics::TwoPortDataSet& set = store.sets[0];
  numerics::TwoPortState st;
  numerics::TwoPortFigures fig;
  int i = 0;
  for (auto _ : state) {
    numerics::CopyPointToState(set.points[static_cast<std::size_t>(i)], st);
    Compute(st, fig);
    benchmark::DoNotOptimize(fig.u);
    i = (i + 1) % set.pointCount;
  }
}

void EveryFigure(numerics::TwoPortState& st, numerics::TwoPortFigures& fig) {
  numerics::ComputeTwoPortFigures(st, {}, fig);
}

void BM_ComputeTwoPortFigures(benchmark::State& state) { FiguresPerPoint<EveryFigure>(state); }
BENCHMARK(BM_ComputeTwoPortFigures);

// k, mu, MAG, MSG, MUG and U only, as the series evaluation and netrix --figures take them.
void BM_ComputeGainFigures(benchmark::State& state) { FiguresPerPoint<numerics::ComputeGainFigures>(state); }
BENCHMARK(BM_ComputeGainFigures);

}  // namespace

BENCHMARK_MAIN();
