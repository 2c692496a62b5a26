#include "conversions.h"

namespace numerics {
namespace {

ComplexValue Negated(const ComplexValue& z) { return Scale(z, -1); }

void ScaleAll(Matrix2& m, double factor) {
  m.m11 = Scale(m.m11, factor);
  m.m12 = Scale(m.m12, factor);
  m.m21 = Scale(m.m21, factor);
  m.m22 = Scale(m.m22, factor);
}

// The bilinear map shared by S->Y and Y->S: with a = m11, d = m22 and the product p = m12*m21,
// out11 = ((1 - a)(1 + d) + p) / D, out22 = ((1 + a)(1 - d) + p) / D, out12 = -2 m12 / D.
// Divisors shared by several quotients are taken in Polar form once, as Div would take them.
Matrix2 BilinearTransform(const Matrix2& m, const ComplexValue& divisor) {
  const ComplexValue denominator = AsPolar(divisor);
  const ComplexValue product = Mul(m.m12, m.m21);
  Matrix2 out;
  out.m12 = Div(Scale(m.m12, -2), denominator);
  out.m21 = Div(Scale(m.m21, -2), denominator);
  out.m11 = Div(Add(Mul(RealMinus(1, m.m11), AddReal(m.m22, 1)), product), denominator);
  out.m22 = Div(Add(Mul(AddReal(m.m11, 1), RealMinus(1, m.m22)), product), denominator);
  return out;
}

ComplexValue OnePlusProductMinus(const Matrix2& m) {
  return Sub(Mul(AddReal(m.m11, 1), AddReal(m.m22, 1)), Mul(m.m12, m.m21));
}

}  // namespace

ComplexValue DeterminantS(const TwoPortState& st) {
  return Sub(Mul(st.s.m11, st.s.m22), Mul(st.s.m12, st.s.m21));
}

ComplexValue DeterminantY(const TwoPortState& st) {
  return Sub(Mul(st.y.m11, st.y.m22), Mul(st.y.m12, st.y.m21));
}

void ConvertSToY(TwoPortState& st) {
  ShrinkIfUnit(st.s.m11);
  ShrinkIfUnit(st.s.m22);
  LiftIfTiny(st.s.m12);
  LiftIfTiny(st.s.m21);
  st.y = BilinearTransform(st.s, OnePlusProductMinus(st.s));
  ScaleAll(st.y, 1 / st.z0);
}

void ConvertYToS(TwoPortState& st) {
  ScaleAll(st.y, st.z0);
  ComplexValue denominator = OnePlusProductMinus(st.y);
  LiftIfTiny(denominator);
  st.s = BilinearTransform(st.y, denominator);
  if (Abs(st.s.m22) == 1) SetMagnitude(st.s.m22, 0.9999);
  if (Abs(st.s.m11) == 1) SetMagnitude(st.s.m11, 0.9999);
  ScaleAll(st.y, 1 / st.z0);
}

void ConvertYToZ(TwoPortState& st) {
  LiftIfTiny(st.y.m12);
  LiftIfTiny(st.y.m21);
  st.detY = DeterminantY(st);
  const ComplexValue d = AsPolar(st.detY);
  st.z.m11 = Div(st.y.m22, d);
  st.z.m22 = Div(st.y.m11, d);
  st.z.m12 = Div(Negated(st.y.m12), d);
  st.z.m21 = Div(Negated(st.y.m21), d);
}

void ConvertYToH(TwoPortState& st) {
  LiftIfTiny(st.y.m12);
  LiftIfTiny(st.y.m21);
  st.detY = DeterminantY(st);
  const ComplexValue y11 = AsPolar(st.y.m11);
  st.h.m11 = Inverse(y11);
  st.h.m12 = Div(Negated(st.y.m12), y11);
  st.h.m21 = Div(st.y.m21, y11);
  st.h.m22 = Div(st.detY, y11);
}

void ConvertYToPi(TwoPortState& st) {
  st.pi.series = Negated(st.y.m12);
  st.pi.inputShunt = Add(st.y.m11, st.y.m12);
  st.pi.transadmittance = Sub(st.y.m21, st.y.m12);
  st.pi.outputShunt = Add(st.y.m22, st.y.m12);
}

void ConvertYToChain(TwoPortState& st) {
  LiftIfTiny(st.y.m21);
  st.detY = DeterminantY(st);
  const ComplexValue y21 = AsPolar(st.y.m21);
  st.chain.a = Negated(Div(st.y.m22, y21));
  st.chain.b = Negated(Inverse(y21));
  st.chain.c = Negated(Div(st.detY, y21));
  st.chain.d = Negated(Div(st.y.m11, y21));
}

void ConvertChainToImage(TwoPortState& st) {
  LiftIfTiny(st.chain.c);
  st.image.propagation = ACosh(Scale(Add(st.chain.a, st.chain.d), 0.5));
  st.image.impedance = Sqrt(Div(st.chain.b, st.chain.c));
}

void ApplyCommonLeadFeedback(TwoPortState& st) {
  const ComplexValue v = Inverse(st.commonLeadImpedance);
  const ComplexValue s = AsPolar(Add(Add(Add(Add(st.y.m11, st.y.m12), st.y.m21), st.y.m22), v));
  st.detY = DeterminantY(st);
  const ComplexValue w = Add(Div(st.detY, s), st.feedbackAdmittance);
  st.y.m11 = Add(Div(Mul(st.y.m11, v), s), w);
  st.y.m12 = Sub(Div(Mul(st.y.m12, v), s), w);
  st.y.m21 = Sub(Div(Mul(st.y.m21, v), s), w);
  st.y.m22 = Add(Div(Mul(st.y.m22, v), s), w);
}

void ConvertSToY() { ConvertSToY(WorkingState()); }
void ConvertYToS() { ConvertYToS(WorkingState()); }
void ConvertYToZ() { ConvertYToZ(WorkingState()); }
void ConvertYToH() { ConvertYToH(WorkingState()); }
void ConvertYToPi() { ConvertYToPi(WorkingState()); }
void ConvertYToChain() { ConvertYToChain(WorkingState()); }
void ConvertChainToImage() { ConvertChainToImage(WorkingState()); }
void ApplyCommonLeadFeedback() { ApplyCommonLeadFeedback(WorkingState()); }

}  // namespace numerics
