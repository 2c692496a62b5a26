#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "series/series_evaluation.h"

namespace series {
namespace {

constexpr double kFt = 10e9;
constexpr double kFmax = 20e9;

// Straight lines in dB against log f through 0 dB at kFt and kFmax, 10 points per decade from
// 1 GHz: the interpolated crossings are then exactly kFt and kFmax whatever the slopes.
std::vector<SweepPoint> StraightSweep(double h21Slope, double gainSlope, double k) {
  std::vector<SweepPoint> sweep;
  for (int i = 0; i <= 20; ++i) {
    const double f = 1e9 * std::pow(10.0, i / 10.0);
    sweep.push_back({f, std::pow(10.0, h21Slope / 20 * std::log10(f / kFt)),
                     std::pow(10.0, gainSlope / 10 * std::log10(f / kFmax)), k});
  }
  return sweep;
}

TEST(CheckExtraction, FlagsByTheBandsOfSlopeKAndCrossing) {
  const struct {
    double h21Slope, gainSlope, k;
    bool fmaxFromU;
    double spotRatio;  // spot values over the crossings
    bool ftFlagged, fmaxFlagged;
  } cases[] = {{-22.9, -17.1, 2, false, 1.09, false, false},  // slopes and spot just inside the bands
               {-23.1, -16.9, 2, false, 1, true, true},       // slopes just outside
               {-20, -20, 0.99, false, 1, false, true},       // MSG where k < 1
               {-20, -20, 0.99, true, 1, false, false},       // U where k < 1
               {-20, -20, 2, false, 0.89, true, true}};       // spot eleven percent off
  for (const auto& c : cases) {
    const std::vector<SweepPoint> sweep = StraightSweep(c.h21Slope, c.gainSlope, c.k);
    for (const std::size_t at : {std::size_t{0}, std::size_t{3}, sweep.size() - 1}) {  // both ends and 2 GHz
      const ExtractionCheck check = CheckExtraction(sweep, at, c.fmaxFromU, c.spotRatio * kFt, c.spotRatio * kFmax);
      ASSERT_TRUE(check.fT.slope && check.fmax.slope && check.fT.crossing && check.fmax.crossing);
      EXPECT_NEAR(*check.fT.slope, c.h21Slope, 1e-9);
      EXPECT_NEAR(*check.fmax.slope, c.gainSlope, 1e-9);
      EXPECT_NEAR(*check.fT.crossing / kFt, 1, 1e-12);
      EXPECT_NEAR(*check.fmax.crossing / kFmax, 1, 1e-12);
      EXPECT_EQ(check.k, c.k);
      EXPECT_EQ(check.FtFlagged(), c.ftFlagged) << c.h21Slope << " at " << at;
      EXPECT_EQ(check.FmaxFlagged(), c.fmaxFlagged) << c.gainSlope << " at " << at;
    }
  }
}

}  // namespace
}  // namespace series
