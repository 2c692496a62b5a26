#pragma once

#include <string>

#include "page_scene.h"

// The mouse read-out of an output graph: the quantity of each axis with its unit, as the page's
// x-axis choice and the series shown make them ("Ic = 15.18 mA, fT = 28.64 GHz").
namespace diagram::pages {

// x and y are the world values under the mouse.
std::string ReadOutText(OutputPage page, const PageScene& scene, double x, double y);

}  // namespace diagram::pages
