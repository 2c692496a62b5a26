#pragma once

#include <string>

// The rules of the common graph window that need no window: the size commands, the dot cycle
// and the axis ends that the left button grabs. Plain C++.
namespace graphwin {

inline constexpr int kLeastWindowWidth = 400;
inline constexpr int kLeastWindowHeight = 350;

struct WindowSize {
  int width, height;
  bool operator==(const WindowSize&) const = default;
};

// A quarter larger or smaller; the two are not exact inverses, as rounding drifts.
WindowSize EnlargedSize(WindowSize size);
WindowSize ShrunkSize(WindowSize size);
// 768 x 576 on a screen at least 999 pixels wide, 533 x 400 below 799, else 640 x 480.
WindowSize StandardSize(int screenWidth);

// A picture printed as a bitmap: as wide as the page, in its own proportions; a picture higher
// than wide prints an empty page (height 0).
WindowSize PrintedBitmapSize(WindowSize picture, int pageWidth);

// The dot button cycles: dots on; dots off with the second flag; dots off; dots on again.
// The second flag draws the lines straight from point to point.
struct DotState {
  bool dots = false;
  bool second = false;
};
DotState NextDotState(DotState state);

enum class AxisEnd { XMax, XMin, YMin, YMax };  // in the order a click tests them
inline constexpr AxisEnd kAxisEnds[] = {AxisEnd::XMax, AxisEnd::XMin, AxisEnd::YMin, AxisEnd::YMax};

inline bool IsXEnd(AxisEnd end) { return end == AxisEnd::XMax || end == AxisEnd::XMin; }
// "xmax=", "xmin=", "ymin=", "ymax=".
std::string AxisEndLabel(AxisEnd end);

struct Bounds {
  double lower, upper;
};

}  // namespace graphwin
