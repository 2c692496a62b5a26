#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "numerics/conversions.h"
#include "textbook.h"

namespace numerics {
namespace {

using textbook::C;
using textbook::FromValue;
using textbook::M2;

constexpr long double kZ0 = 50;

void ExpectNear(const ComplexValue& actual, C expected, double relative = 1e-12) {
  const double scale = 1 + static_cast<double>(std::abs(expected));
  EXPECT_NEAR(Re(actual), static_cast<double>(expected.real()), relative * scale);
  EXPECT_NEAR(Im(actual), static_cast<double>(expected.imag()), relative * scale);
}

void ExpectMatrixNear(const Matrix2& actual, const M2& expected, double relative = 1e-12) {
  ExpectNear(actual.m11, expected.a11, relative);
  ExpectNear(actual.m12, expected.a12, relative);
  ExpectNear(actual.m21, expected.a21, relative);
  ExpectNear(actual.m22, expected.a22, relative);
}

TwoPortState StateWithS(const M2& s) {
  TwoPortState st;
  st.z0 = static_cast<double>(kZ0);
  textbook::SetS(st, s);
  return st;
}

// S of a network given by its chain matrix (Pozar, table 4.2).
M2 SFromChain(const M2& abcd) {
  const C a = abcd.a11, b = abcd.a12 / kZ0, c = abcd.a21 * kZ0, d = abcd.a22;
  const C den = a + b + c + d;
  return {(a + b - c - d) / den, 2.0L * (a * d - abcd.a12 * abcd.a21) / den, 2.0L / den, (-a + b - c + d) / den};
}

TEST(Conversions, SeriesResistor) {
  // 50 ohm in series between 50 ohm ports: S11 = R/(R + 2 z0), S21 = 2 z0/(R + 2 z0).
  TwoPortState st = StateWithS({1.0L / 3, 2.0L / 3, 2.0L / 3, 1.0L / 3});
  ConvertSToY(st);
  ExpectMatrixNear(st.y, {0.02L, -0.02L, -0.02L, 0.02L});
  ConvertYToH(st);
  ExpectMatrixNear(st.h, {50.0L, 1.0L, -1.0L, 0.0L}, 1e-10);  // short-circuit gain -1, no output admittance
  ConvertYToPi(st);
  ExpectNear(st.pi.series, 0.02L);
  ExpectNear(st.pi.inputShunt, 0.0L);
  ExpectNear(st.pi.transadmittance, 0.0L);
  ExpectNear(st.pi.outputShunt, 0.0L);
}

TEST(Conversions, ShuntCapacitorBehindSeriesResistor) {
  const long double r = 25;
  const C yc(0, 2 * 3.14159265358979323846L * 1e9L * 2e-12L);  // 2 pF at 1 GHz
  const M2 chain{1.0L + r * yc, r, yc, 1.0L};
  TwoPortState st = StateWithS(SFromChain(chain));
  ConvertSToY(st);
  ExpectMatrixNear(st.y, {1 / r, -1 / r, -1 / r, 1 / r + yc});
  ConvertYToChain(st);
  ExpectMatrixNear({st.chain.a, st.chain.b, st.chain.c, st.chain.d}, chain, 1e-11);
}

TEST(Conversions, MatchedAttenuator) {
  const long double k = std::pow(10.0L, 0.5L);  // 10 dB
  const long double s21 = 1 / k;
  const long double shunt = kZ0 * (k + 1) / (k - 1);
  const long double series = kZ0 * (k * k - 1) / (2 * k);
  TwoPortState st = StateWithS({0, s21, s21, 0});
  ConvertSToY(st);
  ExpectMatrixNear(st.y, {1 / shunt + 1 / series, -1 / series, -1 / series, 1 / shunt + 1 / series});
  ConvertYToZ(st);
  ExpectMatrixNear(st.z, textbook::ImpedanceFromS({0, s21, s21, 0}, kZ0), 1e-11);
  ConvertYToChain(st);
  ConvertChainToImage(st);
  ExpectNear(st.image.impedance, kZ0, 1e-11);
  EXPECT_NEAR(Re(st.image.propagation), static_cast<double>(std::log(k)), 1e-10);  // nepers
  EXPECT_NEAR(st.image.propagation.second, 0, 1e-7);                               // degrees
}

TEST(Conversions, AgreeWithTextbookMatricesAndInvert) {
  std::mt19937 random(11);
  std::uniform_real_distribution<long double> magnitude(0.05L, 0.9L), angle(-180, 180);
  for (int trial = 0; trial < 100; ++trial) {
    const M2 s{textbook::Polar(magnitude(random), angle(random)), textbook::Polar(magnitude(random) / 5, angle(random)),
               textbook::Polar(magnitude(random) * 5, angle(random)), textbook::Polar(magnitude(random), angle(random))};
    TwoPortState st = StateWithS(s);
    ConvertSToY(st);
    ExpectMatrixNear(st.y, textbook::AdmittanceFromS(s, kZ0), 1e-11);
    const M2 z = textbook::ImpedanceFromS(s, kZ0);
    ConvertYToH(st);
    ExpectMatrixNear(st.h, textbook::HybridFromZ(z), 1e-9);
    ConvertYToChain(st);
    ExpectMatrixNear({st.chain.a, st.chain.b, st.chain.c, st.chain.d}, textbook::ChainFromZ(z), 1e-9);
    ConvertYToZ(st);
    ExpectMatrixNear(st.z, z, 1e-9);
    st.s = {};
    ConvertYToS(st);
    ExpectMatrixNear(st.s, s, 1e-11);
    ExpectMatrixNear(st.y, textbook::AdmittanceFromS(s, kZ0), 1e-11);  // Y is scaled back
  }
}

TEST(Conversions, GuardsOfDegenerateNetworks) {
  // A matched thru has no admittance matrix: D = 0 becomes a division by 1e-20.
  TwoPortState thru = StateWithS({0, 1, 1, 0});
  ConvertSToY(thru);
  EXPECT_DOUBLE_EQ(Abs(thru.y.m12), 2e20 / 50);
  // An empty Y (open ports) reflects fully; the unit magnitude is pulled to 0.9999.
  TwoPortState open;
  open.y = {MakeCartesian(0, 0), MakeCartesian(0, 0), MakeCartesian(0, 0), MakeCartesian(0, 0)};
  ConvertYToS(open);
  EXPECT_DOUBLE_EQ(Abs(open.s.m11), 0.9999);
  EXPECT_DOUBLE_EQ(Abs(open.s.m22), 0.9999);
}

TEST(Conversions, CommonLeadFeedbackIsEmitterDegeneration) {
  // Unilateral device: input conductance g1 and transconductance gm, 10 ohm in the emitter:
  // y11 = g1 / (1 + R (g1 + gm)), y21 = gm / (1 + R (g1 + gm)).
  TwoPortState st;
  const double g1 = 1e-3, gm = 0.1, r = 10;
  st.y = {MakeCartesian(g1, 0), MakeCartesian(0, 0), MakeCartesian(gm, 0), MakeCartesian(0, 0)};
  st.commonLeadImpedance = MakeCartesian(r, 0);
  st.feedbackAdmittance = MakeCartesian(0, 0);
  ApplyCommonLeadFeedback(st);
  const double loop = 1 + r * (g1 + gm);
  ExpectNear(st.y.m11, g1 / loop);
  ExpectNear(st.y.m21, gm / loop);
  ExpectNear(st.y.m12, 0);  // no output conductance: no reverse path
}

TEST(Conversions, CommonLeadFeedbackMatchesTheIndefiniteMatrix) {
  // Y' = Y - r c^T / (sum Y + 1/Zc), plus Yx bridging input and output.
  const M2 y{C(0.004L, 0.01L), C(-1e-4L, -0.002L), C(0.09L, -0.03L), C(0.001L, 0.004L)};
  const C zc(0, 2 * 3.14159265358979323846L * 2e9L * 0.1e-9L);
  const C yx(1e-12L, 1e-12L);
  TwoPortState st;
  st.y = {textbook::ToValue(y.a11), textbook::ToValue(y.a12), textbook::ToValue(y.a21), textbook::ToValue(y.a22)};
  st.commonLeadImpedance = textbook::ToValue(zc);
  st.feedbackAdmittance = textbook::ToValue(yx);
  ApplyCommonLeadFeedback(st);
  const C sum = y.a11 + y.a12 + y.a21 + y.a22 + 1.0L / zc;
  const C row1 = y.a11 + y.a12, row2 = y.a21 + y.a22, col1 = y.a11 + y.a21, col2 = y.a12 + y.a22;
  ExpectMatrixNear(st.y, {y.a11 - row1 * col1 / sum + yx, y.a12 - row1 * col2 / sum - yx,
                          y.a21 - row2 * col1 / sum - yx, y.a22 - row2 * col2 / sum + yx});
}

}  // namespace
}  // namespace numerics
