#pragma once

// A small-signal model of one bipolar transistor, computed with std::complex alone so that the
// example files and the test fixtures made from it do not depend on the program's numerics.
//
// Model (common emitter, reference impedance 50 ohm):
//   B --rb-- B' ; B'-E': r_pi = beta/gm in parallel with C_pi = Cje + gm*tauF
//   B'-C': C_mu ; C'-E': gm*v(B'E') and r_o = VA/Ic ; C' --rc-- C ; E' --re-- ground
//   gm = Ic/VT, and the forward transit time rises at high current (base push-out):
//   tauF(Ic) = tauF0 * (1 + (Ic/Ik)^2).
// Closed-form transit frequency of this model:
//   1/(2 pi fT) = tauF(Ic) + (VT/Ic)(Cje + C_mu) + C_mu (re + rc)
// Well above the beta corner fT/beta, |h21| falls at 20 dB per decade towards fT.
#include <complex>
#include <string>
#include <vector>

namespace tools {

using Complex = std::complex<double>;
using Matrix = std::vector<std::vector<Complex>>;

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

double ClosedFormFt(const TransistorModel& m, double ic);

// The 2x2 S-matrix of the circuit at f (Hz), s[row][column], reference impedance 50 ohm.
Matrix ScatteringAt(const Circuit& c, double f);

// One line of a data file: the frequency text, then magnitude and angle in degrees of S11, S21,
// S12 and S22, ended by a line feed.
std::string DataLine(const std::string& frequencyText, const Matrix& s);

}  // namespace tools
