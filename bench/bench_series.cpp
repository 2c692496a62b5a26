// Speed of the bias-series evaluation: 40 files of 253 points, the largest series the list
// holds, read from files and evaluated as the Calculate button does.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "series/series_evaluation.h"
#include "series/series_list.h"
#include "series/series_settings.h"

namespace {

// One file per bias point, frequencies in MHz; the S-parameters drift with the point index
// the way a transistor's do over a sweep, so that k crosses 1 within the sweep.
std::string SeriesFileText(int file) {
  std::string text = "! Benchmark series file " + std::to_string(file) + "\n! Ic=" + std::to_string(file) + "m\n";
  text += "# MHz S MA R 50\n";
  for (int i = 0; i < 253; ++i) {
    char line[200];
    std::snprintf(line, sizeof line, "%d %.6f %.4f %.6f %.4f %.6f %.4f %.6f %.4f\n", 100 + i * 50,
                  0.8 - i * 1e-3, -30.0 - i * 0.7, 5.0 + file * 0.1 - i * 0.01, 150.0 - i * 0.5, 0.02 + i * 1e-4,
                  70.0 - i * 0.2, 0.6 - i * 1e-3, -20.0 - i * 0.3);
    text += line;
  }
  return text;
}

// The 40 files, written once; later reads hit the page cache.
const series::SeriesList& FortyFiles() {
  static const series::SeriesList list = [] {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "netrix_bench_series";
    std::filesystem::create_directories(folder);
    std::vector<std::string> paths;
    for (int file = 1; file <= 40; ++file) {
      const std::filesystem::path path = folder / ("point_" + std::to_string(file) + ".s2p");
      std::ofstream(path, std::ios::binary) << SeriesFileText(file);
      paths.push_back(path.string());
    }
    series::SeriesList series;
    series.Append(paths);
    return series;
  }();
  return list;
}

void EvaluateForty(benchmark::State& state, bool withLgnd) {
  const series::SeriesList& list = FortyFiles();
  series::SeriesSettings settings = series::DefaultSeriesSettings();
  settings.withLgnd = withLgnd;
  series::SeriesArrays arrays;
  for (auto _ : state) {
    const series::SeriesEvaluation evaluation = series::EvaluateSeries(list, settings, arrays);
    if (!evaluation.completed || arrays.size() != 40) state.SkipWithError("the series did not evaluate");
    benchmark::DoNotOptimize(arrays.data());
  }
}

void BM_EvaluateSeries40FilesWithLgnd(benchmark::State& state) { EvaluateForty(state, true); }
BENCHMARK(BM_EvaluateSeries40FilesWithLgnd)->Unit(benchmark::kMillisecond);

// Without the inductance, for comparison: the difference is the cost of the insertion.
void BM_EvaluateSeries40Files(benchmark::State& state) { EvaluateForty(state, false); }
BENCHMARK(BM_EvaluateSeries40Files)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
