#include "series_file.h"

#include "numerics/text_file.h"

namespace series {

std::optional<std::string> ReadSeriesFile(const std::string& path, std::string& error) {
  std::string reason;
  std::optional<std::string> content = numerics::ReadTextFile(path, reason);
  if (!content) error = "File " + path + " cannot be read (" + reason + "). Check the file, or remove it from the series, and calculate again.";
  return content;
}

}  // namespace series
