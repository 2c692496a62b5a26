#pragma once

// Series files made for the tests, and the textbook relations the results are checked against.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>

#include "tests/numerics/textbook.h"
#include "tools/transistor_model.h"

namespace series::fixtures {

using textbook::M2;

// One point as a file holds it: magnitude and angle in degrees of S11, S21, S12, S22.
struct PolarPoint {
  double m11, a11, m21, a21, m12, a12, m22, a22;

  M2 Matrix() const {
    return {textbook::Polar(m11, a11), textbook::Polar(m12, a12), textbook::Polar(m21, a21),
            textbook::Polar(m22, a22)};
  }
};

inline std::string DataLine(const std::string& token, const PolarPoint& p) {
  char line[300];
  std::snprintf(line, sizeof line, "%s %.17g %.17g %.17g %.17g %.17g %.17g %.17g %.17g\n", token.c_str(), p.m11,
                p.a11, p.m21, p.a21, p.m12, p.a12, p.m22, p.a22);
  return line;
}

// CTest runs every test in a process of its own, in parallel: the test's name keeps the files apart.
inline std::string FixturePath(const std::string& name) {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  std::string unique = std::string(test->test_suite_name()) + "." + test->name() + "." + name;
  for (char& c : unique) c = c == '/' ? '_' : c;
  return testing::TempDir() + unique;
}

inline std::string WriteFixture(const std::string& name, const std::string& content) {
  const std::string path = FixturePath(name);
  std::ofstream(path, std::ios::binary) << content;
  return path;
}

// MAG where the device is unconditionally stable by k, else MSG.
inline long double BestGain(const M2& s) {
  const long double k = textbook::Rollett(s);
  const long double ratio = std::abs(s.a21 / s.a12);
  return k >= 1 ? ratio * (k - std::sqrt(k * k - 1)) : ratio;
}

// |h21| through the impedance matrix.
inline long double CurrentGain(const M2& s, long double z0) {
  return std::abs(textbook::HybridFromZ(textbook::ImpedanceFromS(s, z0)).a21);
}

inline long double MasonU(const M2& s, long double z0) { return textbook::MasonU(textbook::AdmittanceFromS(s, z0)); }

// The S-parameters of the example transistor model at bias current ic and frequency f.
inline M2 ModelScattering(double ic, double f) {
  tools::Circuit device;
  device.ic = ic;
  const tools::Matrix s = tools::ScatteringAt(device, f);
  const auto c = [](tools::Complex z) { return textbook::C(z.real(), z.imag()); };
  return {c(s[0][0]), c(s[0][1]), c(s[1][0]), c(s[1][1])};
}

}  // namespace series::fixtures
