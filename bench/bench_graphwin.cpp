// Speed of the graph windows: the gain window's redraw with four files of 253 points at 768 x 576
// and its opening from "MAG, MSG, ..." until its picture is first painted; the reflection
// window's redraw with the ZY grid, six constant-Q arcs and the circles over four such files; the
// frequency cursor following the mouse across every open window.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QElapsedTimer>
#include <QEvent>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <string>

#include "controls/dialog_hooks.h"
#include "controls/message_box.h"
#include "graphwin/gwin.h"
#include "graphwin/phiwin.h"
#include "mainwin/form_set.h"
#include "mainwin/main_window.h"
#include "numerics/data_set.h"

#include "synthetic_files.h"

namespace {

constexpr int kFiles = 4;

// Four files of 253 points, 100 MHz to 12.7 GHz, written once.
QStringList FourFiles() {
  static const QStringList files =
      bench::WriteSyntheticFiles({"netrix_bench_graphwin", "device_", kFiles, 0.3, 0.015, false});
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
  graphwin::TGraphForm* Window(graphwin::DiagramWindow window) { return forms_->DiagramWindowOf(window); }
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

// Every graph window that is built opens at 768 x 576 with every curve of the four files checked;
// the mouse then moves across the gain window's frame a few columns at a time, and each move is
// painted in every window.
void BM_MoveFrequencyCursorAllWindows(benchmark::State& state) {
  Session session(FourFiles());
  for (int kind = 0; kind < graphwin::kDiagramWindowCount; ++kind) {
    graphwin::TGraphForm* window = session.Window(static_cast<graphwin::DiagramWindow>(kind));
    if (window == nullptr) continue;
    window->resize(768, 576);
    window->ShowFromMain();
    for (QCheckBox* box : window->findChildren<QCheckBox*>()) {
      if (!box->isChecked()) box->click();
    }
  }
  QWidget* image = session.Gain().findChild<QWidget*>("Image");
  QApplication::processEvents();
  int column = 80;
  for (auto _ : state) {
    column = column + 3 < image->width() - 60 ? column + 3 : 80;
    const QPointF at(column, image->height() / 2);
    QMouseEvent move(QEvent::MouseMove, at, image->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(image, &move);
    QApplication::processEvents();
  }
}
BENCHMARK(BM_MoveFrequencyCursorAllWindows)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
