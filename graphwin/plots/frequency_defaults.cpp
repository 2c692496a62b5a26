#include "frequency_defaults.h"

#include "numerics/rounding.h"

namespace graphwin::plots {
namespace {

constexpr double kFallbackHighestFrequency = 1e10;

}  // namespace

void SetFrequencyDefaults(diagram::Diagram& d, double highestFrequency, const FrequencyDefaults& defaults) {
  d.x.max = numerics::NiceStep(highestFrequency > 0 ? highestFrequency : kFallbackHighestFrequency);
  d.x.min = d.x.max / defaults.lowestDivisor;
  d.x.step = numerics::NiceStep(d.x.max / 50);
  d.y.min = defaults.yMin;
  d.y.max = defaults.yMax;
  d.y.step = defaults.yStep;
  d.x.cross = d.x.min;
  d.y.cross = 0;
  d.x.labelEvery = d.y.labelEvery = defaults.labelEvery;
}

}  // namespace graphwin::plots
