// Speed of netrix --figures inside the process: reading a 253-point file, the figures of every
// point and the CSV text, without the start of the process.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "app/figures_command.h"

namespace {

// The same sweep as the reader benchmark, in a file of its own.
const std::string& SweepFile() {
  static const std::string path = [] {
    const std::string p = (std::filesystem::temp_directory_path() / "netrix_bench_figures_253.s2p").string();
    std::ofstream out(p);
    out << "Benchmark sweep, 253 points\n";
    for (int i = 0; i < 254; ++i) {
      char line[200];
      std::snprintf(line, sizeof line, "%.0f %.6f %.4f %.6f %.4f %.6f %.4f %.6f %.4f\n", 1e8 + i * 5e7,
                    0.8 - i * 1e-3, -30.0 - i * 0.7, 5.0 - i * 0.01, 150.0 - i * 0.5, 0.02 + i * 1e-4,
                    70.0 - i * 0.2, 0.6 - i * 1e-3, -20.0 - i * 0.3);
      out << line;
    }
    return p;
  }();
  return path;
}

void BM_FiguresCommand253Points(benchmark::State& state) {
  const std::string& path = SweepFile();
  std::ostringstream out, err;
  for (auto _ : state) {
    out.str("");
    if (app::RunFiguresCommand({path}, out, err) != 0) state.SkipWithError("the file was not evaluated");
    benchmark::DoNotOptimize(out.str().size());
  }
}
BENCHMARK(BM_FiguresCommand253Points)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
