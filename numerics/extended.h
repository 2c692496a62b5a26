#pragma once

namespace numerics {

// The 80-bit x86 extended type: formulas compute in it, stored values are double.
using Extended = long double;

}  // namespace numerics
