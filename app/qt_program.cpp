#include "qt_program.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <ostream>
#include <string>

namespace app {

int StartQtProgram(char* argv[], std::ostream& err) {
  std::error_code error;
  const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) {
    err << "netrix: cannot find its own folder (" << error.message() << "), so " << kQtProgramName
        << " cannot be started. Run it from the folder netrix is in.\n";
    return 1;
  }
  const std::string program = (self.parent_path() / kQtProgramName).string();
  execv(program.c_str(), argv);
  err << "netrix: cannot start " << program << " (" << std::strerror(errno) << "). It is built beside netrix; "
      << "run make build.\n";
  return 1;
}

}  // namespace app
