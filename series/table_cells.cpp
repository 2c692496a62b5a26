#include "table_cells.h"

#include <algorithm>
#include <map>
#include <string_view>

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
constexpr std::size_t kLeastHead = 1;  // a path told apart by its end still shows where it starts

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

// Byte offsets at which the UTF-8 characters of text start.
std::vector<std::size_t> CharacterStarts(const std::string& text) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (StartsCharacter(text[i])) starts.push_back(i);
  }
  return starts;
}

// The first head and the last tail characters with "..." between them, even where the two overlap.
std::string Shortened(const std::string& path, std::size_t head, std::size_t tail) {
  const std::vector<std::size_t> starts = CharacterStarts(path);
  return path.substr(0, starts[head]) + "..." + path.substr(starts[starts.size() - tail]);
}

std::string Abbreviated(const std::string& path, const PathAbbreviation& rule) {
  if (CharacterStarts(path).size() <= rule.longestWhole) return path;
  return Shortened(path, rule.head, rule.tail);
}

// Shortened, or the whole path where the two parts would meet.
std::string ShortenedOrWhole(const std::string& path, std::size_t head, std::size_t tail) {
  return head + tail >= CharacterStarts(path).size() ? path : Shortened(path, head, tail);
}

// Whether no two different paths of the group share a text with this tail.
bool TellApart(const std::vector<std::string>& paths, const std::vector<std::size_t>& group, std::size_t head,
               std::size_t tail) {
  std::map<std::string, const std::string*> pathOfText;
  for (const std::size_t i : group) {
    const auto [known, added] = pathOfText.emplace(ShortenedOrWhole(paths[i], head, tail), &paths[i]);
    if (!added && *known->second != paths[i]) return false;
  }
  return true;
}

bool IsWordSeparator(char byte) { return std::string_view("/\\_- ").find(byte) != std::string_view::npos; }

// The tail grown back to the start of its word, so that "Ic=1.0mA" is not shown as "0mA".
std::size_t WholeWordTail(const std::string& path, std::size_t tail) {
  const std::vector<std::size_t> starts = CharacterStarts(path);
  while (tail < starts.size() && !IsWordSeparator(path[starts[starts.size() - tail - 1]])) ++tail;
  return tail;
}

// The texts of a group of paths that their last tail characters tell apart: each tail grown to
// the start of a word, the head, which the group shares, short by as many characters as the longest
// tail has grown, so that the texts keep their width where they can.
void TellGroupApart(const std::vector<std::string>& paths, const std::vector<std::size_t>& group,
                    const PathAbbreviation& rule, std::size_t tail, std::vector<std::string>& texts) {
  std::size_t longest = 0;
  for (const std::size_t i : group) longest = std::max(longest, WholeWordTail(paths[i], tail));
  const std::size_t width = rule.head + rule.tail;
  const std::size_t head = longest + kLeastHead < width ? width - longest : kLeastHead;
  for (const std::size_t i : group) texts[i] = ShortenedOrWhole(paths[i], head, WholeWordTail(paths[i], tail));
}

// Every group of paths that the rule gives one text takes the shortest longer tail that tells
// its paths apart.
std::vector<std::string> AbbreviatedApart(const std::vector<std::string>& paths, const PathAbbreviation& rule) {
  std::vector<std::string> texts;
  std::map<std::string, std::vector<std::size_t>> groups;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    texts.push_back(Abbreviated(paths[i], rule));
    groups[texts.back()].push_back(i);
  }
  for (const auto& [text, group] : groups) {
    std::size_t tail = rule.tail;
    while (!TellApart(paths, group, rule.head, tail)) ++tail;
    if (tail > rule.tail) TellGroupApart(paths, group, rule, tail, texts);
  }
  return texts;
}

std::string Prefixed(double value) { return numerics::FormatPrefixedField(7, 2, value); }

}  // namespace

std::vector<std::string> TablePathTexts(const std::vector<std::string>& paths) {
  return AbbreviatedApart(paths, kTablePath);
}

std::vector<std::string> FileListPathTexts(const std::vector<std::string>& paths) {
  return AbbreviatedApart(paths, kFileListPath);
}

std::vector<std::string> TableRowTexts(const std::string& pathText, const FileFigures& file,
                                       const SeriesSettings& settings) {
  std::vector<std::string> cells = {pathText,
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
