#include "figures.h"

#include <cmath>

#include "cartesian.h"
#include "guards.h"
#include "real_functions.h"

namespace numerics {
namespace {

// One S-parameter in Cartesian form with its magnitude. A Polar value keeps the magnitude it
// was given instead of one recomputed from the rounded parts, so equal magnitudes stay equal.
struct Parameter {
  Cartesian z;
  double magnitude = 0;
};

Parameter ToParameter(const ComplexValue& v) {
  const Cartesian z = ToCartesian(v);
  return {z, v.form == ComplexForm::Polar ? std::fabs(v.first) : Magnitude(z)};
}

void ShrinkIfUnit(Parameter& p) {
  if (std::fabs(p.magnitude - 1) < kTinyMagnitude) p = {p.z * kUnitShrinkFactor, p.magnitude * kUnitShrinkFactor};
}

// Quantities of the current point that several steps share, in doubles: the S-parameters are
// taken in Cartesian form once, so the sums and products below need no trigonometry.
struct PointTerms {
  Parameter s11, s12, s21, s22;
  Cartesian product;  // P = S12 S21, taken before S12 is lifted
  Cartesian delta;
  Cartesian c1;       // S11 - delta S22*
  Cartesian c2;       // S22 - delta S11*
  double s11Sqr = 0, s22Sqr = 0, deltaSqr = 0;
  double s11Loss = 0, s22Loss = 0;  // 1 - |S11|^2 and 1 - |S22|^2
  double rollettNumerator = 0;      // 1 - |S11|^2 - |S22|^2 + |delta|^2
};

// 1 - |S|^2 as (1 - |S|)(1 + |S|): exact where |S| is near 1, where the difference matters most.
double Loss(double magnitude) { return (1 - magnitude) * (1 + magnitude); }

// 1 - |S11|^2 - |S22|^2 + |delta|^2, expanded as (1 - |S11|^2)(1 - |S22|^2) + |P|^2 - 2 Re(S11 S22 P*):
// the same value without the cancellation of terms near 1 that would cost doubles their digits
// where both ports reflect almost fully.
double RollettNumerator(const PointTerms& t) {
  const Cartesian s11s22 = t.s11.z * t.s22.z;
  const double cross = s11s22.re * t.product.re + s11s22.im * t.product.im;
  return t.s11Loss * t.s22Loss + Norm(t.product) - 2 * cross;
}

// The lossless-port guard, delta, C1, C2 and the two mu measures.
PointTerms GuardedTerms(const TwoPortState& st, TwoPortFigures& fig) {
  PointTerms t;
  t.s11 = ToParameter(st.s.m11);
  t.s12 = ToParameter(st.s.m12);
  t.s21 = ToParameter(st.s.m21);
  t.s22 = ToParameter(st.s.m22);
  ShrinkIfUnit(t.s11);
  ShrinkIfUnit(t.s22);
  t.product = t.s12.z * t.s21.z;
  t.delta = t.s11.z * t.s22.z - t.product;
  t.c1 = t.s11.z - t.delta * Conj(t.s22.z);
  t.c2 = t.s22.z - t.delta * Conj(t.s11.z);
  t.s11Sqr = t.s11.magnitude * t.s11.magnitude;
  t.s22Sqr = t.s22.magnitude * t.s22.magnitude;
  t.deltaSqr = Norm(t.delta);
  t.s11Loss = Loss(t.s11.magnitude);
  t.s22Loss = Loss(t.s22.magnitude);
  t.rollettNumerator = RollettNumerator(t);
  fig.delta = ToValue(t.delta);
  const double crossTerm = t.s12.magnitude * t.s21.magnitude;
  fig.mu = t.s22Loss / Max(Magnitude(t.c1) + crossTerm, kQuotientGuard);
  fig.muCopy = fig.mu;
  fig.muPrime = t.s11Loss / Max(Magnitude(t.c2) + crossTerm, kQuotientGuard);
  return t;
}

// Only the magnitude is bounded: a difference of -1e-31 becomes +1e-30.
double BoundedDifference(double d) { return std::fabs(d) < kTinyDifference ? kTinyDifference : d; }

void StabilityCircles(const PointTerms& t, TwoPortFigures& fig) {
  const double d2 = BoundedDifference(t.s22Sqr - t.deltaSqr);
  const double d1 = BoundedDifference(t.s11Sqr - t.deltaSqr);
  const double p = Magnitude(t.product);
  fig.loadStability.radius = p / Max(std::fabs(d2), kQuotientGuard);
  fig.sourceStability.radius = p / std::fabs(d1);
  fig.loadStability.centre = ToValue(Conj(t.c2) * (1 / d2));
  fig.sourceStability.centre = ToValue(Conj(t.c1) * (1 / d1));
}

void RollettFactor(PointTerms& t, TwoPortFigures& fig) {
  if (t.s12.magnitude < kTinyMagnitude) {
    t.s12.z.re += kTinyMagnitude;
    t.s12.magnitude = Magnitude(t.s12.z);
  }
  fig.k = Min(t.rollettNumerator / (2 * t.s12.magnitude * t.s21.magnitude), kStabilityCeiling);
  fig.unconditionallyStable = Magnitude(t.delta) < 1 && fig.k > 1;
}

Circle GainCircle(Cartesian c, double portSqr, const PointTerms& t, const TwoPortFigures& fig, double g) {
  const double p = Magnitude(t.product);
  const double num = 1 - 2 * fig.k * p * g + g * g * p * p;
  const double den = 1 + g * (portSqr - t.deltaSqr);
  return {ToValue(Conj(c) * (g / den)), std::sqrt(std::fabs(num)) / std::fabs(den)};
}

void GainCircles(const FigureInputs& in, const PointTerms& t, TwoPortFigures& fig) {
  const double g = in.gainLevel / (t.s21.magnitude * t.s21.magnitude);
  fig.operatingGain = GainCircle(t.c2, t.s22Sqr, t, fig, g);
  fig.availableGain = GainCircle(t.c1, t.s11Sqr, t, fig, g);
}

// k - sqrt(k^2 - 1) is taken as 1 / (k + sqrt((k - 1)(k + 1))): the same value without the
// cancellation that would cost doubles most of their digits where k is large or near 1.
double MaximumAvailableGain(double transfer, double k) {
  if (!(k >= 1)) return 0;  // also for a NaN k
  return transfer / (k + std::sqrt((k - 1) * (k + 1)));
}

void Gains(const PointTerms& t, TwoPortFigures& fig) {
  const double s21 = t.s21.magnitude;
  const double s12 = t.s12.magnitude;
  fig.mag = MaximumAvailableGain(s21 / s12, fig.k);
  fig.inputMismatch = 1 / t.s11Loss;
  fig.outputMismatch = 1 / t.s22Loss;
  fig.mug = s21 * s21 * fig.inputMismatch * fig.outputMismatch;
  if (fig.k >= 1) fig.msgOrMag = fig.mag;
  else if (s12 == 0) fig.msgOrMag = fig.mug;
  else fig.msgOrMag = s21 / s12;
  fig.bestGain = fig.mag == 0 ? fig.msgOrMag : fig.mag;
}

// Mason's U. The cross term |S12 S21* + S21 S12*| is |2 Re(S12 S21*)|, always subtracted, as
// the program has always computed it; the ratio form squares |r| - 1 rather than taking |r - 1|^2.
void MasonsU(const PointTerms& t, TwoPortFigures& fig) {
  const Cartesian& s12 = t.s12.z;
  const Cartesian& s21 = t.s21.z;
  const double dot = s12.re * s21.re + s12.im * s21.im;  // Re(S12 S21*)
  const double den = t.rollettNumerator - std::fabs(2 * dot);
  const Cartesian difference = s21 - s12;
  fig.u = den == 0 || IsZero(difference) ? fig.mag : Norm(difference) / den;

  // r = S21 / S12: |r| from the magnitudes, Re(r) = Re(S21 S12*) / |S12|^2.
  const double m = t.s21.magnitude / t.s12.magnitude;
  const double ratioDen = fig.k * m - dot / (t.s12.magnitude * t.s12.magnitude);
  fig.uRatio = std::fabs(ratioDen) < kRatioGuard ? 1.0 : ((m - 1) * (m - 1) / 2) / ratioDen;
}

// Simultaneous conjugate match of one port; the previous value stays where none exists.
void ConjugateMatch(double b, Cartesian c, ComplexValue& gamma) {
  const double disc = b * b - 4 * Norm(c);
  if (!(disc > 0)) return;
  const double q = b <= 0 ? b + std::sqrt(disc) : b - std::sqrt(disc);
  gamma = ToValue(Reciprocal(c) * (q / 2));
}

void TerminatedResults(const TwoPortState& st, const FigureInputs& in, TwoPortFigures& fig) {
  const Cartesian z11 = ToCartesian(st.z.m11), z22 = ToCartesian(st.z.m22);
  const Cartesian zProduct = ToCartesian(st.z.m12) * ToCartesian(st.z.m21);
  fig.zin = ToValue(z11 - zProduct * Reciprocal(z22 + ToCartesian(in.loadImpedance)));
  fig.zout = ToValue(z22 - zProduct * Reciprocal(z11 + ToCartesian(in.sourceImpedance)));
  const Cartesian series = ToCartesian(st.pi.series);
  const Cartesian den = Reciprocal(ToCartesian(in.loadImpedance)) + ToCartesian(st.pi.outputShunt) + series;
  fig.voltageGain = ToValue((series - ToCartesian(st.pi.transadmittance)) * Reciprocal(den));
}

// The guards of S11, S22 and S12 stay in the working matrix, which is left in Cartesian form.
void KeepGuardedS(const PointTerms& t, TwoPortState& st) {
  st.s = {ToValue(t.s11.z), ToValue(t.s12.z), ToValue(t.s21.z), ToValue(t.s22.z)};
  st.detS = ToValue(t.delta);
}

}  // namespace

void ComputeTwoPortFigures(TwoPortState& st, const FigureInputs& in, TwoPortFigures& fig) {
  PointTerms t = GuardedTerms(st, fig);
  StabilityCircles(t, fig);
  RollettFactor(t, fig);
  GainCircles(in, t, fig);
  Gains(t, fig);
  MasonsU(t, fig);
  ConjugateMatch(1 + t.s11Sqr - t.s22Sqr - t.deltaSqr, t.c1, fig.gammaMS);
  ConjugateMatch(1 + t.s22Sqr - t.s11Sqr - t.deltaSqr, t.c2, fig.gammaML);
  TerminatedResults(st, in, fig);
  fig.unilateralFigure =
      t.s11.magnitude * t.s12.magnitude * t.s22.magnitude * t.s21.magnitude / t.s11Loss / t.s22Loss;
  KeepGuardedS(t, st);
}

void ComputeGainFigures(TwoPortState& st, TwoPortFigures& fig) {
  PointTerms t = GuardedTerms(st, fig);
  RollettFactor(t, fig);
  Gains(t, fig);
  MasonsU(t, fig);
  KeepGuardedS(t, st);
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
