#include "zoom.h"

#include <algorithm>

#include "axis.h"
#include "numerics/rounding.h"
#include "scaling.h"

namespace diagram {
namespace {

constexpr double kZoomFactor = 1.5;

void ZoomLinear(Axis& a, double factor) {
  a.min = a.cross - (a.cross - a.min) * factor;
  a.max = a.cross + (a.max - a.cross) * factor;
}

void ZoomLogIn(Axis& a) {
  // A range of exactly one decade is not narrowed any further.
  if (a.max / a.min > 10) a.min *= 10;
  a.max = std::max(a.max / 10, a.min * 10);
}

void ZoomLogOut(Axis& a) {
  a.min /= 10;
  a.max *= 10;
  a.cross = a.min;
}

void ZoomAxis(Axis& a, bool in) {
  if (a.mode == AxisMode::Log) {
    in ? ZoomLogIn(a) : ZoomLogOut(a);
  } else {
    ZoomLinear(a, in ? 1 / kZoomFactor : kZoomFactor);
  }
  a.step = numerics::NiceStep((a.max - a.min) / 30);
}

void Zoom(Diagram& d, bool in) {
  ZoomAxis(d.x, in);
  ZoomAxis(d.y, in);
  RecomputeXAxis(d);
  RecomputeYAxis(d);
}

}  // namespace

void ZoomIn(Diagram& d) { Zoom(d, true); }
void ZoomOut(Diagram& d) { Zoom(d, false); }

}  // namespace diagram
