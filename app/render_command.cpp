#include "render_command.h"

#include <QGuiApplication>
#include <QPainter>
#include <cassert>
#include <filesystem>
#include <memory>
#include <ostream>

#include "diagram/canvas.h"
#include "numerics/file_reader.h"
#include "render_options.h"
#include "render_output.h"
#include "render_views.h"

namespace app {
namespace {

// Fonts need a GUI application; this mode makes one for itself, on the offscreen platform
// unless the environment asks for another, so that it runs without a display.
class GuiSession {
 public:
  GuiSession() {
    if (QCoreApplication::instance() != nullptr) {
      assert(qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr && "text needs a GUI application");
      return;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argc_, argv_);
  }

 private:
  static inline char name_[] = "netrix";
  static inline char* argv_[] = {name_, nullptr};
  static inline int argc_ = 1;
  std::unique_ptr<QGuiApplication> application_;
};

// Reads the files into a store of the command's own; the first failure is the message.
std::string LoadFiles(const RenderOptions& o, numerics::DataSetStore& store, RenderScene& scene) {
  for (const std::string& file : o.files) {
    const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(store, file);
    if (outcome.status != numerics::LoadStatus::Loaded) return outcome.message;
    scene.sets.push_back(&store.sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)]);
    scene.names.push_back(std::filesystem::path(file).filename().string());
  }
  return {};
}

int Fail(std::ostream& err, const std::string& message) {
  err << "netrix --render: " << message << '\n';
  return 1;
}

}  // namespace

int RunRenderCommand(const std::vector<std::string>& args, std::ostream&, std::ostream& err) {
  const ParsedRenderOptions parsed = ParseRenderOptions(args);
  if (!parsed.error.empty()) return Fail(err, parsed.error);
  const RenderOptions& o = parsed.options;
  const RenderView* view = FindRenderView(o.view);
  if (view == nullptr) return Fail(err, "unknown view \"" + o.view + "\"; use " + RenderViewNames());
  const PictureFormat* format = FindPictureFormat(o.outPath);
  if (format == nullptr) {
    return Fail(err, "cannot tell the picture format of \"" + o.outPath + "\"; end the name in " + PictureExtensions());
  }
  const auto store = std::make_unique<numerics::DataSetStore>();
  RenderScene scene{{}, {}, o.chart, o.qValues, o.spline};
  if (const std::string failed = LoadFiles(o, *store, scene); !failed.empty()) return Fail(err, failed);
  const GuiSession session;
  const imageexport::ExportResult written = format->write(o.outPath, o.width, o.height, [&](QPainter& painter) {
    diagram::Canvas canvas(painter, o.width, o.height);
    view->draw(scene, canvas);
  });
  if (!written.Ok()) return Fail(err, written.error);
  return 0;
}

}  // namespace app
