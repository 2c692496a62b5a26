#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace app {

// netrix --figures FILE: one CSV line of gain and stability figures per point of FILE.
// Returns the process exit status.
int RunFiguresCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace app
