#pragma once

#include <string>
#include <vector>

#include "graphwin/display_mode.h"
#include "numerics/data_set.h"

// What a graph window draws from, as the main window holds it: the loaded files with their
// active flags, the display count, Z0 and the display options of the frequency page. The main
// window fills it each time a window asks, so a window always sees the page as it is.
namespace graphwin::plots {

struct GraphFile {
  const numerics::TwoPortDataSet* set = nullptr;
  std::string path;  // full path, as the frequency page lists it
  bool active = true;
};

struct DisplayOptions {
  bool connect = true;  // "Connect Frequency Points", as it stood when the window was opened
  bool spline = true;
  bool legend = true;
  bool comment = false;
  bool equalFrequencies = false;
  bool fileNames = true;
};

struct GraphInputs {
  std::vector<GraphFile> files;  // in loading order
  int displayCount = 0;          // points shown of the one active file; 0 shows every point
  double z0 = 50;
  DisplayOptions options;
  DisplayMode mode = DisplayMode::Gain;
};

// The number of points of a file that the windows show.
int ShownPoints(const GraphInputs& inputs, const GraphFile& file);
// The file's name without its folder.
std::string FileName(const GraphFile& file);

}  // namespace graphwin::plots
