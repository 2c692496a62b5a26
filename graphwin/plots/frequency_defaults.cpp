#include "frequency_defaults.h"

#include "numerics/rounding.h"

namespace graphwin::plots {
namespace {

constexpr double kFallbackHighestFrequency = 1e10;

}  // namespace

void SetFrequencyDefaults(diagram::Diagram& d, double highestFrequency, const FrequencyDefaults& defaults) {
  d.xMax = numerics::NiceStep(highestFrequency > 0 ? highestFrequency : kFallbackHighestFrequency);
  d.xMin = d.xMax / defaults.lowestDivisor;
  d.xStep = numerics::NiceStep(d.xMax / 50);
  d.yMin = defaults.yMin;
  d.yMax = defaults.yMax;
  d.yStep = defaults.yStep;
  d.xCross = d.xMin;
  d.yCross = 0;
  d.xLabelEvery = d.yLabelEvery = defaults.labelEvery;
  d.firstIndex = 0;
}

}  // namespace graphwin::plots
