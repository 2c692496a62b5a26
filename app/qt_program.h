#pragma once

#include <iosfwd>

// The window and netrix --render run in a second program, the one that links Qt, so that the
// headless modes start without loading the GUI libraries. It lies beside netrix.
namespace app {

inline constexpr const char* kQtProgramName = "netrix-gui";

// Replaces this process by the Qt program beside the running executable, with the same
// arguments. Returns only when that fails: says why on err and returns the exit status.
int StartQtProgram(char* argv[], std::ostream& err);

}  // namespace app
