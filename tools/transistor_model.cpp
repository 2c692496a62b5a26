#include "transistor_model.h"

#include <cstdio>

namespace tools {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kThermalVoltage = 0.025852;  // V at 300 K
constexpr double kZ0 = 50;

double TransitTime(const TransistorModel& m, double ic) { return m.tauF0 * (1 + (ic / m.ik) * (ic / m.ik)); }

void Stamp(Matrix& y, int a, int b, Complex admittance) {
  y[a][a] += admittance;
  y[b][b] += admittance;
  y[a][b] -= admittance;
  y[b][a] -= admittance;
}

// Current gm*v(from+ , from-) flowing from node `out` to node `ret` through the source.
void StampTransconductance(Matrix& y, int out, int ret, int plus, int minus, double gm) {
  y[out][plus] += gm;
  y[out][minus] -= gm;
  y[ret][plus] -= gm;
  y[ret][minus] += gm;
}

// Nodes: 0 ground, 1 B, 2 C (the ports), 3 B', 4 C', 5 E'.
Matrix NodalMatrix(const Circuit& c, double f) {
  const TransistorModel& m = c.device;
  const double w = 2 * kPi * f;
  const double gm = c.ic / kThermalVoltage;
  Matrix y(6, std::vector<Complex>(6));
  Stamp(y, 1, 3, 1 / m.rb);
  Stamp(y, 3, 5, Complex(gm / m.beta, w * (m.cje + gm * TransitTime(m, c.ic))));
  Stamp(y, 3, 4, Complex(0, w * m.cmu));
  Stamp(y, 4, 5, 1 / (m.earlyVoltage / c.ic));
  Stamp(y, 4, 2, 1 / m.rc);
  Stamp(y, 5, 0, 1.0 / Complex(m.re, w * c.emitterInductance));
  if (c.feedbackResistance > 0) Stamp(y, 1, 2, 1 / c.feedbackResistance);
  StampTransconductance(y, 4, 5, 3, 5, gm);
  return y;
}

// Eliminates the internal nodes 5, 4, 3 (Kron reduction) and returns the 2x2 Y matrix of B, C.
Matrix PortAdmittances(Matrix y) {
  for (int k = 5; k >= 3; --k) {
    for (int i = 1; i < k; ++i) {
      for (int j = 1; j < k; ++j) y[i][j] -= y[i][k] * y[k][j] / y[k][k];
    }
  }
  return {{y[1][1], y[1][2]}, {y[2][1], y[2][2]}};
}

// S = (I - z0 Y)(I + z0 Y)^-1 for a 2x2 matrix.
Matrix ScatteringFromAdmittance(const Matrix& y) {
  const Complex a = kZ0 * y[0][0], b = kZ0 * y[0][1], c = kZ0 * y[1][0], d = kZ0 * y[1][1];
  const Complex den = (1.0 + a) * (1.0 + d) - b * c;
  return {{((1.0 - a) * (1.0 + d) + b * c) / den, -2.0 * b / den},
          {-2.0 * c / den, ((1.0 + a) * (1.0 - d) + b * c) / den}};
}

std::string MagnitudeAngle(Complex s) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, " %.6g %.5g", std::abs(s), std::arg(s) * 180 / kPi);
  return buffer;
}

}  // namespace

double ClosedFormFt(const TransistorModel& m, double ic) {
  const double tau = TransitTime(m, ic) + kThermalVoltage / ic * (m.cje + m.cmu) + m.cmu * (m.re + m.rc);
  return 1 / (2 * kPi * tau);
}

Matrix ScatteringAt(const Circuit& c, double f) { return ScatteringFromAdmittance(PortAdmittances(NodalMatrix(c, f))); }

// File order of the S-parameters: S11, S21, S12, S22.
std::string DataLine(const std::string& frequencyText, const Matrix& s) {
  return frequencyText + MagnitudeAngle(s[0][0]) + MagnitudeAngle(s[1][0]) + MagnitudeAngle(s[0][1]) +
         MagnitudeAngle(s[1][1]) + "\n";
}

}  // namespace tools
