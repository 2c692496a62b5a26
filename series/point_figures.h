#pragma once

#include "numerics/figures.h"
#include "numerics/two_port_state.h"

// The figures the series evaluation takes from one frequency point.
namespace series {

// Puts the inductance lgnd (H) into the common lead of the two-port whose S-parameters at
// frequency f (Hz) are in st.s; st.s then holds the device with the inductance.
void InsertGroundInductance(numerics::TwoPortState& st, double f, double lgnd);

struct PointFigures {
  double k = 0;
  double bestGain = 0;  // MAG, or MSG where MAG is 0
  double u = 0;         // Mason's unilateral gain
};

// k and the gains of the point in st.s. The figures guard st.s in place; the current gain
// below is taken from the guarded matrix.
PointFigures ComputePointFigures(numerics::TwoPortState& st);

struct CurrentGain {
  double h21 = 0;  // |h21|, the short-circuit current gain
  double s21 = 0;  // |S21| as the conversion to Y leaves it
};

// |h21| and |S21| of the point in st.s, through Y and H.
CurrentGain ComputeCurrentGain(numerics::TwoPortState& st);

}  // namespace series
