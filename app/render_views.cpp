#include "render_views.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "diagram/sparameter_views.h"
#include "frequency_views.h"

namespace app {
namespace {

diagram::SParameterScene SceneOf(const RenderInput& input) {
  const RenderOptions& o = input.options;
  diagram::SParameterScene scene{input.sets, {}, o.chart, o.qValues, o.spline};
  for (const std::string& file : o.files) scene.names.push_back(std::filesystem::path(file).filename().string());
  return scene;
}

template <void (*Draw)(const diagram::SParameterScene&, diagram::Canvas&)>
void DrawScene(const RenderInput& input, diagram::Canvas& canvas) {
  Draw(SceneOf(input), canvas);
}

constexpr RenderView kViews[] = {
    {"smith", DrawScene<diagram::DrawSmithView>},
    {"polar", DrawScene<diagram::DrawPolarView>},
    {"cartesian", DrawScene<diagram::DrawCartesianView>},
    {kGainView, DrawFrequencyView},
    {kStabilityView, DrawFrequencyView},
    {kImpedanceView, DrawFrequencyView},
};

}  // namespace

const RenderView* FindRenderView(std::string_view name) {
  const auto found = std::find_if(std::begin(kViews), std::end(kViews), [&](const RenderView& v) { return name == v.name; });
  return found == std::end(kViews) ? nullptr : found;
}

std::string RenderViewNames() {
  std::string names;
  for (std::size_t i = 0; i < std::size(kViews); ++i) {
    names += i == 0 ? "" : (i + 1 == std::size(kViews) ? " or " : ", ");
    names += kViews[i].name;
  }
  return names;
}

}  // namespace app
