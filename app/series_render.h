#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "diagram/pages/page_scene.h"

// The figure-of-merit views of netrix --render: the graphs of the output pages, drawn from a bias
// series evaluated with the options of netrix --series.
namespace app {

struct SeriesView {
  const char* name;
  diagram::pages::OutputPage page;
};

// nullptr when no series view has that name.
const SeriesView* FindSeriesView(std::string_view name);
// "ft-fmax, k-mag or stability-limit", for messages.
std::string SeriesViewNames();

// args after the view: --out PATH [--size WxH] [--connect] [series options] FILE...
// Returns the process exit status.
int RunSeriesRender(const SeriesView& view, const std::vector<std::string>& args, std::ostream& err);

}  // namespace app
