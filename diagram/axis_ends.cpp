#include "axis_ends.h"

#include <cmath>

#include "axis.h"
#include "scaling.h"

namespace diagram {
namespace {

bool IsNear(const Diagram& d, double x, double y, int column, int row) {
  const double px = ToPixelExact(XAxisOf(d), x);
  const double py = ToPixelExact(YAxisOf(d), y);
  return std::fabs(px - column) <= kAxisEndZone && std::fabs(py - row) <= kAxisEndZone;
}

int XAxisRow(const Diagram& d) { return YToPixel(d, d.yCross); }
int YAxisColumn(const Diagram& d) { return XToPixel(d, d.xCross); }

}  // namespace

bool IsAtXMaxEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, d.pixRight, XAxisRow(d)); }
bool IsAtXMinEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, d.pixLeft, XAxisRow(d)); }
bool IsAtYMinEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, YAxisColumn(d), d.pixBottom); }
bool IsAtYMaxEnd(const Diagram& d, double x, double y) { return IsNear(d, x, y, YAxisColumn(d), d.pixTop); }

}  // namespace diagram
