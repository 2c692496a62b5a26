#include "table_cells.h"

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace mainwin {
namespace {

constexpr std::size_t kLongestWholePath = 30;
constexpr std::size_t kHeadCharacters = 7;
constexpr std::size_t kTailCharacters = 15;

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

// Byte offsets at which the UTF-8 characters of text start.
std::vector<std::size_t> CharacterStarts(const std::string& text) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (StartsCharacter(text[i])) starts.push_back(i);
  }
  return starts;
}

std::string Prefixed(double value) { return numerics::FormatPrefixedField(7, 2, value); }

}  // namespace

std::string TablePathText(const std::string& path) {
  const std::vector<std::size_t> starts = CharacterStarts(path);
  if (starts.size() <= kLongestWholePath) return path;
  return path.substr(0, starts[kHeadCharacters]) + "..." + path.substr(starts[starts.size() - kTailCharacters]);
}

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

}  // namespace mainwin
