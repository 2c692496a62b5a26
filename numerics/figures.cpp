#include "figures.h"

#include <cmath>

#include "extended.h"
#include "guards.h"
#include "real_functions.h"

namespace numerics {
namespace {

// Quantities of the current point that several steps share. The S-parameters are taken in
// Cartesian form once, so that the sums and products below need no trigonometry.
struct PointTerms {
  Matrix2 s;
  ComplexValue product;  // P = S12 S21, taken before S12 is lifted
  ComplexValue c1;       // S11 - delta S22*
  ComplexValue c2;       // S22 - delta S11*
  Extended s11Sqr, s22Sqr, deltaSqr;
};

PointTerms StabilityMeasures(const TwoPortState& st, TwoPortFigures& fig) {
  PointTerms t;
  t.s = {AsCartesian(st.s.m11), AsCartesian(st.s.m12), AsCartesian(st.s.m21), AsCartesian(st.s.m22)};
  t.product = Mul(t.s.m12, t.s.m21);
  fig.delta = Sub(Mul(t.s.m11, t.s.m22), t.product);
  t.c1 = Sub(t.s.m11, Mul(fig.delta, Conj(t.s.m22)));
  t.c2 = Sub(t.s.m22, Mul(fig.delta, Conj(t.s.m11)));
  t.s11Sqr = AbsSqr(st.s.m11);
  t.s22Sqr = AbsSqr(st.s.m22);
  t.deltaSqr = AbsSqr(fig.delta);
  const Extended crossTerm = Extended{Abs(st.s.m12)} * Abs(st.s.m21);
  fig.mu = static_cast<double>((1 - t.s22Sqr) / Max(static_cast<double>(Abs(t.c1) + crossTerm), kQuotientGuard));
  fig.muCopy = fig.mu;
  fig.muPrime = static_cast<double>((1 - t.s11Sqr) / Max(static_cast<double>(Abs(t.c2) + crossTerm), kQuotientGuard));
  return t;
}

// Only the magnitude is bounded: a difference of -1e-31 becomes +1e-30.
Extended BoundedDifference(Extended d) { return std::fabs(d) < kTinyDifference ? Extended{kTinyDifference} : d; }

void StabilityCircles(const PointTerms& t, TwoPortFigures& fig) {
  const Extended d2 = BoundedDifference(t.s22Sqr - t.deltaSqr);
  const Extended d1 = BoundedDifference(t.s11Sqr - t.deltaSqr);
  const Extended p = Abs(t.product);
  fig.loadStability.radius = static_cast<double>(p / Max(static_cast<double>(std::fabs(d2)), kQuotientGuard));
  fig.sourceStability.radius = static_cast<double>(p / std::fabs(d1));
  fig.loadStability.centre = Scale(Conj(t.c2), static_cast<double>(1 / d2));
  fig.sourceStability.centre = Scale(Conj(t.c1), static_cast<double>(1 / d1));
}

void RollettFactor(TwoPortState& st, PointTerms& t, TwoPortFigures& fig) {
  const Extended numerator = t.deltaSqr + 1 - t.s11Sqr - t.s22Sqr;
  if (Abs(st.s.m12) < kTinyMagnitude) {
    st.s.m12 = AddReal(st.s.m12, kTinyMagnitude);
    t.s.m12 = st.s.m12;
  }
  Extended k = numerator / (2 * Extended{Abs(t.s.m12)} * Abs(t.s.m21));
  if (k > kStabilityCeiling) k = kStabilityCeiling;
  fig.k = static_cast<double>(k);
  fig.unconditionallyStable = Abs(fig.delta) < 1 && fig.k > 1;
}

Circle GainCircle(const ComplexValue& c, Extended portSqr, const PointTerms& t, const TwoPortFigures& fig,
                  Extended g) {
  const Extended p = Abs(t.product);
  const Extended num = 1 - 2 * Extended{fig.k} * p * g + g * g * p * p;
  const Extended den = 1 + g * (portSqr - t.deltaSqr);
  return {Scale(Conj(c), static_cast<double>(g / den)), static_cast<double>(std::sqrt(std::fabs(num)) / std::fabs(den))};
}

void GainCircles(const FigureInputs& in, const PointTerms& t, TwoPortFigures& fig) {
  const Extended g = Extended{in.gainLevel} / AbsSqr(t.s.m21);
  fig.operatingGain = GainCircle(t.c2, t.s22Sqr, t, fig, g);
  fig.availableGain = GainCircle(t.c1, t.s11Sqr, t, fig, g);
}

void Gains(const PointTerms& t, TwoPortFigures& fig) {
  const Extended s21 = Abs(t.s.m21);
  const Extended s12 = Abs(t.s.m12);
  const Extended k = fig.k;
  fig.mag = k >= 1 ? static_cast<double>((s21 / s12) * (k - std::sqrt(k * k - 1))) : 0.0;
  fig.inputMismatch = static_cast<double>(1 / (1 - t.s11Sqr));
  fig.outputMismatch = static_cast<double>(1 / (1 - t.s22Sqr));
  fig.mug = static_cast<double>(s21 * s21 * fig.inputMismatch * fig.outputMismatch);
  if (k >= 1) fig.msgOrMag = fig.mag;
  else if (s12 == 0) fig.msgOrMag = fig.mug;
  else fig.msgOrMag = static_cast<double>(s21 / s12);
  fig.bestGain = fig.mag == 0 ? fig.msgOrMag : fig.mag;
}

// Mason's U. The cross term enters as |2 Re(S12 S21*)|, always subtracted, as the program
// has always computed it; the ratio form squares |r| - 1 rather than taking |r - 1|^2.
void MasonsU(const TwoPortState& st, const PointTerms& t, TwoPortFigures& fig) {
  const ComplexValue& s12 = t.s.m12;
  const ComplexValue& s21 = t.s.m21;
  const Extended cross = Abs(Add(Mul(s12, Conj(s21)), Mul(s21, Conj(s12))));
  const Extended den = 1 - t.s11Sqr - t.s22Sqr + t.deltaSqr - cross;
  const ComplexValue difference = Sub(s21, s12);
  fig.u = den == 0 ? fig.mag : static_cast<double>(AbsSqr(difference) / den);
  if (difference.first == 0 && difference.second == 0) fig.u = fig.mag;

  const ComplexValue r = Div(st.s.m21, st.s.m12);  // the stored forms: measured data are Polar
  const Extended m = Abs(r);
  const Extended ratioDen = Extended{fig.k} * m - Re(r);
  fig.uRatio = std::fabs(ratioDen) < kRatioGuard ? 1.0 : static_cast<double>(((m - 1) * (m - 1) / 2) / ratioDen);
}

// Simultaneous conjugate match of one port; the previous value stays where none exists.
void ConjugateMatch(Extended b, const ComplexValue& c, ComplexValue& gamma) {
  const Extended disc = b * b - 4 * Extended{AbsSqr(c)};
  if (!(disc > 0)) return;
  const Extended q = b <= 0 ? b + std::sqrt(disc) : b - std::sqrt(disc);
  gamma = Scale(Inverse(c), static_cast<double>(q / 2));
}

void TerminatedResults(const TwoPortState& st, const FigureInputs& in, TwoPortFigures& fig) {
  const ComplexValue zProduct = Mul(st.z.m12, st.z.m21);
  fig.zin = Sub(st.z.m11, Div(zProduct, Add(st.z.m22, in.loadImpedance)));
  fig.zout = Sub(st.z.m22, Div(zProduct, Add(st.z.m11, in.sourceImpedance)));
  const PiModel& pi = st.pi;
  const ComplexValue den = Add(Add(Inverse(in.loadImpedance), pi.outputShunt), pi.series);
  fig.voltageGain = Div(Sub(pi.series, pi.transadmittance), den);
}

PointTerms GuardedTerms(TwoPortState& st, TwoPortFigures& fig) {
  ShrinkIfUnit(st.s.m11);
  ShrinkIfUnit(st.s.m22);
  PointTerms t = StabilityMeasures(st, fig);
  st.detS = fig.delta;
  return t;
}

}  // namespace

void ComputeTwoPortFigures(TwoPortState& st, const FigureInputs& in, TwoPortFigures& fig) {
  PointTerms t = GuardedTerms(st, fig);
  StabilityCircles(t, fig);
  RollettFactor(st, t, fig);
  GainCircles(in, t, fig);
  Gains(t, fig);
  MasonsU(st, t, fig);
  ConjugateMatch(1 + t.s11Sqr - t.s22Sqr - t.deltaSqr, t.c1, fig.gammaMS);
  ConjugateMatch(1 + t.s22Sqr - t.s11Sqr - t.deltaSqr, t.c2, fig.gammaML);
  TerminatedResults(st, in, fig);
  const Extended fourProduct = Abs(Mul(Mul(Mul(t.s.m11, t.s.m12), t.s.m22), t.s.m21));
  fig.unilateralFigure = static_cast<double>(fourProduct / (1 - t.s11Sqr) / (1 - t.s22Sqr));
}

void ComputeGainFigures(TwoPortState& st, TwoPortFigures& fig) {
  PointTerms t = GuardedTerms(st, fig);
  RollettFactor(st, t, fig);
  Gains(t, fig);
  MasonsU(st, t, fig);
}

TwoPortFigures& WorkingFigures() {
  static TwoPortFigures figures;
  return figures;
}

FigureInputs& WorkingFigureInputs() {
  static FigureInputs inputs;
  return inputs;
}

void ComputeTwoPortFigures() { ComputeTwoPortFigures(WorkingState(), WorkingFigureInputs(), WorkingFigures()); }

}  // namespace numerics
