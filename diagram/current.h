#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "axis_labels.h"
#include "canvas.h"
#include "diagram_state.h"
#include "smith_chart.h"

// The engine's entry points on the program-wide diagram state (CurrentDiagram()), in the order
// a redraw calls them. Each forwards to the function of the same name that takes the state.
namespace diagram {

void SetAxisModes(AxisMode xMode, AxisMode yMode);
void SetupAxes(Canvas& canvas, double xMax, double xMin, double yMax, double yMin);
void SetAxisCrossing(double xCross, double yCross);
void AutoscaleX(std::span<const double> values, int count);
void AutoscaleY(std::span<const double> values, int count);
int XToPixel(double x);
int YToPixel(double y);
void DrawGrid(int nx, int ny, Canvas& canvas);
void DrawAxes(bool flipX, bool flipY, Canvas& canvas, double yStep, double xStep);
void DrawAxisLabels(LabelPlacement placement, Canvas& canvas);
void DrawXTitle(std::string_view text, bool below, Canvas& canvas);
void DrawYTitle(std::string_view text, Canvas& canvas);
void DrawCurve(std::span<const double> x, std::span<const double> y, int count, Canvas& canvas);
void DrawMarkers(std::span<const double> x, std::span<const double> y, std::uint8_t kind, int count, Canvas& canvas);
void DrawCurveWithText(std::span<const double> x, std::span<const double> y, bool textLeft, int count,
                       Canvas& canvas, std::string_view text);
// Labels in ohms at the reference impedance of the working state.
void DrawSmithGrid(ChartKind kind, Canvas& canvas, bool labels);
void DrawQArcs(Canvas& canvas, double q);

}  // namespace diagram
