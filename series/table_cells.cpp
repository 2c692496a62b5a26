#include "table_cells.h"

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace series {
namespace {

struct PathAbbreviation {
  std::size_t longestWhole;
  std::size_t head;
  std::size_t tail;
};

constexpr PathAbbreviation kTablePath = {30, 7, 15};
constexpr PathAbbreviation kFileListPath = {34, 17, 19};

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

// Byte offsets at which the UTF-8 characters of text start.
std::vector<std::size_t> CharacterStarts(const std::string& text) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (StartsCharacter(text[i])) starts.push_back(i);
  }
  return starts;
}

std::string Abbreviated(const std::string& path, const PathAbbreviation& rule) {
  const std::vector<std::size_t> starts = CharacterStarts(path);
  if (starts.size() <= rule.longestWhole) return path;
  return path.substr(0, starts[rule.head]) + "..." + path.substr(starts[starts.size() - rule.tail]);
}

std::string Prefixed(double value) { return numerics::FormatPrefixedField(7, 2, value); }

}  // namespace

std::string TablePathText(const std::string& path) { return Abbreviated(path, kTablePath); }

std::string FileListPathText(const std::string& path) { return Abbreviated(path, kFileListPath); }

std::vector<std::string> TableRowTexts(const std::string& path, const FileFigures& file,
                                       const SeriesSettings& settings) {
  std::vector<std::string> cells = {TablePathText(path),
                                    Prefixed(file.current) + "A",
                                    Prefixed(file.fT) + "Hz",
                                    Prefixed(file.fmax) + "Hz",
                                    numerics::FloatText(7, 2, file.magDb) + "dB",
                                    numerics::FloatText(7, 3, file.k),
                                    Prefixed(file.fk) + "Hz"};
  if (settings.density) cells.push_back(numerics::FloatText(7, 3, CurrentDensity(file, settings.area)));
  return cells;
}

}  // namespace series
