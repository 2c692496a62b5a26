#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace app {

// Runs the headless mode named by args[0] ("--figures", "--help", ...) with the remaining
// arguments. Returns the exit status, or -1 when args[0] names no headless mode.
int RunHeadlessMode(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// The text of netrix --help.
std::string UsageText();

}  // namespace app
