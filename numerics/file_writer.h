#pragma once

#include <string>
#include <string_view>

namespace numerics {

// What became of a write: an empty reason when the file was written, else the system's reason
// ("No space left on device") for the caller's own message.
struct FileWriteOutcome {
  std::string reason;
  bool noTemporaryFile = false;  // the folder took no new file, so nothing was written at all
  bool Ok() const { return reason.empty(); }
};

// Writes content to path through a temporary file in the same folder that is renamed over
// path at the end, so path holds either its old content or the whole new one. A symbolic link
// is written through, to its target; an existing file keeps its permissions; a device or a pipe
// is written directly. On failure the temporary file is removed.
FileWriteOutcome WriteFileAtomically(const std::string& path, std::string_view content);

}  // namespace numerics
