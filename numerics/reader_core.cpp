#include "reader_core.h"

#include <optional>

namespace numerics {
namespace {

constexpr int kMostLeadingBlankReads = 20;
constexpr int kMostFieldReads = 199;

bool IsMarker(std::optional<char> c) { return c == '!' || c == '#'; }

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

}  // namespace numerics
