#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace numerics {

// The extensions of S-parameter files: two-port Touchstone files and the program's own.
inline constexpr std::string_view kDataFileExtensions[] = {".s2p", ".spm"};

// The whole content of a data file. When it cannot be read, reason says why in a few words
// ("No such file or directory", "a pipe, not a regular file") for the caller's message. A file
// larger than any data file is refused rather than read in part.
std::optional<std::string> ReadTextFile(const std::string& path, std::string& reason);

// Whether the path's extension, in lower case, is one of extensions (".s2p", ...).
bool HasExtension(const std::string& path, std::span<const std::string_view> extensions);

// The regular files directly in folder (not those of its subfolders) that have one of the
// extensions, sorted by name. A folder that cannot be listed has none.
std::vector<std::string> FilesInFolder(const std::string& folder, std::span<const std::string_view> extensions);

}  // namespace numerics
