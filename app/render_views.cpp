#include "render_views.h"

#include "frequency_views.h"
#include "graphwin/plots/curve_table.h"
#include "named_table.h"
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

std::string FrequencyTable(const RenderInput& input) { return graphwin::plots::CurveTableCsv(FrequencyPlotOf(input)); }

constexpr RenderView kViews[] = {
    {"smith", DrawView<SmithView>, TableOf<SmithView>},
    {"polar", DrawView<PolarView>, TableOf<PolarView>},
    {"cartesian", DrawView<CartesianView>, TableOf<CartesianView>},
    {kGainView, DrawFrequencyView, FrequencyTable},
    {kStabilityView, DrawFrequencyView, FrequencyTable},
    {kImpedanceView, DrawFrequencyView, FrequencyTable},
    {kReflectionView, DrawView<ReflectionView>, TableOf<ReflectionView>},
    {kTransmissionView, DrawView<TransmissionView>, TableOf<TransmissionView>},
};

}  // namespace

const RenderView* FindRenderView(std::string_view name) { return FindByName(kViews, name); }

std::string RenderViewNames() { return NameList(kViews, " or "); }

}  // namespace app
