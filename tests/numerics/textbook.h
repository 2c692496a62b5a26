#pragma once

// Two-port relations as textbooks write them, in std::complex, to check the program's own
// arithmetic against an independent route.
#include <gtest/gtest.h>

#include <complex>

#include "numerics/complex_value.h"
#include "numerics/two_port_state.h"

namespace textbook {

using C = std::complex<long double>;
struct M2 {
  C a11, a12, a21, a22;
};

inline C FromValue(const numerics::ComplexValue& z) { return {numerics::Re(z), numerics::Im(z)}; }
inline numerics::ComplexValue ToValue(C z) {
  return numerics::MakeCartesian(static_cast<double>(z.real()), static_cast<double>(z.imag()));
}
inline C Polar(long double magnitude, long double degrees) {
  return std::polar(magnitude, degrees * 3.14159265358979323846L / 180);
}

// Tolerances grow with the size of the expected value.
inline void ExpectNear(const numerics::ComplexValue& actual, C expected, double relative = 1e-12) {
  const double scale = 1 + static_cast<double>(std::abs(expected));
  EXPECT_NEAR(numerics::Re(actual), static_cast<double>(expected.real()), relative * scale);
  EXPECT_NEAR(numerics::Im(actual), static_cast<double>(expected.imag()), relative * scale);
}
inline void ExpectMatrixNear(const numerics::Matrix2& actual, const M2& expected, double relative = 1e-12) {
  ExpectNear(actual.m11, expected.a11, relative);
  ExpectNear(actual.m12, expected.a12, relative);
  ExpectNear(actual.m21, expected.a21, relative);
  ExpectNear(actual.m22, expected.a22, relative);
}

inline M2 Multiply(const M2& x, const M2& y) {
  return {x.a11 * y.a11 + x.a12 * y.a21, x.a11 * y.a12 + x.a12 * y.a22, x.a21 * y.a11 + x.a22 * y.a21,
          x.a21 * y.a12 + x.a22 * y.a22};
}
inline M2 Inverse(const M2& x) {
  const C d = x.a11 * x.a22 - x.a12 * x.a21;
  return {x.a22 / d, -x.a12 / d, -x.a21 / d, x.a11 / d};
}
inline M2 Plus(const M2& x, long double s) { return {x.a11 + s, x.a12, x.a21, x.a22 + s}; }
inline M2 Times(const M2& x, C s) { return {x.a11 * s, x.a12 * s, x.a21 * s, x.a22 * s}; }

// Y = (1/z0)(I - S)(I + S)^-1 and Z = z0 (I + S)(I - S)^-1.
inline M2 AdmittanceFromS(const M2& s, long double z0) {
  return Times(Multiply(Plus(Times(s, -1), 1), Inverse(Plus(s, 1))), 1 / z0);
}
inline M2 ImpedanceFromS(const M2& s, long double z0) {
  return Times(Multiply(Plus(s, 1), Inverse(Plus(Times(s, -1), 1))), z0);
}
inline M2 HybridFromZ(const M2& z) {
  const C d = z.a11 * z.a22 - z.a12 * z.a21;
  return {d / z.a22, z.a12 / z.a22, -z.a21 / z.a22, 1.0L / z.a22};
}
inline M2 ChainFromZ(const M2& z) {
  const C d = z.a11 * z.a22 - z.a12 * z.a21;
  return {z.a11 / z.a21, d / z.a21, 1.0L / z.a21, z.a22 / z.a21};
}

// Input reflection with load reflection gl, and output reflection with source reflection gs.
inline C GammaIn(const M2& s, C gl) { return s.a11 + s.a12 * s.a21 * gl / (1.0L - s.a22 * gl); }
inline C GammaOut(const M2& s, C gs) { return s.a22 + s.a12 * s.a21 * gs / (1.0L - s.a11 * gs); }

inline long double Rollett(const M2& s) {
  const C delta = s.a11 * s.a22 - s.a12 * s.a21;
  return (1 - std::norm(s.a11) - std::norm(s.a22) + std::norm(delta)) / (2 * std::abs(s.a12 * s.a21));
}

// Transducer gain between source and load reflections gs and gl.
inline long double TransducerGain(const M2& s, C gs, C gl) {
  const C den = (1.0L - s.a11 * gs) * (1.0L - s.a22 * gl) - s.a12 * s.a21 * gs * gl;
  return (1 - std::norm(gs)) * std::norm(s.a21) * (1 - std::norm(gl)) / std::norm(den);
}

// Mason's U from the admittance matrix (any reference impedance).
inline long double MasonU(const M2& y) {
  return std::norm(y.a21 - y.a12) / (4 * (y.a11.real() * y.a22.real() - y.a12.real() * y.a21.real()));
}

// The gain and stability figures as RF textbooks define them (Rollett, Edwards-Sinsky, Mason),
// with the two deviations the program keeps on purpose: U subtracts |2 Re(S12 S21*)| instead of
// 2 Re(S21 S12*), and its ratio form squares |r| - 1 instead of taking |r - 1|^2.
struct Figures {
  long double k, mu, muPrime, mag, msgOrMag, mug, u, uRatio;
};
inline Figures GainFigures(const M2& s) {
  const C delta = s.a11 * s.a22 - s.a12 * s.a21;
  const long double k = Rollett(s), transfer = std::abs(s.a21) / std::abs(s.a12), cross = std::abs(s.a12 * s.a21);
  const long double mag = k >= 1 ? transfer * (k - std::sqrt(k * k - 1)) : 0;
  const long double mug = std::norm(s.a21) / ((1 - std::norm(s.a11)) * (1 - std::norm(s.a22)));
  const long double uDen = 1 - std::norm(s.a11) - std::norm(s.a22) + std::norm(delta) -
                           std::abs(2 * (s.a12 * std::conj(s.a21)).real());
  const C r = s.a21 / s.a12;
  return {k,
          (1 - std::norm(s.a22)) / (std::abs(s.a11 - delta * std::conj(s.a22)) + cross),  // source side
          (1 - std::norm(s.a11)) / (std::abs(s.a22 - delta * std::conj(s.a11)) + cross),  // load side
          mag,
          k >= 1 ? mag : transfer,
          mug,
          std::norm(s.a21 - s.a12) / uDen,
          (std::abs(r) - 1) * (std::abs(r) - 1) / (2 * (k * std::abs(r) - r.real()))};
}

inline void SetS(numerics::TwoPortState& st, const M2& s) {
  st.s = {ToValue(s.a11), ToValue(s.a12), ToValue(s.a21), ToValue(s.a22)};
}

}  // namespace textbook
