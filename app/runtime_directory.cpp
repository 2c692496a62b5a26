#include "runtime_directory.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace app {
namespace {

std::string UserName() {
  const passwd* user = getpwuid(geteuid());
  return user != nullptr ? user->pw_name : std::to_string(geteuid());
}

// Qt takes the folder only when it belongs to the user and is private to them.
bool IsPrivateFolder(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
         (status.st_mode & 0777) == 0700;
}

}  // namespace

void NameRuntimeDirectory() {
  const char* named = std::getenv("XDG_RUNTIME_DIR");
  if (named != nullptr && *named != '\0') return;
  std::error_code error;
  const std::filesystem::path temporary = std::filesystem::temp_directory_path(error);
  if (error) return;
  const std::string folder = (temporary / ("runtime-" + UserName())).string();
  mkdir(folder.c_str(), 0700);  // an existing folder is checked below like a new one
  if (IsPrivateFolder(folder)) setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
}

}  // namespace app
