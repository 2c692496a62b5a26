#pragma once

#include <string>
#include <string_view>

#include "diagram/canvas.h"
#include "diagram/sparameter_views.h"

// The S-parameter pictures netrix --render can draw, by name.
namespace app {

struct RenderView {
  const char* name;
  void (*draw)(const diagram::SParameterScene& scene, diagram::Canvas& canvas);
};

// nullptr when no view has that name.
const RenderView* FindRenderView(std::string_view name);
// "smith, polar or cartesian", for messages.
std::string RenderViewNames();

}  // namespace app
