#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "series/series_evaluation.h"
#include "series_fixtures.h"

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

struct StraightCase {
  const char* name;
  double h21Slope, gainSlope, k;
  bool fmaxFromU;
  double spotRatio;  // spot values over the crossings
  bool ftFlagged, fmaxFlagged;
};

class StraightSweepTest : public testing::TestWithParam<StraightCase> {};

TEST_P(StraightSweepTest, FlagsByTheBandsOfSlopeKAndCrossing) {
  const StraightCase& c = GetParam();
  const std::vector<SweepPoint> sweep = StraightSweep(c.h21Slope, c.gainSlope, c.k);
  for (const std::size_t analysis : {std::size_t{0}, std::size_t{3}, sweep.size() - 1}) {  // both ends and 2 GHz
    const ExtractionCheck check =
        CheckExtraction(sweep, analysis, c.fmaxFromU, c.spotRatio * kFt, c.spotRatio * kFmax);
    ASSERT_TRUE(check.fT.slope && check.fmax.slope && check.fT.crossing && check.fmax.crossing);
    EXPECT_NEAR(*check.fT.slope, c.h21Slope, 1e-9);
    EXPECT_NEAR(*check.fmax.slope, c.gainSlope, 1e-9);
    EXPECT_NEAR(*check.fT.crossing / kFt, 1, 1e-12);
    EXPECT_NEAR(*check.fmax.crossing / kFmax, 1, 1e-12);
    EXPECT_EQ(check.k, c.k);
    EXPECT_EQ(check.FtFlagged(), c.ftFlagged) << analysis;
    EXPECT_EQ(check.FmaxFlagged(), c.fmaxFlagged) << analysis;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StraightSweepTest,
    testing::Values(StraightCase{"SlopesAndSpotJustInsideTheBands", -22.9, -17.1, 2, false, 1.09, false, false},
                    StraightCase{"SlopesJustOutsideTheBand", -23.1, -16.9, 2, false, 1, true, true},
                    StraightCase{"MsgWhereKBelowOne", -20, -20, 0.99, false, 1, false, true},
                    StraightCase{"SpotElevenPercentAbove", -20, -20, 2, false, 1.11, true, true},
                    StraightCase{"SpotElevenPercentBelow", -20, -20, 2, false, 0.89, true, true}),
    [](const testing::TestParamInfo<StraightCase>& info) { return std::string(info.param.name); });

// Fixture files of the transistor model, 10 points per decade from 1 MHz to 40 GHz in Hz.
std::string ModelFile(double ic) {
  tools::Circuit device;
  device.ic = ic;
  std::string text = "! Ic=" + std::to_string(ic) + "\n";
  for (int i = 0; i <= 46; ++i) {
    const double f = 1e6 * std::pow(10.0, i / 10.0);
    text += tools::DataLine(std::to_string(f), tools::ScatteringAt(device, f));
  }
  return text;
}

// Where a falling gain of the model crosses 1, by bisection on log f between 1 and 100 GHz.
double UnityGainFrequency(const std::function<long double(double f)>& gain) {
  double low = 1e9, high = 1e11;
  for (int i = 0; i < 60; ++i) {
    const double middle = std::sqrt(low * high);
    (gain(middle) > 1 ? low : high) = middle;
  }
  return low;
}

struct ModelCase {
  const char* name;
  double ic, fo;
  bool fmaxFromU;
  double h21Slope;  // dB per decade at fo: -20 well above the beta corner fT/120, 0 well below it
  bool ftFlagged, fmaxFromMsg, fmaxFlagged;
};

class ModelFixtureTest : public testing::TestWithParam<ModelCase> {};

TEST_P(ModelFixtureTest, FlagsByTheAnalysisFrequency) {
  const ModelCase& c = GetParam();
  SeriesSettings settings = DefaultSeriesSettings();
  settings.fo = c.fo;
  settings.multiplier = kMultiplierHz;
  settings.fmaxFromU = c.fmaxFromU;
  const FileEvaluation file = EvaluateSeriesText(ModelFile(c.ic), "model.s2p", settings);
  ASSERT_EQ(file.error, "");
  const ExtractionCheck& check = file.figures.check;
  ASSERT_TRUE(check.made && check.fT.slope && check.fT.crossing && check.fmax.crossing);
  EXPECT_NEAR(*check.fT.slope, c.h21Slope, 0.5);
  EXPECT_EQ(check.FtFlagged(), c.ftFlagged);
  EXPECT_EQ(check.fmaxFromMsg, c.fmaxFromMsg);
  EXPECT_EQ(check.FmaxFlagged(), c.fmaxFlagged);

  tools::Circuit device;
  EXPECT_NEAR(*check.fT.crossing / tools::ClosedFormFt(device.device, c.ic), 1, 0.05);
  const double fmax = UnityGainFrequency([&](double f) {
    const fixtures::M2 s = fixtures::ModelScattering(c.ic, f);
    return c.fmaxFromU ? fixtures::MasonU(s, 50) : fixtures::BestGain(s);
  });
  EXPECT_NEAR(*check.fmax.crossing / fmax, 1, 0.05);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ModelFixtureTest,
    testing::Values(ModelCase{"TwentyDbPerDecadeRegion", 40e-3, 3e9, false, -20, false, false, false},
                    ModelCase{"BelowTheBetaCorner", 10e-3, 10e6, false, 0, true, true, true},
                    ModelCase{"MsgWhereKBelowOne", 10e-3, 2e9, false, -20, false, true, true},
                    ModelCase{"UWhereKBelowOne", 10e-3, 2e9, true, -20, false, false, false}),
    [](const testing::TestParamInfo<ModelCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace series
