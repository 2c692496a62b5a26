#include "render_views.h"

#include <algorithm>
#include <iterator>

#include "gain_view.h"
#include "graphwin/plots/curve_table.h"
#include "sparameter_view.h"

namespace app {
namespace {

using ViewOf = SParameterView (*)(const RenderInput& input);

template <ViewOf View>
void DrawView(const RenderInput& input, diagram::Canvas& canvas) {
  DrawSParameterView(input, View(input), canvas);
}

template <ViewOf View>
std::string TableOf(const RenderInput& input) {
  return SParameterTable(input, View(input));
}

std::string GainTable(const RenderInput& input) { return graphwin::plots::CurveTableCsv(GainPlotOf(input)); }

constexpr RenderView kViews[] = {
    {"smith", DrawView<SmithView>, TableOf<SmithView>},
    {"polar", DrawView<PolarView>, TableOf<PolarView>},
    {"cartesian", DrawView<CartesianView>, TableOf<CartesianView>},
    {kGainView, DrawGainView, GainTable},
    {kReflectionView, DrawView<ReflectionView>, TableOf<ReflectionView>},
    {kTransmissionView, DrawView<TransmissionView>, TableOf<TransmissionView>},
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
