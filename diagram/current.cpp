#include "current.h"

#include "autoscale.h"
#include "axes.h"
#include "curves.h"
#include "grid.h"
#include "numerics/two_port_state.h"
#include "scaling.h"

namespace diagram {

void SetAxisModes(AxisMode xMode, AxisMode yMode) { SetAxisModes(CurrentDiagram(), xMode, yMode); }

void SetupAxes(Canvas& canvas, double xMax, double xMin, double yMax, double yMin) {
  SetupAxes(CurrentDiagram(), canvas.Width(), canvas.Height(), xMax, xMin, yMax, yMin);
}

void SetAxisCrossing(double xCross, double yCross) { SetAxisCrossing(CurrentDiagram(), xCross, yCross); }
void AutoscaleX(std::span<const double> values, int count) { AutoscaleX(CurrentDiagram(), values, count); }
void AutoscaleY(std::span<const double> values, int count) { AutoscaleY(CurrentDiagram(), values, count); }
int XToPixel(double x) { return XToPixel(CurrentDiagram(), x); }
int YToPixel(double y) { return YToPixel(CurrentDiagram(), y); }
void DrawGrid(int nx, int ny, Canvas& canvas) { DrawGrid(CurrentDiagram(), nx, ny, canvas); }

void DrawAxes(bool flipX, bool flipY, Canvas& canvas, double yStep, double xStep) {
  DrawAxes(CurrentDiagram(), flipX, flipY, canvas, yStep, xStep);
}

void DrawAxisLabels(LabelPlacement placement, Canvas& canvas) { DrawAxisLabels(CurrentDiagram(), placement, canvas); }
void DrawXTitle(std::string_view text, bool below, Canvas& canvas) { DrawXTitle(CurrentDiagram(), text, below, canvas); }
void DrawYTitle(std::string_view text, Canvas& canvas) { DrawYTitle(CurrentDiagram(), text, canvas); }

void DrawCurve(std::span<const double> x, std::span<const double> y, int count, Canvas& canvas) {
  DrawCurve(CurrentDiagram(), x, y, count, canvas);
}

void DrawMarkers(std::span<const double> x, std::span<const double> y, std::uint8_t kind, int count, Canvas& canvas) {
  DrawMarkers(CurrentDiagram(), x, y, kind, count, canvas);
}

void DrawCurveWithText(std::span<const double> x, std::span<const double> y, bool textLeft, int count,
                       Canvas& canvas, std::string_view text) {
  DrawCurveWithText(CurrentDiagram(), x, y, textLeft, count, canvas, text);
}

void DrawSmithGrid(ChartKind kind, Canvas& canvas, bool labels) {
  DrawSmithGrid(CurrentDiagram(), kind, canvas, labels, numerics::WorkingState().z0);
}

void DrawQArcs(Canvas& canvas, double q) { DrawQArcs(CurrentDiagram(), canvas, q); }

}  // namespace diagram
