#pragma once

#include "complex_value.h"

// The working matrices of the current point. Every conversion and the figures read and write
// this one state; windows and the bias-series evaluation copy a point into S and call them.
namespace numerics {

struct Matrix2 {
  ComplexValue m11, m12, m21, m22;
};

struct PiModel {
  ComplexValue series;         // Ya
  ComplexValue inputShunt;     // Yb
  ComplexValue transadmittance;  // Yc
  ComplexValue outputShunt;    // Yd
};

struct ChainMatrix {
  ComplexValue a, b, c, d;
};

struct ImageParameters {
  ComplexValue propagation;  // real part in nepers, imaginary part in degrees
  ComplexValue impedance;
};

struct TwoPortState {
  Matrix2 s;  // normalised to z0
  Matrix2 y;  // siemens
  Matrix2 z;  // ohms
  Matrix2 h;
  PiModel pi;
  ChainMatrix chain;
  ImageParameters image;
  ComplexValue detS;
  ComplexValue detY;
  double z0 = 50;
  ComplexValue commonLeadImpedance;   // Zc of the common-lead feedback
  ComplexValue feedbackAdmittance;    // Yx of the common-lead feedback
};

// The program-wide working state.
TwoPortState& WorkingState();

}  // namespace numerics
