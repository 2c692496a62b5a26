#include "text_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

namespace numerics {
namespace {

// Data files of 253 points are some 20 kB; the cap keeps a device or a runaway file from
// filling memory.
constexpr std::size_t kMostBytesRead = 64U << 20;

}  // namespace

std::optional<std::string> ReadTextFile(const std::string& path, std::string& reason) {
  std::error_code ec;
  if (std::filesystem::is_directory(path, ec)) {
    reason = std::strerror(EISDIR);
    return std::nullopt;
  }
  if (std::filesystem::exists(path, ec) && !std::filesystem::is_regular_file(path, ec)) {
    reason = "not a regular file";  // a device or a pipe could be read forever
    return std::nullopt;
  }
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!file) {
    reason = std::strerror(errno);
    return std::nullopt;
  }
  std::string content;
  // Reading into room made for the whole file spares the copies of a growing string.
  const std::uintmax_t size = std::filesystem::file_size(path, ec);
  if (!ec) content.reserve(std::min<std::uintmax_t>(size, kMostBytesRead));
  char buffer[65536];
  std::size_t got = 0;
  while (content.size() < kMostBytesRead && (got = std::fread(buffer, 1, sizeof buffer, file.get())) > 0) {
    content.append(buffer, got);
  }
  if (std::ferror(file.get())) {
    reason = std::strerror(errno);
    return std::nullopt;
  }
  return content;
}

}  // namespace numerics
