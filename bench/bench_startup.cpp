// Start-up of the GUI: a fresh process that creates every window, loads one file and runs until
// the main window's first paint. Each run re-executes this program in child mode, so loading of
// the shared libraries and set-up of the application object are part of the time.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>

#include <QApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <cstdlib>
#include <string>

#include "mainwin/form_set.h"
#include "mainwin/main_window.h"

extern char** environ;

namespace {

const char* const kChildOption = "--startup-child";
const char* const kSelf = "/proc/self/exe";

class FirstPaintExit : public QObject {
 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) std::_Exit(0);
    return false;
  }
};

int RunChild(int argc, char** argv) {
  QApplication application(argc, argv);
  mainwin::InitialiseApplication();
  mainwin::FormSet forms({QString::fromLocal8Bit(argv[2])});
  FirstPaintExit exitOnPaint;
  forms.SDIAppForm()->installEventFilter(&exitOnPaint);
  forms.SDIAppForm()->show();
  return QApplication::exec();
}

void BM_StartToFirstPaintWithOneFile(benchmark::State& state) {
  QTemporaryDir configuration;
  setenv("XDG_CONFIG_HOME", qPrintable(configuration.path()), 1);
  if (!getenv("DISPLAY")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  std::string file = NETRIX_EXAMPLE_FILE;
  char* const args[] = {const_cast<char*>(kSelf), const_cast<char*>(kChildOption), file.data(), nullptr};
  for (auto _ : state) {
    pid_t child = 0;
    if (posix_spawn(&child, kSelf, nullptr, nullptr, args, environ) != 0) {
      state.SkipWithError("cannot start the child process");
      return;
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
      state.SkipWithError("the child process failed");
      return;
    }
  }
}
BENCHMARK(BM_StartToFirstPaintWithOneFile)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(10);

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]) == kChildOption) return RunChild(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
