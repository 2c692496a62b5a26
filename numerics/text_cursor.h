#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Reads a text file held in memory the way the program's data readers always have: a
// character at a time within a line, and free-format real numbers that skip blanks and line
// breaks. "\r\n" and "\n" both end a line.
namespace numerics {

// The cursor views the content; the content must outlive it.
class TextCursor {
 public:
  explicit TextCursor(std::string_view content) : text_(content) {}

  bool AtEndOfFile() const { return pos_ >= text_.size(); }
  bool AtEndOfLine() const;

  // The next character of the line, or nullopt at the end of the line (nothing consumed).
  std::optional<char> ReadChar();
  // Consumes the line break at the cursor, if any.
  void ConsumeLineBreak();
  // Consumes the rest of the line and its line break.
  void SkipLine();
  // The rest of the current line, without its line break; the line break is consumed.
  std::string ReadLine();
  // The same as a view into the content.
  std::string_view ReadLineView();

  // Skips blanks, tabs and line breaks, then reads one number. At the end of the file the
  // value is 0. A token that is not a number yields nullopt and leaves the cursor on it.
  std::optional<double> ReadReal() {
    double value = 0;
    if (!ScanReal(value)) return std::nullopt;
    return value;
  }

  std::size_t Position() const { return pos_; }
  std::string_view Slice(std::size_t from, std::size_t to) const { return text_.substr(from, to - from); }

  // 1-based number of the line that holds the cursor.
  int LineNumber() const;
  // The blank-delimited text at the cursor, cut to a readable length, for messages.
  std::string TokenAtCursor() const;

 private:
  // ReadReal without the optional: one handed back from a call that is not inlined goes through
  // memory in a way that stalls the processor on every number, and files hold many.
  bool ScanReal(double& value);

  std::string_view text_;
  std::size_t pos_ = 0;
};

// The value of a token that is one whole number as ReadReal reads it; nullopt otherwise.
std::optional<double> ParseRealToken(std::string_view token);
// Whether ParseRealToken would give a value, without working the value out.
bool IsRealToken(std::string_view token);

}  // namespace numerics
