#pragma once

#include <complex>

#include "extended.h"

// The network parameters a Touchstone file may hold, turned into S-parameters at one reference
// impedance. Port references are real and positive; a matrix normalised to references r1, r2
// holds z = Z / sqrt(ri rj), y = Y sqrt(ri rj), and h, g scaled the same way element by element.
namespace numerics {

enum class NetworkParameter { S, Y, Z, H, G };

using ExtendedComplex = std::complex<Extended>;

struct NetworkMatrix {
  ExtendedComplex m11, m12, m21, m22;
};

struct PortReferences {
  double r1 = 50;  // ohms
  double r2 = 50;
};

// Parameters in ohms and siemens normalised to the references (S is returned as it is).
NetworkMatrix NormaliseParameters(NetworkParameter kind, const NetworkMatrix& values, PortReferences references);

// S at the references from parameters normalised to them.
NetworkMatrix ScatteringFromNormalised(NetworkParameter kind, const NetworkMatrix& normalised);

// S at the references renormalised to z0 at both ports.
NetworkMatrix RenormaliseScattering(const NetworkMatrix& s, PortReferences references, double z0);

}  // namespace numerics
