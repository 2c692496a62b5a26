#include "series_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace mainwin {
namespace {

// A series file of 253 points is some 20 kB; the cap keeps a device or a runaway file from
// filling memory.
constexpr std::size_t kMostBytesRead = 64U << 20;

std::string CannotRead(const std::string& path, const std::string& reason) {
  return "File " + path + " cannot be read (" + reason +
         "). Check the file, or remove it from the series, and calculate again.";
}

}  // namespace

std::optional<std::string> ReadSeriesFile(const std::string& path, std::string& error) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!file) {
    error = CannotRead(path, std::strerror(errno));
    return std::nullopt;
  }
  std::string content;
  char buffer[65536];
  std::size_t got = 0;
  while (content.size() < kMostBytesRead && (got = std::fread(buffer, 1, sizeof buffer, file.get())) > 0) {
    content.append(buffer, got);
  }
  if (std::ferror(file.get())) {
    error = CannotRead(path, std::strerror(errno));
    return std::nullopt;
  }
  return content;
}

}  // namespace mainwin
