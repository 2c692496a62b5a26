#include <iostream>
#include <string>
#include <vector>

#include "command_modes.h"
#include "mainwin/form_set.h"
#include "render_command.h"
#include "runtime_directory.h"

// The program that links Qt: the window and --render, started by netrix. Run by itself it
// takes the headless modes too.
int main(int argc, char* argv[]) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  const int status = app::RunHeadlessMode(args, std::cout, std::cerr);
  if (status != app::kNotHeadless) return status;
  app::NameRuntimeDirectory();
  if (!args.empty() && args.front() == app::kRenderOption) {
    return app::RunRenderCommand({args.begin() + 1, args.end()}, std::cout, std::cerr);
  }
  return mainwin::RunGui(argc, argv);
}
