#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "numerics/conversions.h"
#include "textbook.h"

namespace numerics {
namespace {

using textbook::C;
using textbook::ExpectMatrixNear;
using textbook::ExpectNear;
using textbook::M2;

constexpr long double kZ0 = 50;

TwoPortState StateWithS(const M2& s) {
  TwoPortState st;
  st.z0 = static_cast<double>(kZ0);
  textbook::SetS(st, s);
  return st;
}

TEST(Conversions, MatchedAttenuator) {
  const long double k = std::pow(10.0L, 0.5L);  // 10 dB
  TwoPortState st = StateWithS({0, 1 / k, 1 / k, 0});
  ConvertSToY(st);
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
    const M2 y = textbook::AdmittanceFromS(s, kZ0);
    ExpectMatrixNear(st.y, y, 1e-11);
    ConvertYToPi(st);  // the pi of admittances -y12 between the ports and y11 + y12, y22 + y12 to ground
    ExpectMatrixNear({st.pi.inputShunt, st.pi.series, st.pi.transadmittance, st.pi.outputShunt},
                     {y.a11 + y.a12, -y.a12, y.a21 - y.a12, y.a22 + y.a12}, 1e-11);
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
    ExpectMatrixNear(st.y, y, 1e-11);  // Y is scaled back
  }
}

TEST(Conversions, GuardsOfDegenerateNetworks) {
  // A matched thru has no admittance matrix: D = 0 becomes a division by 1e-20.
  TwoPortState thru = StateWithS({0, 1, 1, 0});
  ConvertSToY(thru);
  EXPECT_DOUBLE_EQ(Abs(thru.y.m12), 2e20 / 50);
  // An empty Y (open ports) reflects fully; the unit magnitude is pulled to 0.9999.
  TwoPortState open;  // Y starts at zero
  ConvertYToS(open);
  EXPECT_DOUBLE_EQ(Abs(open.s.m22), 0.9999);
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
