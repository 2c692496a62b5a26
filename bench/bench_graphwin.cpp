// Speed of the graph windows: the gain window's redraw with four files of 253 points at 768 x 576
// and its opening from "MAG, MSG, ..." until its picture is first painted; the reflection
// window's redraw with the ZY grid, six constant-Q arcs and the circles over four such files.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QElapsedTimer>
#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "controls/dialog_hooks.h"
#include "controls/message_box.h"
#include "graphwin/gwin.h"
#include "graphwin/phiwin.h"
#include "mainwin/form_set.h"
#include "mainwin/main_window.h"
#include "numerics/data_set.h"

namespace {

constexpr int kFiles = 4;

// Four files of 253 points, 100 MHz to 12.7 GHz, written once.
QStringList FourFiles() {
  static const QStringList files = [] {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "netrix_bench_graphwin";
    std::filesystem::create_directories(folder);
    QStringList paths;
    for (int file = 1; file <= kFiles; ++file) {
      const std::filesystem::path path = folder / ("device_" + std::to_string(file) + ".s2p");
      std::ofstream out(path, std::ios::binary);
      out << "# MHz S MA R 50\n";
      for (int i = 0; i < 253; ++i) {
        char line[200];
        std::snprintf(line, sizeof line, "%d %.6f %.4f %.6f %.4f %.6f %.4f %.6f %.4f\n", 100 + i * 50,
                      0.8 - i * 1e-3, -30.0 - i * 0.7, 5.0 + file * 0.3 - i * 0.015, 150.0 - i * 0.5,
                      0.02 + i * 1e-4, 70.0 - i * 0.2, 0.6 - i * 1e-3, -20.0 - i * 0.3);
        out << line;
      }
      paths.append(QString::fromStdString(path.string()));
    }
    return paths;
  }();
  return files;
}

class Session {
 public:
  explicit Session(const QStringList& files) : silent_([](const QString& text) { qFatal("%s", qPrintable(text)); }) {
    qputenv("XDG_CONFIG_HOME", configuration_.path().toUtf8());
    numerics::DataSets() = numerics::DataSetStore{};  // the store is the program's, not the window set's
    forms_ = std::make_unique<mainwin::FormSet>(files);
  }
  mainwin::TSDIAppForm& Main() { return *forms_->SDIAppForm(); }
  graphwin::TFormG& Gain() { return *forms_->FormG(); }
  graphwin::TFormPhi& Reflection() { return *forms_->FormPhi(); }

 private:
  QTemporaryDir configuration_;
  controls::MessageInterception silent_;
  std::unique_ptr<mainwin::FormSet> forms_;
};

// The window's one drawing routine onto a picture of 768 x 576; range(0) curves per file.
void BM_RedrawGainWindowFourFiles768x576(benchmark::State& state) {
  Session session(FourFiles());
  session.Main().findChild<QPushButton*>("SpeedButtonGain")->click();
  if (state.range(0) == 4) {
    for (const char* box : {"CheckBoxMason", "CheckBoxMUG", "CheckBoxS21"}) {
      session.Gain().findChild<QCheckBox*>(box)->click();
    }
  }
  for (auto _ : state) {
    QImage picture(768, 576, QImage::Format_RGB32);
    QPainter painter(&picture);
    session.Gain().PaintPicture(painter, picture.size());
    benchmark::DoNotOptimize(picture.constBits());
  }
}
BENCHMARK(BM_RedrawGainWindowFourFiles768x576)->Arg(1)->Arg(4)->ArgName("curves")->Unit(benchmark::kMillisecond);

void BM_RedrawReflectionWindowZyQCircles768x576(benchmark::State& state) {
  Session session(FourFiles());
  session.Main().findChild<QPushButton*>("SpeedButton1")->click();
  graphwin::TFormPhi& window = session.Reflection();
  window.findChild<QAction*>("ZYChart")->trigger();
  int typed = 0;
  const controls::ModalInterception answers([&](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("Edit1")->setText(QString::number(++typed));
    dialog.findChild<QPushButton*>("OKBtn")->click();
    return dialog.result();
  });
  for (int i = 0; i < 6; ++i) window.findChild<QAction*>("constantQ1")->trigger();
  window.findChild<QAction*>("StabilityCircles1")->trigger();
  for (auto _ : state) {
    QImage picture(768, 576, QImage::Format_RGB32);
    QPainter painter(&picture);
    window.PaintPicture(painter, picture.size());
    benchmark::DoNotOptimize(picture.constBits());
  }
  if (window.QTable().Count() != 6) state.SkipWithError("the six Q arcs were not stored");
}
BENCHMARK(BM_RedrawReflectionWindowZyQCircles768x576)->Unit(benchmark::kMillisecond);

class FirstPaint : public QObject {
 public:
  bool painted = false;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted = true;
    return false;
  }
};

void BM_OpenGainWindowToFirstPaint(benchmark::State& state) {
  Session session({QString::fromLatin1(NETRIX_EXAMPLE_FILE)});
  QWidget* image = session.Gain().findChild<QWidget*>("Image");
  FirstPaint paint;
  image->installEventFilter(&paint);
  QPushButton* button = session.Main().findChild<QPushButton*>("SpeedButtonGain");
  for (auto _ : state) {
    state.PauseTiming();
    session.Gain().hide();
    QApplication::processEvents();
    paint.painted = false;
    QElapsedTimer limit;
    limit.start();
    state.ResumeTiming();
    button->click();
    while (!paint.painted && limit.elapsed() < 5000) QApplication::processEvents();
  }
  if (!paint.painted) state.SkipWithError("the window was never painted");
}
BENCHMARK(BM_OpenGainWindowToFirstPaint)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  if (!std::getenv("DISPLAY")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication application(argc, argv);
  mainwin::InitialiseApplication();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
