#include "axis_ends.h"

#include <cmath>

#include "axis.h"
#include "scaling.h"

namespace diagram {
namespace {

bool IsNear(const Diagram& d, double x, double y, int column, int row) {
  const double px = ToPixelExact(d.x, x);
  const double py = ToPixelExact(d.y, y);
  return std::fabs(px - column) <= kAxisEndZone && std::fabs(py - row) <= kAxisEndZone;
}

int XAxisRow(const Diagram& d) { return YToPixel(d, d.y.cross); }
int YAxisColumn(const Diagram& d) { return XToPixel(d, d.x.cross); }

}  // namespace

bool IsAtXMaxEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, d.x.pixMax, XAxisRow(d)); }
bool IsAtXMinEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, d.x.pixMin, XAxisRow(d)); }
bool IsAtYMinEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, YAxisColumn(d), d.y.pixMin); }
bool IsAtYMaxEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, YAxisColumn(d), d.y.pixMax); }

}  // namespace diagram
