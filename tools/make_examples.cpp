// Writes the example data of the project: examples/amplifier.s2p and the bias series
// examples/series/*.s2p. The data come from a small-signal model of one bipolar transistor,
// computed here with std::complex alone so that they do not depend on the program's numerics.
//
// Model (common emitter, reference impedance 50 ohm):
//   B --rb-- B' ; B'-E': r_pi = beta/gm in parallel with C_pi = Cje + gm*tauF
//   B'-C': C_mu ; C'-E': gm*v(B'E') and r_o = VA/Ic ; C' --rc-- C ; E' --re-- ground
//   gm = Ic/VT, and the forward transit time rises at high current (base push-out):
//   tauF(Ic) = tauF0 * (1 + (Ic/Ik)^2).
// Closed-form transit frequency of this model:
//   1/(2 pi fT) = tauF(Ic) + (VT/Ic)(Cje + C_mu) + C_mu (re + rc)
// which gives for the twelve currents of the series:
//   Ic/mA    0.5    1      2      3       5       7.5     10      15      20      25      30      40
//   fT/GHz   3.498  6.094  9.680  12.018  14.785  16.441  17.067  16.731  15.368  13.647  11.907  8.906
// |h21| * f at 2 GHz lies within 0.6 % of these values: the low-frequency current gain (beta 120)
// and the output resistance pull it slightly away from the closed form.
// The series files name fT in a comment line as well.
#include <cmath>
#include <complex>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

using Complex = std::complex<double>;
constexpr double kPi = 3.14159265358979323846;
constexpr double kThermalVoltage = 0.025852;  // V at 300 K
constexpr double kZ0 = 50;

struct TransistorModel {
  double beta = 120;
  double cje = 0.6e-12;
  double cmu = 0.15e-12;
  double tauF0 = 6e-12;
  double ik = 30e-3;
  double earlyVoltage = 40;
  double rb = 8;
  double re = 0.8;
  double rc = 4;
};

struct Circuit {
  TransistorModel device;
  double ic = 10e-3;
  double feedbackResistance = 0;  // between external base and collector, 0 = none
  double emitterInductance = 0;   // in series with re
};

double TransitTime(const TransistorModel& m, double ic) { return m.tauF0 * (1 + (ic / m.ik) * (ic / m.ik)); }

double ClosedFormFt(const TransistorModel& m, double ic) {
  const double tau = TransitTime(m, ic) + kThermalVoltage / ic * (m.cje + m.cmu) + m.cmu * (m.re + m.rc);
  return 1 / (2 * kPi * tau);
}

using Matrix = std::vector<std::vector<Complex>>;

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

// File order of the S-parameters: S11, S21, S12, S22.
std::string DataLine(const std::string& frequencyText, const Matrix& s) {
  return frequencyText + MagnitudeAngle(s[0][0]) + MagnitudeAngle(s[1][0]) + MagnitudeAngle(s[0][1]) +
         MagnitudeAngle(s[1][1]) + "\n";
}

Matrix ScatteringAt(const Circuit& c, double f) { return ScatteringFromAdmittance(PortAdmittances(NodalMatrix(c, f))); }

void WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out) {
    std::cerr << "make_examples: cannot write " << path << "\n";
    std::exit(1);
  }
}

// 200 logarithmically spaced points from 10 MHz to 10 GHz, frequencies in Hz.
void WriteAmplifier(const std::filesystem::path& folder) {
  Circuit amplifier;
  amplifier.ic = 10e-3;
  amplifier.feedbackResistance = 470;
  amplifier.emitterInductance = 0.3e-9;
  std::string text =
      "Single-stage amplifier: bipolar transistor at 10 mA, 470 ohm shunt feedback, 0.3 nH emitter lead; Z0 50 ohm\n";
  const int points = 200;
  for (int i = 0; i < points; ++i) {
    const double f = std::round(10e6 * std::pow(1000.0, i / double(points - 1)) / 1e3) * 1e3;
    char frequency[32];
    std::snprintf(frequency, sizeof frequency, "%.0f", f);
    text += DataLine(frequency, ScatteringAt(amplifier, f));
  }
  WriteFile(folder / "amplifier.s2p", text);
}

std::string CurrentText(double ic) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%gm", ic * 1e3);
  return buffer;
}

// One Touchstone-style file per current, 100 MHz to 20 GHz in 100 MHz steps, frequencies in MHz.
void WriteSeries(const std::filesystem::path& folder) {
  const double currents[] = {0.5e-3, 1e-3, 2e-3, 3e-3, 5e-3, 7.5e-3, 10e-3, 15e-3, 20e-3, 25e-3, 30e-3, 40e-3};
  std::filesystem::create_directories(folder);
  int index = 1;
  for (const double ic : currents) {
    Circuit device;
    device.ic = ic;
    char name[64], header[160];
    std::snprintf(name, sizeof name, "bjt_%02d_%sA.s2p", index++, CurrentText(ic).c_str());
    std::snprintf(header, sizeof header,
                  "! Bipolar transistor, common emitter, VCE 3 V\n! closed-form fT of the model: %.3f GHz\n",
                  ClosedFormFt(device.device, ic) / 1e9);
    std::string text = std::string(header) + "! Ic=" + CurrentText(ic) + "\n# MHz S MA R 50\n";
    for (int mhz = 100; mhz <= 20000; mhz += 100) text += DataLine(std::to_string(mhz), ScatteringAt(device, mhz * 1e6));
    WriteFile(folder / name, text);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::filesystem::path folder = argc > 1 ? argv[1] : "examples";
  std::filesystem::create_directories(folder);
  WriteAmplifier(folder);
  WriteSeries(folder / "series");
  return 0;
}
