#include "command_modes.h"

#include <ostream>

#include "figures_command.h"
#include "render_command.h"
#include "series_command.h"

namespace app {
namespace {

struct HeadlessMode {
  const char* option;
  int (*run)(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
};

int RunHelp(const std::vector<std::string>&, std::ostream& out, std::ostream&) {
  out << UsageText();
  return 0;
}

constexpr HeadlessMode kModes[] = {
    {"--figures", RunFiguresCommand},
    {"--series", RunSeriesCommand},
    {"--render", RunRenderCommand},
    {"--help", RunHelp},
    {"-h", RunHelp},
};

}  // namespace

std::string UsageText() {
  return "Usage:\n"
         "  netrix [FILE...]\n"
         "      Open the main window with up to four S-parameter files loaded.\n"
         "  netrix --figures [--touchstone] FILE\n"
         "      Print the gain and stability figures of every point of FILE as CSV:\n"
         "      f_Hz,k,mu,mu_prime,stable,MAG_dB,MSG_or_MAG_dB,MUG_dB,U_dB,U_ratio_dB,S21sq_dB,h21_abs\n"
         "      --touchstone reads FILE as a Touchstone file (option line, comments, formats,\n"
         "      parameter types, version 2.0 keywords, noise block) instead of the plain format.\n" +
         SeriesUsageText() +
         "  netrix --render VIEW --out PATH [--size WxH] [--chart z|y|zy] [--q Q]... [--no-spline]\n"
         "                 [--touchstone] FILE...\n"
         "      Draw up to four files into a picture without a display. VIEW is smith (S11 and\n"
         "      S22 in the Smith chart, up to six constant-Q arcs), polar (S21 and S12) or\n"
         "      cartesian (|S21| in dB against frequency). The format follows the extension of\n"
         "      PATH: .png, .bmp, .jpg, .gif or .pdf. Default size 768x576, chart z.\n"
         "  netrix --render gain --out PATH [--size WxH] [--curves mag,u,mug,s21] [--xlog] [--data CSV] FILE...\n"
         "      The gain window's picture: MAG/MSG, U, MUG and |S21|^2 in dB against frequency\n"
         "      (default mag). --xlog draws the frequency axis logarithmic; --data writes the\n"
         "      curves as CSV, one row per frequency, the same numbers as --figures.\n"
         "  netrix --render ft-fmax|k-mag|stability-limit --out PATH [--size WxH] [--connect]\n"
         "                 [series options] FILE...\n"
         "      Evaluate up to 40 files as a bias series (the options of --series) and draw the\n"
         "      graph of the output page: fT and fmax, k and MAG/MSG, or the stability limit\n"
         "      f(k>1) against the x-axis choice. --connect joins the points in list order.\n"
         "  netrix --help\n"
         "      Show this text.\n";
}

int RunHeadlessMode(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  if (args.empty()) return -1;
  for (const HeadlessMode& mode : kModes) {
    if (args.front() == mode.option) return mode.run({args.begin() + 1, args.end()}, out, err);
  }
  return -1;
}

}  // namespace app
