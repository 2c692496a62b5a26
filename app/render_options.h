#pragma once

#include <optional>
#include <string>
#include <vector>

#include "diagram/smith_chart.h"
#include "graphwin/plots/gain_plot.h"
#include "graphwin/plots/sparameter_plot.h"

// The command line of netrix --render, parsed but not yet checked against the views, the
// picture formats and the file system.
namespace app {

inline constexpr int kMaxRenderFiles = 4;
inline constexpr int kMaxQArcs = 6;
inline constexpr int kMinRenderSide = 64;
inline constexpr int kMaxRenderSide = 10000;
inline constexpr const char* kGainView = "gain";
inline constexpr const char* kReflectionView = "reflection";
inline constexpr const char* kTransmissionView = "transmission";

struct RenderOptions {
  std::string view;
  std::string outPath;
  int width = 768;
  int height = 576;
  diagram::ChartKind chart = diagram::ChartKind::Impedance;
  std::vector<double> qValues;
  bool spline = true;
  // The gain view's: the curves drawn, a logarithmic frequency axis, the CSV file of the curves.
  graphwin::plots::GainChoice gainCurves;
  bool xlog = false;
  std::string dataPath;
  bool gainOptionsGiven = false;
  // The reflection and transmission views': the display mode (their first when not given), the
  // parameters ("s11", "s22", "s21", "s12" or "both"), the circles' frequency, the S12 zoom.
  std::optional<graphwin::plots::SView> mode;
  std::string parameters = "both";
  std::optional<double> circlesFrequency;
  double s12Zoom = 1;
  bool touchstone = false;  // read the files as Touchstone files
  std::vector<std::string> files;
};

struct ParsedRenderOptions {
  RenderOptions options;
  std::string error;  // what is wrong with the command line, empty when nothing is
};

// Reads "WIDTHxHEIGHT" with sides from 64 to 10000 pixels; returns an error text or "".
std::string ParseSize(const std::string& text, int& width, int& height);

// args: VIEW --out PATH [--size WxH] [--chart z|y|zy] [--q Q]... [--no-spline]
//       [--curves mag,u,mug,s21] [--xlog] [--data CSV] [--mode M] [--param P] [--circles FREQ]
//       [--s12-zoom F] [--touchstone] FILE...
ParsedRenderOptions ParseRenderOptions(const std::vector<std::string>& args);

}  // namespace app
