#include <gtest/gtest.h>

#include "series/spa_export.h"

namespace series {
namespace {

// The header without a comment and the density column, j = 1000 I / area = 15 uA per square
// micrometre, under its Windows-1252 title; the other columns' formats are those of the table.
TEST(SpaContent, AddsTheDensityColumnWithItsWindows1252Header) {
  SeriesList list;
  list.Append({"/m/a.s2p"});
  SeriesSettings settings = DefaultSeriesSettings();
  settings.density = true;
  settings.area = 100;
  EXPECT_EQ(SpaContent(list, {{1.5e-3, 12.3456e9, 25e9, 15.4321, 0, 0.56789, 3.5e9}}, settings),
            "Data derived by lioraira: \n"
            "                  I/A        fT/Hz        fmax/Hz      MAG/dB       k       f(k>1)  j/(mA/\xB5m\xB2)\n"
            "/m/a.s2p     1.50m    12.35G    25.00G  15.432  0.5679     3.50G    15.00m\n");
}

}  // namespace
}  // namespace series
