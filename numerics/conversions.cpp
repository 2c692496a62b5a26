#include "conversions.h"

#include "cartesian.h"

namespace numerics {
namespace {

// A working matrix in Cartesian doubles: the conversions read each element once and write
// their results back in Cartesian form.
struct CartesianMatrix {
  Cartesian m11, m12, m21, m22;
};

CartesianMatrix ToCartesianMatrix(const Matrix2& m) {
  return {ToCartesian(m.m11), ToCartesian(m.m12), ToCartesian(m.m21), ToCartesian(m.m22)};
}

Matrix2 ToValues(const CartesianMatrix& m) { return {ToValue(m.m11), ToValue(m.m12), ToValue(m.m21), ToValue(m.m22)}; }

CartesianMatrix Scaled(const CartesianMatrix& m, double factor) {
  return {m.m11 * factor, m.m12 * factor, m.m21 * factor, m.m22 * factor};
}

Cartesian Determinant(const CartesianMatrix& m) { return m.m11 * m.m22 - m.m12 * m.m21; }

// The bilinear map shared by S->Y and Y->S: with a = m11, d = m22 and the product p = m12*m21,
// out11 = ((1 - a)(1 + d) + p) / D, out22 = ((1 + a)(1 - d) + p) / D, out12 = -2 m12 / D,
// where D = (1 + a)(1 + d) - p.
CartesianMatrix BilinearTransform(const CartesianMatrix& m, Cartesian inverseDivisor) {
  const Cartesian product = m.m12 * m.m21;
  return {((1 - m.m11) * (1 + m.m22) + product) * inverseDivisor, m.m12 * inverseDivisor * -2,
          m.m21 * inverseDivisor * -2, ((1 + m.m11) * (1 - m.m22) + product) * inverseDivisor};
}

Cartesian OnePlusProductMinus(const CartesianMatrix& m) { return (1 + m.m11) * (1 + m.m22) - m.m12 * m.m21; }

// Y12 and Y21 lifted in place, as the conversions through det Y need them.
CartesianMatrix LiftedTransfer(Matrix2& y) {
  CartesianMatrix c = ToCartesianMatrix(y);
  LiftIfTiny(c.m12);
  LiftIfTiny(c.m21);
  y.m12 = ToValue(c.m12);
  y.m21 = ToValue(c.m21);
  return c;
}

}  // namespace

ComplexValue DeterminantS(const TwoPortState& st) { return ToValue(Determinant(ToCartesianMatrix(st.s))); }

ComplexValue DeterminantY(const TwoPortState& st) { return ToValue(Determinant(ToCartesianMatrix(st.y))); }

void ConvertSToY(TwoPortState& st) {
  CartesianMatrix s = ToCartesianMatrix(st.s);
  ShrinkIfUnit(s.m11);
  ShrinkIfUnit(s.m22);
  LiftIfTiny(s.m12);
  LiftIfTiny(s.m21);
  st.s = ToValues(s);
  st.y = ToValues(Scaled(BilinearTransform(s, Reciprocal(OnePlusProductMinus(s))), 1 / st.z0));
}

void ConvertYToS(TwoPortState& st) {
  const CartesianMatrix y = Scaled(ToCartesianMatrix(st.y), st.z0);
  Cartesian denominator = OnePlusProductMinus(y);
  LiftIfTiny(denominator);
  CartesianMatrix s = BilinearTransform(y, Reciprocal(denominator));
  // A unit magnitude is pulled to 0.9999, the output port first.
  if (Magnitude(s.m22) == 1) s.m22 = s.m22 * 0.9999;
  if (Magnitude(s.m11) == 1) s.m11 = s.m11 * 0.9999;
  st.s = ToValues(s);
  st.y = ToValues(Scaled(y, 1 / st.z0));
}

void ConvertYToZ(TwoPortState& st) {
  const CartesianMatrix y = LiftedTransfer(st.y);
  const Cartesian det = Determinant(y);
  st.detY = ToValue(det);
  const Cartesian inverse = Reciprocal(det);
  st.z = ToValues({y.m22 * inverse, y.m12 * inverse * -1, y.m21 * inverse * -1, y.m11 * inverse});
}

void ConvertYToH(TwoPortState& st) {
  const CartesianMatrix y = LiftedTransfer(st.y);
  const Cartesian det = Determinant(y);
  st.detY = ToValue(det);
  const Cartesian inverse = Reciprocal(y.m11);
  st.h = ToValues({inverse, y.m12 * inverse * -1, y.m21 * inverse, det * inverse});
}

void ConvertYToPi(TwoPortState& st) {
  const CartesianMatrix y = ToCartesianMatrix(st.y);
  st.pi.series = ToValue(y.m12 * -1);
  st.pi.inputShunt = ToValue(y.m11 + y.m12);
  st.pi.transadmittance = ToValue(y.m21 - y.m12);
  st.pi.outputShunt = ToValue(y.m22 + y.m12);
}

void ConvertYToChain(TwoPortState& st) {
  CartesianMatrix y = ToCartesianMatrix(st.y);
  LiftIfTiny(y.m21);
  st.y.m21 = ToValue(y.m21);
  const Cartesian det = Determinant(y);
  st.detY = ToValue(det);
  const Cartesian minusInverse = Reciprocal(y.m21) * -1;
  st.chain = {ToValue(y.m22 * minusInverse), ToValue(minusInverse), ToValue(det * minusInverse),
              ToValue(y.m11 * minusInverse)};
}

// The image parameters keep the ComplexValue operations: the imaginary part of ACosh is in
// degrees, as Ln gives it.
void ConvertChainToImage(TwoPortState& st) {
  LiftIfTiny(st.chain.c);
  st.image.propagation = ACosh(Scale(Add(st.chain.a, st.chain.d), 0.5));
  st.image.impedance = Sqrt(Div(st.chain.b, st.chain.c));
}

void ApplyCommonLeadFeedback(TwoPortState& st) {
  const CartesianMatrix y = ToCartesianMatrix(st.y);
  const Cartesian v = Reciprocal(ToCartesian(st.commonLeadImpedance));
  const Cartesian inverseSum = Reciprocal(y.m11 + y.m12 + y.m21 + y.m22 + v);
  const Cartesian det = Determinant(y);
  st.detY = ToValue(det);
  const Cartesian w = det * inverseSum + ToCartesian(st.feedbackAdmittance);
  const Cartesian factor = v * inverseSum;
  st.y = ToValues({y.m11 * factor + w, y.m12 * factor - w, y.m21 * factor - w, y.m22 * factor + w});
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
