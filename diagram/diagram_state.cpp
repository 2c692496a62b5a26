#include "diagram_state.h"

namespace diagram {

Diagram& CurrentDiagram() {
  static Diagram state;
  return state;
}

}  // namespace diagram
