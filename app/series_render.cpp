#include "series_render.h"

#include <QPainter>
#include <ostream>

#include "command_failure.h"
#include "diagram/canvas.h"
#include "series/series_evaluation.h"
#include "diagram/pages/page_graphs.h"
#include "output_safety.h"
#include "render_options.h"
#include "named_table.h"
#include "render_output.h"
#include "series_command.h"
#include "series_options.h"

namespace app {
namespace {

using diagram::pages::OutputPage;

constexpr SeriesView kSeriesViews[] = {
    {"ft-fmax", OutputPage::FtFmax},
    {"k-mag", OutputPage::KMag},
    {"stability-limit", OutputPage::StabilityLimit},
};

struct SeriesRenderOptions {
  SeriesOptions series;
  int width = 768;
  int height = 576;
  bool connect = false;
};

// Takes --size and --connect; everything else is the series command's.
std::string ParseSeriesRenderOptions(const std::vector<std::string>& args, SeriesRenderOptions& o) {
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--connect") {
      o.connect = true;
    } else if (args[i] == "--size") {
      if (i + 1 == args.size()) return "--size needs a value";
      if (std::string error = ParseSize(args[++i], o.width, o.height); !error.empty()) return error;
    } else {
      rest.push_back(args[i]);
    }
  }
  std::string error;
  if (!ParseSeriesOptions(rest, o.series, error)) return error;
  if (!o.series.outPath) return "--out PATH is missing, for example --out ft-fmax.png";
  if (o.series.files.empty()) return "name the files of the bias series to draw, up to 40";
  return {};
}

}  // namespace

const SeriesView* FindSeriesView(std::string_view name) { return FindByName(kSeriesViews, name); }

std::string SeriesViewNames() { return NameList(kSeriesViews, " or "); }

int RunSeriesRender(const SeriesView& view, const std::vector<std::string>& args, std::ostream& err) {
  SeriesRenderOptions o;
  if (const std::string error = ParseSeriesRenderOptions(args, o); !error.empty()) return Fail(err, kRenderMode, error);
  const std::string& outPath = *o.series.outPath;
  const PictureFormat* format = FindPictureFormat(outPath);
  if (format == nullptr) return Fail(err, kRenderMode, UnknownPictureFormat(outPath));
  const std::string refused = RefuseOutput(outPath, o.series.files);
  if (!refused.empty()) return Fail(err, kRenderMode, refused);
  const series::SeriesList list = MakeSeries(o.series.files, err);
  diagram::pages::PageScene scene{{}, o.series.settings, o.connect, {}};
  const series::SeriesEvaluation evaluation = series::EvaluateSeries(list, scene.settings, scene.results);
  for (const std::string& message : evaluation.messages) err << message << '\n';
  if (!evaluation.completed) return 1;
  const GuiSession session;
  const imageexport::ExportResult written = format->write(outPath, o.width, o.height, [&](QPainter& painter) {
    diagram::Canvas canvas(painter, o.width, o.height);
    diagram::pages::RoutineOf(view.page)(scene, canvas);
  });
  if (!written.Ok()) return Fail(err, kRenderMode, written.error);
  return 0;
}

}  // namespace app
