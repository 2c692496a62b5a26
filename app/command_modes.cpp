#include "command_modes.h"

#include <ostream>

#include "figures_command.h"
#include "named_table.h"
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
    {"--help", RunHelp},
    {"-h", RunHelp},
};

}  // namespace

std::string UsageText() {
  return "Usage:\n"
         "  netrix [FILE...]\n"
         "      Open the main window with up to four S-parameter files loaded.\n"
         "  netrix --figures [--touchstone] FILE|FOLDER...\n"
         "      Print the gain and stability figures of every point of each file as CSV:\n"
         "      f_Hz,k,mu,mu_prime,stable,MAG_dB,MSG_or_MAG_dB,MUG_dB,U_dB,U_ratio_dB,S21sq_dB,h21_abs\n"
         "      A folder gives its .s2p and .spm files in name order. With more than one file, or\n"
         "      a folder, each row starts with the file's path (column \"file\"). Files are\n"
         "      evaluated in parallel and written in the given order; a file that cannot be read\n"
         "      is reported and the others are still written (exit status 1).\n"
         "      --touchstone reads the files as Touchstone files (option line, comments, formats,\n"
         "      parameter types, version 2.0 keywords, noise block) instead of the plain format.\n" +
         SeriesUsageText() +
         "  netrix --render VIEW --out PATH [--size WxH] [--chart z|y|zy] [--q Q]... [--no-spline]\n"
         "                 [--touchstone] FILE...\n"
         "      Draw up to four files into a picture without a display. VIEW is smith (S11 and\n"
         "      S22 in the Smith chart, up to six constant-Q arcs), polar (S21 and S12) or\n"
         "      cartesian (|S21| in dB against frequency). The format follows the extension of\n"
         "      PATH: .png, .bmp, .jpg, .gif or .pdf. Default size 768x576, chart z.\n"
         "  netrix --render reflection|transmission --out PATH [--mode smith|polar|cartesian|mag|db|phase]\n"
         "                 [--param s11|s22|s21|s12|both] [--chart z|y|zy] [--q Q]... [--circles FREQ]\n"
         "                 [--s12-zoom F] [--data CSV] FILE...\n"
         "      The reflection window's (S11, S22) or the transmission window's (S21, S12) picture\n"
         "      in a display mode (default smith, resp. polar). --circles draws the stability\n"
         "      circles and the conjugate match at the first file's point nearest FREQ; --s12-zoom\n"
         "      magnifies S12 in the polar diagram; --data writes the curves as CSV.\n"
         "  netrix --render gain --out PATH [--size WxH] [--curves mag,u,mug,s21] [--xlog] [--data CSV] FILE...\n"
         "      The gain window's picture: MAG/MSG, U, MUG and |S21|^2 in dB against frequency\n"
         "      (default mag). --xlog draws the frequency axis logarithmic; --data writes the\n"
         "      curves as CSV, one row per frequency, the same numbers as --figures.\n"
         "  netrix --render stability --out PATH [--size WxH] [--curves k,u,mu] [--xlog] [--data CSV] FILE...\n"
         "      The stability window's picture: k, mu and the unilateral figure u against\n"
         "      frequency (default k); --xlog and --data as for gain.\n"
         "  netrix --render impedance --out PATH [--size WxH] [--mode mag|re|q]\n"
         "                 [--curves port1,port2,pi,image,sym] [--xlog] [--data CSV] FILE...\n"
         "      The impedance window's picture: |Z|, Re(Z) or Q of 1/Y11, 1/Y22, the pi model's\n"
         "      series element, the image impedance and the push-pull sum (default port1).\n"
         "  netrix --render ft-fmax|k-mag|stability-limit --out PATH [--size WxH] [--connect]\n"
         "                 [series options] FILE...\n"
         "      Evaluate up to 40 files as a bias series (the options of --series) and draw the\n"
         "      graph of the output page: fT and fmax, k and MAG/MSG, or the stability limit\n"
         "      f(k>1) against the x-axis choice. --connect joins the points in list order.\n"
         "  netrix --help\n"
         "      Show this text.\n";
}

int RunHeadlessMode(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  if (args.empty() || args.front() == kRenderOption) return kNotHeadless;
  if (const HeadlessMode* mode = FindByName(kModes, args.front(), &HeadlessMode::option)) {
    return mode->run({args.begin() + 1, args.end()}, out, err);
  }
  // Anything else is the window; its arguments are file names, so only an unknown option is refused.
  if (args.front().rfind("--", 0) == 0) {
    err << "netrix: unknown option " << args.front() << ".\n" << UsageText();
    return 2;
  }
  return kNotHeadless;
}

}  // namespace app
