#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "canvas.h"
#include "diagram_state.h"

// Curves through the first count points of two parallel arrays (x and y values) in the frame of
// the diagram. Polar diagrams and the Smith chart pass the real parts
// as x and the imaginary parts as y.
namespace diagram {

inline constexpr std::uint8_t kMarkerSquare = 2;
inline constexpr std::uint8_t kMarkerCircle = 3;
inline constexpr std::uint8_t kMarkerCross = 4;  // any other kind is a dot

// Pixel point strictly inside the frame; points on its edge are clamped values.
bool IsStrictlyInside(const Diagram& d, int column, int row);

// Marker size in pixels; markers grow with the picture.
int MarkerSize(const Diagram& d);

// One marker of the kind with its point at (x, y), s pixels in size.
void DrawMarker(Canvas& canvas, std::uint8_t kind, int x, int y, int s);

// A polyline whose segments into and out of a point on or beyond the frame's edge are left out.
void DrawCurve(const Diagram& d, std::span<const double> x, std::span<const double> y, int count, Canvas& canvas);

// One marker per point strictly inside the frame.
void DrawMarkers(const Diagram& d, std::span<const double> x, std::span<const double> y, std::uint8_t kind,
                 int count, Canvas& canvas);

// DrawCurve, then the text at the pixel of the curve's first point: starting there, or ending
// there when textLeft is set (for curves that start near the right-hand edge); moved where it
// would leave the picture or cover a text written before (see WriteCurveName).
void DrawCurveWithText(const Diagram& d, std::span<const double> x, std::span<const double> y, bool textLeft,
                       int count, Canvas& canvas, std::string_view text);

}  // namespace diagram
