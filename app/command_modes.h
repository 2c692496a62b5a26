#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace app {

// The mode that draws pictures without a display; it runs in the program that links Qt.
inline constexpr const char* kRenderOption = "--render";

// Returned by RunHeadlessMode when the arguments belong to the program that links Qt.
inline constexpr int kNotHeadless = -1;

// Runs the headless mode named by args[0] ("--figures", "--help", ...) with the remaining
// arguments and returns its exit status; refuses an unknown option. Returns kNotHeadless for
// the window (no arguments, or file names) and for --render.
int RunHeadlessMode(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// The text of netrix --help.
std::string UsageText();

}  // namespace app
