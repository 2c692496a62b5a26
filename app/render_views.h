#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagram/canvas.h"
#include "diagram/smith_chart.h"
#include "numerics/data_set.h"

// The pictures netrix --render can draw, one draw function per view, each a complete redraw
// on the program-wide diagram state.
namespace app {

struct RenderScene {
  std::vector<const numerics::TwoPortDataSet*> sets;
  std::vector<std::string> names;  // one per data set, shown beside its curves
  diagram::ChartKind chart = diagram::ChartKind::Impedance;
  std::vector<double> qValues;
  bool spline = true;
};

struct RenderView {
  const char* name;
  void (*draw)(const RenderScene& scene, diagram::Canvas& canvas);
};

// nullptr when no view has that name.
const RenderView* FindRenderView(std::string_view name);
// "smith, polar or cartesian", for messages.
std::string RenderViewNames();

}  // namespace app
