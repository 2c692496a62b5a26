#include "text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>

namespace numerics {
namespace {

// Data files of 253 points are some 20 kB, and long sweeps a few MB; the cap keeps a runaway
// file from filling memory. A larger file is refused whole, never cut.
constexpr std::size_t kMostBytesRead = 64U << 20;
constexpr const char* kTooLargeReason = "larger than 64 MiB, far more than an S-parameter file holds";
constexpr std::size_t kReadChunk = 64U << 10;

class FileDescriptor {
 public:
  explicit FileDescriptor(int fd) : fd_(fd) {}
  ~FileDescriptor() {
    if (fd_ >= 0) close(fd_);
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  int Get() const { return fd_; }

 private:
  int fd_;
};

// Reads to the end of the file; false with errno set when a read fails, EFBIG when the file holds
// more than the cap (it has grown since its size was taken).
bool ReadAll(int fd, std::size_t expectedSize, std::string& content) {
  const std::size_t beyondCap = kMostBytesRead + 1;
  content.resize(std::min(expectedSize, kMostBytesRead) + 1);  // one more byte finds the end at once
  std::size_t filled = 0;
  for (;;) {
    if (filled == content.size()) {
      if (filled == beyondCap) {
        errno = EFBIG;
        return false;
      }
      content.resize(std::min(content.size() + kReadChunk, beyondCap));
    }
    const ssize_t n = read(fd, content.data() + filled, content.size() - filled);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    if (n == 0) break;
    filled += static_cast<std::size_t>(n);
  }
  content.resize(filled);
  return true;
}

// Why a file that is not a regular one is not read: a device or a pipe could be read forever.
const char* NotRegularReason(mode_t mode) {
  if (S_ISFIFO(mode)) return "a pipe, not a regular file";
  if (S_ISCHR(mode) || S_ISBLK(mode)) return "a device, not a regular file";
  if (S_ISSOCK(mode)) return "a socket, not a regular file";
  return "not a regular file";
}

}  // namespace

// One open and one status query: the file's kind is checked on the open file, which does not
// block on a pipe (O_NONBLOCK) and cannot change between the check and the read.
std::optional<std::string> ReadTextFile(const std::string& path, std::string& reason) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (file.Get() < 0 || fstat(file.Get(), &status) != 0) {
    reason = std::strerror(errno);
    return std::nullopt;
  }
  if (S_ISDIR(status.st_mode)) {
    reason = std::strerror(EISDIR);
    return std::nullopt;
  }
  if (!S_ISREG(status.st_mode)) {
    reason = NotRegularReason(status.st_mode);
    return std::nullopt;
  }
  const bool tooLarge = static_cast<std::uintmax_t>(status.st_size) > kMostBytesRead;
  std::string content;
  if (tooLarge || !ReadAll(file.Get(), static_cast<std::size_t>(status.st_size), content)) {
    reason = tooLarge || errno == EFBIG ? kTooLargeReason : std::strerror(errno);
    return std::nullopt;
  }
  return content;
}

bool HasExtension(const std::string& path, std::span<const std::string_view> extensions) {
  std::string extension = std::filesystem::path(path).extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

std::vector<std::string> FilesInFolder(const std::string& folder, std::span<const std::string_view> extensions) {
  std::vector<std::string> files;
  std::error_code error;
  for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    const std::string path = it->path().string();
    if (it->is_regular_file(error) && HasExtension(path, extensions)) files.push_back(path);
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace numerics
