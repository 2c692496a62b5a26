#pragma once

#include "two_port_state.h"

// Conversions between the representations of the current point. Each works on a state passed
// in; the argument-free forms work on WorkingState().
namespace numerics {

ComplexValue DeterminantS(const TwoPortState& st);
ComplexValue DeterminantY(const TwoPortState& st);

void ConvertSToY(TwoPortState& st);
void ConvertYToS(TwoPortState& st);
void ConvertYToZ(TwoPortState& st);
void ConvertYToH(TwoPortState& st);
void ConvertYToPi(TwoPortState& st);
void ConvertYToChain(TwoPortState& st);
void ConvertChainToImage(TwoPortState& st);
// Inserts the common-lead impedance Zc and the admittance Yx between input and output
// into the Y matrix.
void ApplyCommonLeadFeedback(TwoPortState& st);

void ConvertSToY();
void ConvertYToS();
void ConvertYToZ();
void ConvertYToH();
void ConvertYToPi();
void ConvertYToChain();
void ConvertChainToImage();
void ApplyCommonLeadFeedback();

}  // namespace numerics
