#include <iostream>
#include <string>
#include <vector>

#include "command_modes.h"
#include "qt_program.h"
#include "standard_streams.h"

// The command users type. The headless modes run here, without the GUI libraries; the window
// and --render are handed to the program that links Qt.
int main(int argc, char* argv[]) {
  app::ReserveClosedStandardStreams();
  const std::vector<std::string> args(argv + 1, argv + argc);
  const int status = app::RunHeadlessMode(args, std::cout, std::cerr);
  if (status != app::kNotHeadless) return status;
  return app::StartQtProgram(argv, std::cerr);
}
