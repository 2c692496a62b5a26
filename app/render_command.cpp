#include "render_command.h"

#include <QPainter>
#include <memory>
#include <ostream>

#include "command_failure.h"
#include "diagram/canvas.h"
#include "numerics/file_reader.h"
#include "numerics/file_writer.h"
#include "output_safety.h"
#include "render_options.h"
#include "render_output.h"
#include "render_views.h"
#include "series_render.h"

namespace app {
namespace {

// Reads the files into a store of the command's own; the first failure is the message. What a
// read left out or did not apply goes to err.
std::string LoadFiles(const RenderOptions& o, numerics::DataSetStore& store, RenderInput& input, std::ostream& err) {
  const numerics::ReadingChoice choice{o.touchstone ? numerics::FileReading::Touchstone : numerics::FileReading::Plain};
  for (const std::string& file : o.files) {
    const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(store, file, choice);
    if (outcome.status != numerics::LoadStatus::Loaded) return outcome.message;
    for (const std::string& note : outcome.notes) err << note << '\n';
    input.sets.push_back(&store.sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)]);
  }
  return {};
}

// The view's curves as its window's "Export Curves as CSV..." writes them.
std::string WriteCurveTable(const RenderView& view, const RenderInput& input) {
  const std::string& path = input.options.dataPath;
  const numerics::FileWriteOutcome written = numerics::WriteFileAtomically(path, view.table(input));
  return written.Ok() ? std::string() : CannotWriteOutput(path, written);
}

}  // namespace

int RunRenderCommand(const std::vector<std::string>& args, std::ostream&, std::ostream& err) {
  if (const SeriesView* series = args.empty() ? nullptr : FindSeriesView(args.front())) {
    return RunSeriesRender(*series, {args.begin() + 1, args.end()}, err);
  }
  const ParsedRenderOptions parsed = ParseRenderOptions(args);
  if (!parsed.error.empty()) return Fail(err, kRenderMode, parsed.error);
  const RenderOptions& o = parsed.options;
  const RenderView* view = FindRenderView(o.view);
  if (view == nullptr) {
    return Fail(err, kRenderMode,
                "unknown view \"" + o.view + "\"; use " + RenderViewNames() + " for S-parameter files, or " +
                    SeriesViewNames() + " for a bias series");
  }
  const PictureFormat* format = FindPictureFormat(o.outPath);
  if (format == nullptr) return Fail(err, kRenderMode, UnknownPictureFormat(o.outPath));
  for (const std::string* output : {&o.outPath, &o.dataPath}) {
    if (output->empty()) continue;
    const std::string refused = RefuseOutput(*output, o.files);
    if (!refused.empty()) return Fail(err, kRenderMode, refused);
  }
  const auto store = std::make_unique<numerics::DataSetStore>();
  RenderInput input{o, {}};
  const std::string failed = LoadFiles(o, *store, input, err);
  if (!failed.empty()) return Fail(err, kRenderMode, failed);
  const GuiSession session;
  const imageexport::ExportResult written = format->write(o.outPath, o.width, o.height, [&](QPainter& painter) {
    diagram::Canvas canvas(painter, o.width, o.height);
    view->draw(input, canvas);
  });
  if (!written.Ok()) return Fail(err, kRenderMode, written.error);
  if (!o.dataPath.empty()) {
    const std::string error = WriteCurveTable(*view, input);
    if (!error.empty()) return Fail(err, kRenderMode, error);
  }
  return 0;
}

}  // namespace app
