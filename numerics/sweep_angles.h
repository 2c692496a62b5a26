#pragma once

#include "data_set.h"

// The angles of a sweep as the store keeps them: each folded once towards +-180 degrees as it is
// read, then unwrapped against the stored angle of the point before, so curves do not jump by 360.
namespace numerics {

// Subtracts 360 above 180 and adds 360 below -180, once.
double FoldOnce(double angle);

// Brings every angle of point next to the same parameter's angle in previous.
void UnwrapAgainst(SParameters& point, const SParameters& previous);

}  // namespace numerics
