#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace app {

// netrix --render VIEW --out PATH [--size WxH] [--chart z|y|zy] [--q Q]... [--no-spline] FILE...
// Loads up to four files and draws the view into a picture file whose format follows the
// extension of PATH. Needs no display. Returns the process exit status.
int RunRenderCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace app
