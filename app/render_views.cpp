#include "render_views.h"

#include <algorithm>
#include <iterator>

namespace app {
namespace {

constexpr RenderView kViews[] = {
    {"smith", diagram::DrawSmithView},
    {"polar", diagram::DrawPolarView},
    {"cartesian", diagram::DrawCartesianView},
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
