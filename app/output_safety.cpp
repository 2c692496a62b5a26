#include "output_safety.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <ostream>

#include "numerics/text_file.h"

namespace app {
namespace {

namespace fs = std::filesystem;

// The same file, whatever the names: through links, "./", or another spelling of the folder.
bool IsOneOf(const std::string& path, const std::vector<std::string>& inputs) {
  return std::any_of(inputs.begin(), inputs.end(), [&](const std::string& input) {
    std::error_code error;
    return fs::equivalent(path, input, error);
  });
}

// Read-only by its permissions, also for a user (such as root) who could write it all the same.
bool IsWriteProtected(const struct stat& status) { return (status.st_mode & S_IWUSR) == 0; }

}  // namespace

std::string RefuseOutput(const std::string& path, const std::vector<std::string>& inputs) {
  if (numerics::HasExtension(path, numerics::kDataFileExtensions)) {
    return "the output " + path + " has the extension of an S-parameter file and could be a measurement (did --out "
           "lose its value?); nothing was written. Name an output file of another kind.";
  }
  if (IsOneOf(path, inputs)) {
    return "the output " + path + " is one of the input files; nothing was written. Name another output file.";
  }
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return {};
  if (S_ISDIR(status.st_mode)) return "the output " + path + " is a folder; nothing was written. Name a file.";
  if (IsWriteProtected(status)) {
    return "the output " + path + " is write-protected; nothing was written. Name another file, or allow writing "
           "to it.";
  }
  return {};
}

std::string CannotWriteOutput(const std::string& path, const numerics::FileWriteOutcome& written) {
  return "Cannot write " + path + ": " + written.reason +
         (written.noTemporaryFile ? ". Choose a folder you may write to."
                                  : ". Nothing was written; check the path and the free space.");
}

bool StandardOutputWritten(std::ostream& out, std::ostream& err, std::string_view mode, const std::string& what) {
  out.flush();
  if (out) return true;
  // The error of the write that failed is still the last one: the modes make no further calls that
  // fail once the stream is bad.
  const int reason = errno;
  err << mode << ": " << what << " could not be written to standard output ("
      << (reason != 0 ? std::strerror(reason) : "the stream failed") << ").\n";
  return false;
}

}  // namespace app
