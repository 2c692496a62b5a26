#include "reader_core.h"

#include <algorithm>
#include <optional>

namespace numerics {
namespace {

constexpr int kMostLeadingBlankReads = 20;
constexpr int kMostFieldReads = 199;

bool IsMarker(std::optional<char> c) { return c == '!' || c == '#'; }

std::string LineCount(std::ptrdiff_t count) {
  return std::to_string(count) + (count == 1 ? " line" : " lines");
}

}  // namespace

void FailAtLine(const std::string& fileName, int line, const std::string& what) {
  throw ReadFailure{"File " + fileName + ", line " + std::to_string(line) + ": " + what};
}

std::string NotANumber(std::string_view token, const char* expected) {
  return "\"" + std::string(token) + "\" is not a number. " + expected;
}

double ReadNumberOrFail(TextCursor& in, const std::string& fileName, const char* expected) {
  const std::optional<double> value = in.ReadReal();
  if (!value) FailAtLine(fileName, in.LineNumber(), NotANumber(in.TokenAtCursor(), expected));
  return *value;
}

LineStart ReadLineStart(TextCursor& in) {
  for (;;) {
    std::optional<char> c = in.ReadChar();
    if (IsMarker(c)) return {LineStartKind::Marker};
    int reads = 1;
    while (c == ' ' && reads < kMostLeadingBlankReads) {
      c = in.ReadChar();
      ++reads;
    }
    if (!c) {
      in.ConsumeLineBreak();
      if (in.AtEndOfFile()) return {};
      continue;
    }
    const std::size_t start = in.Position() - 1;
    while (c && *c != ' ' && reads < kMostFieldReads) {
      c = in.ReadChar();
      ++reads;
    }
    return {LineStartKind::Field, start, in.Position(), c == ' '};
  }
}

bool HasTouchstoneLines(std::string_view content) {
  TextCursor in(content);
  in.SkipLine();
  while (!in.AtEndOfFile()) {
    const std::string_view line = in.ReadLineView();
    const std::size_t first = line.find_first_not_of(" \t");
    if (first != std::string_view::npos && IsMarker(line[first])) return true;
  }
  return false;
}

int LineNumberAt(std::string_view content, std::size_t pos) {
  const std::size_t end = std::min(pos, content.size());
  return 1 + static_cast<int>(std::count(content.begin(), content.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
}

std::string StoppedAtLineNote(std::string_view content, const std::string& fileName, std::size_t pos,
                              const std::string& why) {
  const std::size_t lineStart = content.rfind('\n', pos == 0 ? 0 : pos - 1);
  const std::string_view rest = content.substr(lineStart == std::string_view::npos ? 0 : lineStart + 1);
  const std::ptrdiff_t lines = std::count(rest.begin(), rest.end(), '\n') + (rest.ends_with('\n') ? 0 : 1);
  return "File " + fileName + ": stopped at line " + std::to_string(LineNumberAt(content, pos)) + ": " + why + "; " +
         LineCount(lines) + " not read.";
}

std::optional<std::string> TextShapeNote(std::string_view content, const std::string& fileName) {
  if (content.starts_with("\xFF\xFE") || content.starts_with("\xFE\xFF")) {
    return "File " + fileName + " is UTF-16 text (it starts with a byte-order mark), which is not read as such; save "
           "it as ASCII or UTF-8 text.";
  }
  if (content.find('\n') != std::string_view::npos || content.find('\r') == std::string_view::npos) return std::nullopt;
  const std::ptrdiff_t breaks = std::count(content.begin(), content.end(), '\r') - (content.ends_with('\r') ? 1 : 0);
  return "File " + fileName + " ends its lines with a carriage return alone, which is not a line end here: it was "
         "read as one line; " + LineCount(breaks) + " after the first not read. Save it with LF or CRLF line ends.";
}

}  // namespace numerics
