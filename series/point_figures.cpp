#include "point_figures.h"

#include "numerics/conversions.h"

namespace series {
namespace {

constexpr double kTwoPi = 6.283185307179586;
// The tiny admittance between input and output that keeps the feedback network regular.
constexpr double kFeedbackAdmittance = 1e-12;

}  // namespace

void InsertGroundInductance(numerics::TwoPortState& st, double f, double lgnd) {
  st.feedbackAdmittance = numerics::MakeCartesian(kFeedbackAdmittance, kFeedbackAdmittance);
  st.commonLeadImpedance = numerics::MakeCartesian(0, kTwoPi * f * lgnd);
  numerics::ConvertSToY(st);
  numerics::ApplyCommonLeadFeedback(st);
  numerics::ConvertYToS(st);
}

PointFigures ComputePointFigures(numerics::TwoPortState& st) {
  numerics::TwoPortFigures figures;
  numerics::ComputeGainFigures(st, figures);
  return {figures.k, figures.bestGain, figures.u};
}

CurrentGain ComputeCurrentGain(numerics::TwoPortState& st) {
  numerics::ConvertSToY(st);
  numerics::ConvertYToH(st);
  return {numerics::Abs(st.h.m21), numerics::Abs(st.s.m21)};
}

}  // namespace series
