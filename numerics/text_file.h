#pragma once

#include <optional>
#include <string>

namespace numerics {

// The whole content of a data file. When it cannot be read, reason says why in a few words
// ("No such file or directory", "not a regular file") for the caller's message.
std::optional<std::string> ReadTextFile(const std::string& path, std::string& reason);

}  // namespace numerics
