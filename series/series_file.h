#pragma once

#include <optional>
#include <string>

namespace series {

// The whole content of a series file. When the file cannot be read, error says which file
// and why, and what to do.
std::optional<std::string> ReadSeriesFile(const std::string& path, std::string& error);

}  // namespace series
