#pragma once

#include <ostream>
#include <string_view>

namespace app {

inline constexpr std::string_view kSeriesMode = "netrix --series";
inline constexpr std::string_view kRenderMode = "netrix --render";

// Says on err why the mode failed ("netrix --render: ..."), and returns the exit status of a failed run.
inline int Fail(std::ostream& err, std::string_view mode, std::string_view message) {
  err << mode << ": " << message << '\n';
  return 1;
}

}  // namespace app
