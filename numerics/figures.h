#pragma once

#include "two_port_state.h"

// Gain and stability figures of the current point. All gains are linear power ratios.
namespace numerics {

struct Circle {
  ComplexValue centre;
  double radius = 0;
};

struct FigureInputs {
  ComplexValue sourceImpedance = MakeCartesian(50, 0);  // ZS
  ComplexValue loadImpedance = MakeCartesian(50, 0);    // ZL
  double gainLevel = 1;                                 // G of the constant-gain circles
};

struct TwoPortFigures {
  ComplexValue delta;             // det S
  double k = 0;                   // Rollett factor, at most kStabilityCeiling
  bool unconditionallyStable = false;
  double mu = 0;
  double muCopy = 0;              // the windows' second copy of mu
  double muPrime = 0;
  Circle loadStability;
  Circle sourceStability;
  Circle operatingGain;
  Circle availableGain;
  double mag = 0;                 // 0 when k < 1
  double mug = 0;
  double msgOrMag = 0;
  double bestGain = 0;
  double u = 0;                   // Mason's U, S-parameter form
  double uRatio = 0;              // Mason's U from S21/S12
  double unilateralFigure = 0;
  double inputMismatch = 0;       // 1 / (1 - |S11|^2)
  double outputMismatch = 0;      // 1 / (1 - |S22|^2)
  ComplexValue gammaMS;           // written only where the conjugate match exists
  ComplexValue gammaML;
  ComplexValue zin;
  ComplexValue zout;
  ComplexValue voltageGain;       // Av of the pi model with load ZL
};

// Reads S (guarding S11, S22 and S12 in place), Z and the pi model of st; writes fig.
// gammaMS and gammaML keep their previous values where no conjugate match exists.
void ComputeTwoPortFigures(TwoPortState& st, const FigureInputs& in, TwoPortFigures& fig);

// Only delta, k, mu, mu', MAG, MSG, MUG, U and the mismatch factors, with the same steps and
// guards as above: for callers that take no circle, match or terminated result per point.
void ComputeGainFigures(TwoPortState& st, TwoPortFigures& fig);

// The program-wide figures and their inputs, and the argument-free form over WorkingState().
TwoPortFigures& WorkingFigures();
FigureInputs& WorkingFigureInputs();
void ComputeTwoPortFigures();

}  // namespace numerics
