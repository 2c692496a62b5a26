#include "series_settings.h"

#include "numerics/prefixed_number.h"

namespace series {

SeriesSettings DefaultSeriesSettings() {
  SeriesSettings settings;
  settings.fo = numerics::ParseValueText(kDefaultFoText).value;
  settings.lgnd = numerics::ParseValueText(kDefaultLgndText).value;
  settings.area = numerics::ParseValueText(kDefaultAreaText).value;
  return settings;
}

}  // namespace series
