#include "frame.h"

#include "axes.h"
#include "grid.h"
#include "scaling.h"

namespace diagram {

FrameLook GridFrame(int gridX, int gridY) {
  FrameLook look;
  look.gridX = gridX;
  look.gridY = gridY;
  return look;
}

FrameLook SmithFrame(ChartKind chart, double z0) {
  FrameLook look;
  look.smithChart = chart;
  look.z0 = z0;
  return look;
}

void DrawFrame(Diagram& d, Canvas& canvas, const FrameLook& look) {
  ClearDiagram(kWhite, canvas);
  canvas.SetFont(DiagramFont{});
  SetupAxes(d, canvas.Width(), canvas.Height(), d.x.max, d.x.min, d.y.max, d.y.min);
  SetAxisCrossing(d, d.x.cross, d.y.cross);
  SetDrawColour(kGrey, canvas);
  if (look.smithChart) {
    DrawSmithGrid(d, *look.smithChart, canvas, true, look.z0);
  } else {
    DrawGrid(d, look.gridX, look.gridY, canvas);
  }
  SetDrawColour(kBlack, canvas);
  if (!look.smithChart) {
    DrawAxes(d, look.labels.xLabelsAbove, look.labels.yLabelsRight, canvas, d.y.step, d.x.step);
    DrawAxisLabels(d, look.labels, canvas);
  }
  DiagramFont bold;
  bold.bold = true;
  canvas.SetFont(bold);
}

}  // namespace diagram
