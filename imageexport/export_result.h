#pragma once

#include <string>

namespace imageexport {

// What became of a picture file: an empty error when it was written, else the message to show.
struct ExportResult {
  std::string error;
  bool Ok() const { return error.empty(); }
};

}  // namespace imageexport
