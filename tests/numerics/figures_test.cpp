#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <utility>

#include "numerics/conversions.h"
#include "numerics/figures.h"
#include "numerics/file_reader.h"
#include "numerics/text_file.h"
#include "textbook.h"

namespace numerics {
namespace {

using textbook::C;
using textbook::M2;
using textbook::Polar;

// The figures of s with Z and the pi model converted first, as the program does; the working
// state after the computation is left in *state when asked for.
TwoPortFigures Figures(const M2& s, const FigureInputs& in = {}, TwoPortState* state = nullptr) {
  TwoPortState st;
  st.z0 = 50;
  textbook::SetS(st, s);
  ConvertSToY(st);
  ConvertYToZ(st);
  ConvertYToPi(st);
  textbook::SetS(st, s);
  TwoPortFigures fig;
  ComputeTwoPortFigures(st, in, fig);
  if (state != nullptr) *state = st;
  return fig;
}

TEST(Figures, UnilateralAmplifier) {
  const M2 s{Polar(0.5, -60), 0, Polar(4, 120), Polar(0.4, -30)};
  const TwoPortFigures f = Figures(s);
  const double mug = 16 / (0.75 * 0.84);
  EXPECT_NEAR(f.mug, mug, 1e-12);
  EXPECT_NEAR(f.inputMismatch, 1 / 0.75, 1e-14);
  // S12 is lifted to 1e-8, so k is huge and MAG tends to MUG; k - sqrt(k^2 - 1) cancels to
  // about 1e-5 relative even in extended precision.
  EXPECT_NEAR(f.mag, mug, 1e-5 * mug);
  EXPECT_NEAR(f.k, 0.63 / (2 * 1e-8 * 4), 1e-3);
  EXPECT_TRUE(f.unconditionallyStable);
}

const M2 kStableDevice{Polar(0.45, 150), Polar(0.04, 60), Polar(2.8, 65), Polar(0.35, -40)};
const M2 kUnstableDevice{Polar(0.8, -60), Polar(0.1, 50), Polar(5, 100), Polar(0.6, -40)};

TEST(Figures, StableDeviceAgainstTextbookFormulas) {
  const TwoPortFigures f = Figures(kStableDevice);
  ASSERT_GT(f.k, 1);
  EXPECT_TRUE(f.unconditionallyStable);
  // MAG is the transducer gain with both ports conjugately matched at once.
  const C gs = textbook::FromValue(f.gammaMS), gl = textbook::FromValue(f.gammaML);
  EXPECT_NEAR(std::abs(textbook::GammaIn(kStableDevice, gl) - std::conj(gs)), 0, 1e-12);
  EXPECT_NEAR(std::abs(textbook::GammaOut(kStableDevice, gs) - std::conj(gl)), 0, 1e-12);
  EXPECT_NEAR(f.mag, static_cast<double>(textbook::TransducerGain(kStableDevice, gs, gl)), 1e-10);
  EXPECT_DOUBLE_EQ(f.bestGain, f.mag);
}

// The gain figures of k < 1 are held against the examples; here the state around them.
TEST(Figures, PotentiallyUnstableDevice) {
  TwoPortState st;
  TwoPortFigures f;
  f.gammaMS = MakeCartesian(0.123, 0.456);
  textbook::SetS(st, kUnstableDevice);
  ComputeTwoPortFigures(st, {}, f);
  ASSERT_LT(f.k, 1);
  EXPECT_FALSE(f.unconditionallyStable);
  EXPECT_NEAR(f.bestGain, 50, 1e-12);  // MSG = |S21| / |S12|
  EXPECT_DOUBLE_EQ(f.gammaMS.first, 0.123);  // no simultaneous match: the old value stays
  EXPECT_DOUBLE_EQ(f.gammaMS.second, 0.456);
}

TEST(Figures, CirclesHoldWhatTheyPromise) {
  const M2& s = kUnstableDevice;
  const TwoPortFigures f = Figures(s, {.gainLevel = 8});
  for (int degrees = 0; degrees < 360; degrees += 45) {
    const auto on = [&](const Circle& c) { return textbook::FromValue(c.centre) + Polar(c.radius, degrees); };
    EXPECT_NEAR(static_cast<double>(std::abs(textbook::GammaIn(s, on(f.loadStability)))), 1, 1e-9);
    EXPECT_NEAR(static_cast<double>(std::abs(textbook::GammaOut(s, on(f.sourceStability)))), 1, 1e-9);
    // Operating power gain on the operating-gain circle, available gain on the other.
    const C gl = on(f.operatingGain), gs = on(f.availableGain);
    const long double gp = std::norm(s.a21) * (1 - std::norm(gl)) /
                           ((1 - std::norm(textbook::GammaIn(s, gl))) * std::norm(1.0L - s.a22 * gl));
    EXPECT_NEAR(static_cast<double>(gp), 8, 1e-8);
    const long double ga = std::norm(s.a21) * (1 - std::norm(gs)) /
                           (std::norm(1.0L - s.a11 * gs) * (1 - std::norm(textbook::GammaOut(s, gs))));
    EXPECT_NEAR(static_cast<double>(ga), 8, 1e-8);
  }
}

TEST(Figures, TerminatedImpedancesAndVoltageGain) {
  const TwoPortFigures f =
      Figures(kStableDevice, {.sourceImpedance = MakeCartesian(20, 15), .loadImpedance = MakeCartesian(120, -30)});
  const C zl(120, -30), zs(20, 15);
  const C gin = textbook::GammaIn(kStableDevice, (zl - 50.0L) / (zl + 50.0L));
  const C gout = textbook::GammaOut(kStableDevice, (zs - 50.0L) / (zs + 50.0L));
  const C zin = 50.0L * (1.0L + gin) / (1.0L - gin), zout = 50.0L * (1.0L + gout) / (1.0L - gout);
  textbook::ExpectNear(f.zin, zin, 1e-11);
  textbook::ExpectNear(f.zout, zout, 1e-11);
  const M2 y = textbook::AdmittanceFromS(kStableDevice, 50);
  textbook::ExpectNear(f.voltageGain, -y.a21 / (y.a22 + 1.0L / zl), 1e-11);
}

TEST(Figures, GuardsChangeTheWorkingMatrix) {
  TwoPortState st;
  const TwoPortFigures f = Figures({Polar(1, 30), 0, Polar(2, 0), Polar(0.5, 0)}, {}, &st);
  EXPECT_DOUBLE_EQ(Abs(st.s.m11), 0.99999999);  // lossless input pulled inside the unit circle
  EXPECT_TRUE(std::isfinite(f.mug));
  EXPECT_GT(f.mug, 1e7);
  EXPECT_LE(f.k, 1e12);
}

// The example files: the amplifier in the plain format, the series as the Touchstone files they are.
std::vector<TwoPortDataSet> ExampleDataSets() {
  std::vector<std::string> paths = {std::string(NETRIX_SOURCE_DIR) + "/examples/amplifier.s2p"};
  const std::string_view extensions[] = {".s2p"};
  for (const std::string& p : FilesInFolder(std::string(NETRIX_SOURCE_DIR) + "/examples/series", extensions)) {
    paths.push_back(p);
  }
  std::vector<TwoPortDataSet> sets;
  for (const std::string& path : paths) {
    DataSetStore store;
    const FileReading reading = sets.empty() ? FileReading::Plain : FileReading::Touchstone;
    EXPECT_EQ(LoadTwoPortFile(store, path, {reading, 50}).status, LoadStatus::Loaded) << path;
    sets.push_back(store.sets[0]);
  }
  return sets;
}

TEST(Figures, AgreeWithTheTextbookInLongDoubleOnTheExamples) {
  int points = 0;
  for (const TwoPortDataSet& set : ExampleDataSets()) {
    for (int i = 0; i < set.pointCount; ++i, ++points) {
      TwoPortState st;
      CopyPointToState(set.points[static_cast<std::size_t>(i)], st);
      const M2 s{textbook::FromValue(st.s.m11), textbook::FromValue(st.s.m12), textbook::FromValue(st.s.m21),
                 textbook::FromValue(st.s.m22)};
      TwoPortState alone = st;
      TwoPortFigures f, g;
      ComputeTwoPortFigures(st, {}, f);
      ComputeGainFigures(alone, g);  // the same steps, without circles and terminations
      for (const auto member : {&TwoPortFigures::k, &TwoPortFigures::mu, &TwoPortFigures::muPrime,
                                &TwoPortFigures::mag, &TwoPortFigures::msgOrMag, &TwoPortFigures::mug,
                                &TwoPortFigures::u, &TwoPortFigures::uRatio}) {
        EXPECT_EQ(g.*member, f.*member);
      }
      const textbook::Figures e = textbook::GainFigures(s);
      const std::pair<double, long double> pairs[] = {{f.k, e.k},   {f.mu, e.mu},   {f.muPrime, e.muPrime},
                                                      {f.mag, e.mag}, {f.msgOrMag, e.msgOrMag}, {f.mug, e.mug},
                                                      {f.u, e.u},   {f.uRatio, e.uRatio}};
      for (std::size_t n = 0; n < std::size(pairs); ++n) {  // in the order of textbook::Figures
        const double expected = static_cast<double>(pairs[n].second);
        EXPECT_NEAR(pairs[n].first, expected, 1e-12 * std::fabs(expected)) << "figure " << n << " at point " << i;
      }
    }
  }
  EXPECT_EQ(points, 13 * 200);
}

}  // namespace
}  // namespace numerics
