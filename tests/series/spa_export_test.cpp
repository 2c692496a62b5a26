#include <gtest/gtest.h>

#include <string>

#include "series/spa_export.h"

namespace series {
namespace {

// Values whose texts follow by hand from the formats: prefix groups of three with two
// decimals in eight places, the group from 1 to 999 marked "0", zero as "0.00" and "0".
class SpaExportTest : public testing::Test {
 protected:
  void SetUp() override {
    list_.Append({"/m/a.s2p", "/m/with blank.s2p"});
    settings_.comment = "BFR520 at 3 V";
  }
  SeriesList list_;
  SeriesArrays arrays_ = {{1.5e-3, 12.3456e9, 25e9, 15.4321, 0, 0.56789, 3.5e9},
                          {0.5, 50, 2e12, -3.5, 0, 12.5, 0}};
  SeriesSettings settings_ = DefaultSeriesSettings();
};

TEST_F(SpaExportTest, WritesTheSeriesByteForByte) {
  EXPECT_EQ(SpaContent(list_, arrays_, settings_),
            "Data derived by lioraira: BFR520 at 3 V\n"
            "                  I/A        fT/Hz        fmax/Hz      MAG/dB       k       f(k>1)\n"
            "/m/a.s2p     1.50m    12.35G    25.00G  15.432  0.5679     3.50G\n"
            "/m/with blank.s2p   500.00m    50.000     2.00T  -3.500 12.5000     0.000\n");
}

// j = 1000 I / area: 15 uA and 5 mA per square micrometre.
TEST_F(SpaExportTest, AddsTheDensityColumnWithItsWindows1252Header) {
  settings_.density = true;
  settings_.area = 100;
  settings_.comment.clear();
  EXPECT_EQ(SpaContent(list_, arrays_, settings_),
            "Data derived by lioraira: \n"
            "                  I/A        fT/Hz        fmax/Hz      MAG/dB       k       f(k>1)  j/(mA/\xB5m\xB2)\n"
            "/m/a.s2p     1.50m    12.35G    25.00G  15.432  0.5679     3.50G    15.00m\n"
            "/m/with blank.s2p   500.00m    50.000     2.00T  -3.500 12.5000     0.000     5.000\n");
}

}  // namespace
}  // namespace series
