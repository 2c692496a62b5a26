#include "window_rules.h"

#include <cmath>

namespace graphwin {
namespace {

constexpr double kSizeStep = 0.75;

int Rounded(double v) { return static_cast<int>(std::nearbyint(v)); }

}  // namespace

WindowSize EnlargedSize(WindowSize size) { return {Rounded(size.width / kSizeStep), Rounded(size.height / kSizeStep)}; }

WindowSize ShrunkSize(WindowSize size) { return {Rounded(size.width * kSizeStep), Rounded(size.height * kSizeStep)}; }

WindowSize StandardSize(int screenWidth) {
  if (screenWidth >= 999) return {768, 576};
  if (screenWidth < 799) return {533, 400};
  return {640, 480};
}

WindowSize PrintedBitmapSize(WindowSize picture, int pageWidth) {
  if (picture.height > picture.width) return {pageWidth, 0};
  return {pageWidth, Rounded(static_cast<double>(pageWidth) * picture.height / picture.width)};
}

DotState NextDotState(DotState state) {
  if (state.dots) return {false, true};
  return {!state.second, false};
}

std::string AxisEndLabel(AxisEnd end) {
  switch (end) {
    case AxisEnd::XMax: return "xmax=";
    case AxisEnd::XMin: return "xmin=";
    case AxisEnd::YMin: return "ymin=";
    case AxisEnd::YMax: return "ymax=";
  }
  return {};
}

}  // namespace graphwin
