#include <iostream>
#include <string>
#include <vector>

#include "command_modes.h"
#include "mainwin/form_set.h"

int main(int argc, char* argv[]) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  const int status = app::RunHeadlessMode(args, std::cout, std::cerr);
  if (status >= 0) return status;
  // Anything else is the GUI; its arguments are file names, so only an unknown option is refused.
  if (!args.empty() && args.front().rfind("--", 0) == 0) {
    std::cerr << "netrix: unknown option " << args.front() << ".\n" << app::UsageText();
    return 2;
  }
  return mainwin::RunGui(argc, argv);
}
