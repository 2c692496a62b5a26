// The main of the benchmarks that open the program's windows: offscreen unless a display is there.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdlib>

#include "mainwin/form_set.h"

int main(int argc, char** argv) {
  if (!std::getenv("DISPLAY")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication application(argc, argv);
  mainwin::InitialiseApplication();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
