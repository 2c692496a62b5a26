#include <iostream>
#include <string>
#include <vector>

#include "command_modes.h"

int main(int argc, char* argv[]) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  const int status = app::RunHeadlessMode(args, std::cout, std::cerr);
  if (status >= 0) return status;
  std::cerr << "netrix: unknown option or missing mode.\n" << app::UsageText();
  return 2;
}
