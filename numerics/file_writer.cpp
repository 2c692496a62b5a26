#include "file_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <vector>

namespace numerics {
namespace {

// The permissions an ordinary new file gets; mkstemp alone would leave it private.
mode_t NewFileMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

bool WriteAll(int fd, std::string_view content) {
  std::size_t written = 0;
  while (written < content.size()) {
    const ssize_t n = write(fd, content.data() + written, content.size() - written);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    written += static_cast<std::size_t>(n);
  }
  return true;
}

std::string TemporaryPattern(const std::filesystem::path& target) {
  const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
  return (folder / ("." + target.filename().string() + ".XXXXXX")).string();
}

// The file a name stands for: symbolic links are followed to their target, which need not exist
// yet, so that the link stays and its target gets the content.
std::filesystem::path FinalTarget(const std::string& path) {
  constexpr int kMostLinks = 40;
  std::filesystem::path target(path);
  for (int hop = 0; hop < kMostLinks; ++hop) {
    std::error_code error;
    const std::filesystem::path link = std::filesystem::read_symlink(target, error);
    if (error) break;
    target = link.is_absolute() ? link : target.parent_path() / link;
  }
  return target;
}

FileWriteOutcome Failure(int reason) { return {std::strerror(reason)}; }

// A device or a pipe is written as it is; it has no content to keep.
FileWriteOutcome WriteDirectly(const std::filesystem::path& target, std::string_view content) {
  const int fd = open(target.c_str(), O_WRONLY | O_CLOEXEC);
  bool ok = fd >= 0 && WriteAll(fd, content);
  int reason = errno;
  if (fd >= 0 && close(fd) != 0 && ok) {
    ok = false;
    reason = errno;
  }
  return ok ? FileWriteOutcome{} : Failure(reason);
}

}  // namespace

FileWriteOutcome WriteFileAtomically(const std::string& path, std::string_view content) {
  const std::filesystem::path target = FinalTarget(path);
  struct stat existing {};
  const bool exists = stat(target.c_str(), &existing) == 0;
  if (exists && !S_ISREG(existing.st_mode)) return WriteDirectly(target, content);
  std::string pattern = TemporaryPattern(target);
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  const int fd = mkstemp(name.data());
  if (fd < 0) return {std::strerror(errno), true};
  // An existing file keeps its permissions; a new one gets those of any new file.
  const mode_t mode = exists ? existing.st_mode & 07777 : NewFileMode();
  bool ok = fchmod(fd, mode) == 0 && WriteAll(fd, content) && fsync(fd) == 0;
  int reason = ok ? 0 : errno;
  if (close(fd) != 0 && ok) {
    ok = false;
    reason = errno;
  }
  if (ok && std::rename(name.data(), target.c_str()) != 0) {
    ok = false;
    reason = errno;
  }
  if (ok) return {};
  unlink(name.data());
  return Failure(reason);
}

}  // namespace numerics
