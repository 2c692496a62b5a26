#include "atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <vector>

namespace app {
namespace {

// The permissions an ordinary new file gets; mkstemp alone would leave it private.
mode_t NewFileMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

bool WriteAll(int fd, const std::string& content) {
  std::size_t written = 0;
  while (written < content.size()) {
    const ssize_t n = write(fd, content.data() + written, content.size() - written);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    written += static_cast<std::size_t>(n);
  }
  return true;
}

std::string TemporaryPattern(const std::string& path) {
  const std::filesystem::path target(path);
  const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
  return (folder / ("." + target.filename().string() + ".XXXXXX")).string();
}

}  // namespace

bool WriteFileAtomically(const std::string& path, const std::string& content, std::string& error) {
  std::string pattern = TemporaryPattern(path);
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  const int fd = mkstemp(name.data());
  if (fd < 0) {
    error = "Cannot write " + path + ": " + std::strerror(errno) + ". Choose a folder you may write to.";
    return false;
  }
  bool ok = fchmod(fd, NewFileMode()) == 0 && WriteAll(fd, content) && fsync(fd) == 0;
  int reason = ok ? 0 : errno;
  if (close(fd) != 0 && ok) {
    ok = false;
    reason = errno;
  }
  if (ok && std::rename(name.data(), path.c_str()) != 0) {
    ok = false;
    reason = errno;
  }
  if (ok) return true;
  unlink(name.data());
  error = "Cannot write " + path + ": " + std::strerror(reason) + ". Nothing was written; check the path and the free space.";
  return false;
}

}  // namespace app
