#pragma once

#include <optional>

#include "diagram/canvas.h"
#include "diagram/diagram_state.h"
#include "diagram/smith_geometry.h"
#include "numerics/data_set.h"

// The stability circles and the simultaneous conjugate match of one point of a file, as the
// figures of merit give them, in the reflection plane of the Smith chart; and their drawing.
namespace graphwin::plots {

struct StabilityCircle {
  diagram::PlanePoint centre;
  double radius = 0;
  // Which side of the circle holds the terminations that make the other port's reflection
  // exceed 1: the side without the chart's centre when that centre is stable, else the other.
  bool unstableInside = false;
};

struct MatchCircles {
  double frequency = 0;
  StabilityCircle input;   // source plane: where |reflection at the output| = 1
  StabilityCircle output;  // load plane: where |reflection at the input| = 1
  std::optional<diagram::PlanePoint> sourceMatch;  // simultaneous conjugate match, where it exists
  std::optional<diagram::PlanePoint> loadMatch;
};

MatchCircles MatchCirclesOf(const numerics::SParameters& point, double frequency);

inline constexpr diagram::Colour kInputCircleColour = diagram::MakeColour(0, 0x90, 0x90);
inline constexpr diagram::Colour kOutputCircleColour = diagram::MakeColour(0xB0, 0, 0xB0);

// Both circles with their unstable side hatched within the rim, the match points marked, and
// a legend in the lower left corner of the frame; nothing beyond the frame.
void DrawMatchCircles(const diagram::Diagram& d, const MatchCircles& circles, diagram::Canvas& canvas);

}  // namespace graphwin::plots
