#pragma once

#include <span>

// Smoothing of a curve before it is drawn: a natural cubic spline through the points,
// evaluated at a denser set of x values. Plain C++.
namespace diagram {

inline constexpr int kSplineMaxPoints = 300;
inline constexpr int kSplineCapacity = kSplineMaxPoints + 1;  // values at indices 0..300

// x[0..lastIndex] and y[0..lastIndex] are replaced by a curve through the same points with
// every interval cut into k = maxPoints div lastIndex parts; lastIndex becomes lastIndex * k.
// Nothing happens when k < 2 or lastIndex < 4. maxPoints above 300 counts as 300. With logX
// (logY) the spline runs through ln|x| (ln|y|), so negative values come back positive. Both
// arrays must hold kSplineCapacity values; x must rise strictly.
void SplineResample(std::span<double> x, std::span<double> y, int& lastIndex, bool logX, bool logY, int maxPoints);

}  // namespace diagram
