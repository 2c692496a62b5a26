#include <gtest/gtest.h>

#include <cmath>

#include "numerics/conversions.h"
#include "numerics/figures.h"
#include "textbook.h"

namespace numerics {
namespace {

using textbook::C;
using textbook::M2;
using textbook::Polar;

TwoPortFigures Figures(const M2& s, TwoPortState& st, const FigureInputs& in = {}) {
  st.z0 = 50;
  textbook::SetS(st, s);
  ConvertSToY(st);
  ConvertYToZ(st);
  ConvertYToPi(st);
  textbook::SetS(st, s);
  TwoPortFigures fig;
  ComputeTwoPortFigures(st, in, fig);
  return fig;
}

TwoPortFigures Figures(const M2& s) {
  TwoPortState st;
  return Figures(s, st);
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
  EXPECT_NEAR(f.u, mug, 1e-7 * mug);
  EXPECT_NEAR(f.k, 0.63 / (2 * 1e-8 * 4), 1e-3);
  EXPECT_NEAR(f.mu, 1 / 0.5, 1e-7);  // for S12 = 0 the two measures are 1/|S11| and 1/|S22|
  EXPECT_NEAR(f.muPrime, 1 / 0.4, 1e-7);
  EXPECT_TRUE(f.unconditionallyStable);
}

TEST(Figures, PassiveReciprocalNetworkHasUEqualToMag) {
  const long double s21 = 1 / std::sqrt(10.0L);  // matched 10 dB attenuator
  const TwoPortFigures f = Figures({0, s21, s21, 0});
  EXPECT_NEAR(f.k, 1.01 / 0.2, 1e-12);
  EXPECT_NEAR(f.mag, 0.1, 1e-12);  // its own insertion loss
  EXPECT_DOUBLE_EQ(f.u, f.mag);
  EXPECT_DOUBLE_EQ(f.msgOrMag, f.mag);
  EXPECT_DOUBLE_EQ(f.bestGain, f.mag);
  EXPECT_NEAR(f.mu, 10, 1e-10);
  EXPECT_EQ(f.uRatio, 0);  // (|r| - 1)^2 with |r| = 1
  // A series resistor sits at k = 1: MAG is |S21|/|S12| = 1.
  const TwoPortFigures r = Figures({1.0L / 3, 2.0L / 3, 2.0L / 3, 1.0L / 3});
  EXPECT_NEAR(r.k, 1, 1e-12);
  EXPECT_NEAR(r.msgOrMag, 1, 1e-6);
  EXPECT_DOUBLE_EQ(r.u, r.mag);
}

const M2 kStableDevice{Polar(0.45, 150), Polar(0.04, 60), Polar(2.8, 65), Polar(0.35, -40)};
const M2 kUnstableDevice{Polar(0.8, -60), Polar(0.1, 50), Polar(5, 100), Polar(0.6, -40)};

TEST(Figures, StableDeviceAgainstTextbookFormulas) {
  TwoPortState st;
  const TwoPortFigures f = Figures(kStableDevice, st);
  const long double k = textbook::Rollett(kStableDevice);
  ASSERT_GT(k, 1);
  EXPECT_NEAR(f.k, static_cast<double>(k), 1e-12);
  EXPECT_TRUE(f.unconditionallyStable);
  EXPECT_GT(f.mu, 1);
  EXPECT_GT(f.muPrime, 1);
  // MAG is the transducer gain with both ports conjugately matched at once.
  const C gs = textbook::FromValue(f.gammaMS), gl = textbook::FromValue(f.gammaML);
  EXPECT_NEAR(std::abs(textbook::GammaIn(kStableDevice, gl) - std::conj(gs)), 0, 1e-12);
  EXPECT_NEAR(std::abs(textbook::GammaOut(kStableDevice, gs) - std::conj(gl)), 0, 1e-12);
  EXPECT_NEAR(f.mag, static_cast<double>(textbook::TransducerGain(kStableDevice, gs, gl)), 1e-10);
  EXPECT_DOUBLE_EQ(f.bestGain, f.mag);
  // Re(S21 S12*) > 0 here, where the program's U is Mason's invariant.
  EXPECT_NEAR(f.u, static_cast<double>(textbook::MasonU(textbook::AdmittanceFromS(kStableDevice, 50))), 1e-9);
}

TEST(Figures, UKeepsTheMagnitudeOfTheCrossTerm) {
  // Re(S21 S12*) < 0: the cross term is subtracted as |2 Re(S12 S21*)|, not as Mason's sign.
  const M2 s{Polar(0.45, 150), Polar(0.04, -40), Polar(2.8, 65), Polar(0.35, -40)};
  const TwoPortFigures f = Figures(s);
  const C delta = s.a11 * s.a22 - s.a12 * s.a21;
  const long double den = 1 - std::norm(s.a11) - std::norm(s.a22) + std::norm(delta) -
                          std::abs(2 * (s.a12 * std::conj(s.a21)).real());
  EXPECT_NEAR(f.u, static_cast<double>(std::norm(s.a21 - s.a12) / den), 1e-9);
  EXPECT_GT(std::abs(f.u - static_cast<double>(textbook::MasonU(textbook::AdmittanceFromS(s, 50)))), 1);
}

TEST(Figures, RatioFormOfUIsMasonsForARealRatio) {
  // With S21 = 10 S12 the ratio is real and (|r| - 1)^2 equals |r - 1|^2.
  const M2 s{Polar(0.3, -70), Polar(0.05, 30), Polar(0.5, 30), Polar(0.2, -20)};
  const TwoPortFigures f = Figures(s);
  EXPECT_NEAR(f.uRatio, static_cast<double>(textbook::MasonU(textbook::AdmittanceFromS(s, 50))), 1e-9);
}

TEST(Figures, PotentiallyUnstableDevice) {
  TwoPortState st;
  TwoPortFigures f;
  f.gammaMS = MakeCartesian(0.123, 0.456);
  textbook::SetS(st, kUnstableDevice);
  ComputeTwoPortFigures(st, {}, f);
  EXPECT_NEAR(f.k, static_cast<double>(textbook::Rollett(kUnstableDevice)), 1e-12);
  ASSERT_LT(f.k, 1);
  EXPECT_FALSE(f.unconditionallyStable);
  EXPECT_EQ(f.mag, 0);
  EXPECT_NEAR(f.msgOrMag, 50, 1e-12);  // MSG = |S21| / |S12|
  EXPECT_DOUBLE_EQ(f.bestGain, f.msgOrMag);
  EXPECT_DOUBLE_EQ(f.gammaMS.first, 0.123);  // no simultaneous match: the old value stays
  EXPECT_DOUBLE_EQ(f.gammaMS.second, 0.456);
  EXPECT_LT(std::min(f.mu, f.muPrime), 1);
}

TEST(Figures, CirclesHoldWhatTheyPromise) {
  TwoPortState st;
  FigureInputs in;
  in.gainLevel = 8;
  const M2& s = kUnstableDevice;
  const TwoPortFigures f = Figures(s, st, in);
  for (int degrees = 0; degrees < 360; degrees += 45) {
    const C unit = Polar(1, degrees);
    const C onLoadCircle = textbook::FromValue(f.loadStability.centre) + static_cast<long double>(f.loadStability.radius) * unit;
    EXPECT_NEAR(static_cast<double>(std::abs(textbook::GammaIn(s, onLoadCircle))), 1, 1e-9);
    const C onSourceCircle = textbook::FromValue(f.sourceStability.centre) + static_cast<long double>(f.sourceStability.radius) * unit;
    EXPECT_NEAR(static_cast<double>(std::abs(textbook::GammaOut(s, onSourceCircle))), 1, 1e-9);
    // Operating power gain on the operating-gain circle, available gain on the other.
    const C gl = textbook::FromValue(f.operatingGain.centre) + static_cast<long double>(f.operatingGain.radius) * unit;
    const long double gp = std::norm(s.a21) * (1 - std::norm(gl)) /
                           ((1 - std::norm(textbook::GammaIn(s, gl))) * std::norm(1.0L - s.a22 * gl));
    EXPECT_NEAR(static_cast<double>(gp), 8, 1e-8);
    const C gs = textbook::FromValue(f.availableGain.centre) + static_cast<long double>(f.availableGain.radius) * unit;
    const long double ga = std::norm(s.a21) * (1 - std::norm(gs)) /
                           (std::norm(1.0L - s.a11 * gs) * (1 - std::norm(textbook::GammaOut(s, gs))));
    EXPECT_NEAR(static_cast<double>(ga), 8, 1e-8);
  }
}

TEST(Figures, TerminatedImpedancesAndVoltageGain) {
  TwoPortState st;
  FigureInputs in;
  in.loadImpedance = MakeCartesian(120, -30);
  in.sourceImpedance = MakeCartesian(20, 15);
  const TwoPortFigures f = Figures(kStableDevice, st, in);
  const C zl(120, -30), zs(20, 15);
  const C gin = textbook::GammaIn(kStableDevice, (zl - 50.0L) / (zl + 50.0L));
  const C gout = textbook::GammaOut(kStableDevice, (zs - 50.0L) / (zs + 50.0L));
  const C zin = 50.0L * (1.0L + gin) / (1.0L - gin), zout = 50.0L * (1.0L + gout) / (1.0L - gout);
  EXPECT_NEAR(Re(f.zin), static_cast<double>(zin.real()), 1e-9);
  EXPECT_NEAR(Im(f.zin), static_cast<double>(zin.imag()), 1e-9);
  EXPECT_NEAR(Re(f.zout), static_cast<double>(zout.real()), 1e-9);
  EXPECT_NEAR(Im(f.zout), static_cast<double>(zout.imag()), 1e-9);
  const M2 y = textbook::AdmittanceFromS(kStableDevice, 50);
  const C av = -y.a21 / (y.a22 + 1.0L / zl);
  EXPECT_NEAR(Re(f.voltageGain), static_cast<double>(av.real()), 1e-9);
  EXPECT_NEAR(Im(f.voltageGain), static_cast<double>(av.imag()), 1e-9);
}

TEST(Figures, GuardsChangeTheWorkingMatrix) {
  TwoPortState st;
  const TwoPortFigures f = Figures({Polar(1, 30), 0, Polar(2, 0), Polar(0.5, 0)}, st);
  EXPECT_DOUBLE_EQ(Abs(st.s.m11), 0.99999999);   // lossless input pulled inside the unit circle
  EXPECT_DOUBLE_EQ(Re(st.s.m12), 1e-8);          // reverse transmission lifted before k
  EXPECT_TRUE(std::isfinite(f.mug));
  EXPECT_GT(f.mug, 1e7);
  EXPECT_LE(f.k, 1e12);
}

TEST(Figures, GainFiguresAloneEqualTheFullRoutineBitForBit) {
  const M2 cases[] = {kStableDevice, kUnstableDevice,
                      {Polar(1, 30), 0, Polar(2, 0), Polar(0.5, 0)},  // both guards fire
                      {0, Polar(0.3, 10), Polar(0.3, 10), 0}};        // passive, reciprocal
  for (const M2& s : cases) {
    TwoPortState full;
    TwoPortState alone;
    textbook::SetS(full, s);
    textbook::SetS(alone, s);
    TwoPortFigures f;
    TwoPortFigures g;
    ComputeTwoPortFigures(full, {}, f);
    ComputeGainFigures(alone, g);
    for (const auto member : {&TwoPortFigures::k, &TwoPortFigures::mu, &TwoPortFigures::muPrime, &TwoPortFigures::mag,
                              &TwoPortFigures::mug, &TwoPortFigures::msgOrMag, &TwoPortFigures::bestGain,
                              &TwoPortFigures::u, &TwoPortFigures::uRatio}) {
      EXPECT_EQ(g.*member, f.*member);
    }
    EXPECT_EQ(g.unconditionallyStable, f.unconditionallyStable);
    // The guarded S-parameters are what the caller goes on with.
    EXPECT_EQ(Re(alone.s.m11), Re(full.s.m11));
    EXPECT_EQ(Re(alone.s.m12), Re(full.s.m12));
    EXPECT_EQ(Im(alone.detS), Im(full.detS));
  }
}

TEST(Figures, ArgumentFreeFormUsesTheWorkingState) {
  textbook::SetS(WorkingState(), kStableDevice);
  ComputeTwoPortFigures();
  EXPECT_NEAR(WorkingFigures().k, static_cast<double>(textbook::Rollett(kStableDevice)), 1e-12);
}

}  // namespace
}  // namespace numerics
