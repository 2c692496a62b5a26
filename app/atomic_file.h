#pragma once

#include <string>

namespace app {

// Writes content to path through a temporary file in the same folder that is renamed over
// path at the end, so path holds either its old content or the whole new one. A symbolic link
// is written through, to its target; an existing file keeps its permissions; a device or a pipe
// is written directly. On failure the temporary file is removed and error says what happened.
bool WriteFileAtomically(const std::string& path, const std::string& content, std::string& error);

}  // namespace app
