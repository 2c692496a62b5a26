#include "two_port_state.h"

namespace numerics {

TwoPortState& WorkingState() {
  static TwoPortState state;
  return state;
}

}  // namespace numerics
