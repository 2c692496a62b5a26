// Speed of the output pages: redrawing each graph page at 1024 x 768 from a series of 40 files,
// and a drop of 40 files onto the series page with "Auto Calculate" on, timed until the drop
// handler returns and the window answers again.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QTabBar>
#include <QTemporaryDir>
#include <string>

#include "diagram/canvas.h"
#include "mainwin/form_set.h"
#include "mainwin/main_window.h"
#include "controls/message_box.h"
#include "diagram/pages/page_graphs.h"

#include "synthetic_files.h"

namespace {

using diagram::pages::OutputPage;

constexpr int kFiles = 40;

// A series whose figures rise and fall with the current the way a transistor's do.
diagram::pages::PageScene FortyResults() {
  diagram::pages::PageScene scene;
  scene.settings = series::DefaultSeriesSettings();
  scene.connect = true;
  for (int i = 1; i <= kFiles; ++i) {
    const double x = i / 10.0;
    scene.results.push_back({i * 1e-3, 20e9 * x / (1 + x * x / 4), 35e9 * x / (1 + x * x / 5), 10 + 2 * x, 0,
                             0.2 + 0.1 * i, i < 30 ? 8e9 / i : 0});
  }
  return scene;
}

// As the page's image does it: a fresh picture of the image's size, drawn by the page's routine.
void BM_RedrawOutputPage1024x768(benchmark::State& state) {
  const auto page = static_cast<OutputPage>(state.range(0));
  const diagram::pages::PageScene scene = FortyResults();
  for (auto _ : state) {
    QImage picture(1024, 768, QImage::Format_RGB32);
    QPainter painter(&picture);
    diagram::Canvas canvas(painter, picture.width(), picture.height());
    diagram::pages::RoutineOf(page)(scene, canvas);
    benchmark::DoNotOptimize(picture.constBits());
  }
}
BENCHMARK(BM_RedrawOutputPage1024x768)->Arg(0)->Arg(1)->Arg(2)->ArgName("page")->Unit(benchmark::kMillisecond);

// 40 files of 253 points with "! Ic=" lines, written once.
QStringList FortyFiles() {
  static const QStringList files = bench::WriteSyntheticFiles({"netrix_bench_pages", "point_", kFiles, 0.1, 0.01, true});
  return files;
}

void BM_DropFortyFilesWithAutoCalculate(benchmark::State& state) {
  QTemporaryDir configuration;
  qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8());
  controls::MessageInterception silent([&state](const QString& text) { state.SkipWithError(qPrintable(text)); });
  mainwin::FormSet forms({});
  mainwin::TSDIAppForm& window = *forms.SDIAppForm();
  window.findChild<QTabBar*>("TabSet1")->setCurrentIndex(1);
  window.findChild<QCheckBox*>("CheckBoxAutoCalculate")->setChecked(true);
  const QStringList files = FortyFiles();
  for (auto _ : state) {
    state.PauseTiming();
    window.Series().DeleteAll();
    state.ResumeTiming();
    window.FilesDropped(files);
    QApplication::processEvents();
  }
  if (window.Results().size() != kFiles) state.SkipWithError("the series was not evaluated");
}
BENCHMARK(BM_DropFortyFilesWithAutoCalculate)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
