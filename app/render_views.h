#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagram/canvas.h"
#include "numerics/data_set.h"
#include "render_options.h"

// The pictures of S-parameter files that netrix --render can draw, by name.
namespace app {

struct RenderInput {
  const RenderOptions& options;
  std::vector<const numerics::TwoPortDataSet*> sets;  // one per file, in the order given
};

struct RenderView {
  const char* name;
  void (*draw)(const RenderInput& input, diagram::Canvas& canvas);
  std::string (*table)(const RenderInput& input);  // the curves as CSV, for --data
};

// nullptr when no view has that name.
const RenderView* FindRenderView(std::string_view name);
// "smith, polar, cartesian, gain, reflection or transmission", for messages.
std::string RenderViewNames();

}  // namespace app
