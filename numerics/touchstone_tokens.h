#pragma once

#include <cstddef>
#include <string_view>

// Splits one line of a Touchstone file into its blank- or tab-separated tokens.
namespace numerics {

inline bool IsTokenSeparator(char c) { return c == ' ' || c == '\t' || c == '\r'; }

class TokenReader {
 public:
  explicit TokenReader(std::string_view text) : text_(text) {}

  // The next token, or an empty view when none is left.
  std::string_view Next() {
    while (pos_ < text_.size() && IsTokenSeparator(text_[pos_])) ++pos_;
    const std::size_t start = pos_;
    while (pos_ < text_.size() && !IsTokenSeparator(text_[pos_])) ++pos_;
    return text_.substr(start, pos_ - start);
  }

  // What follows the cursor, without the separators before it.
  std::string_view Rest() {
    while (pos_ < text_.size() && IsTokenSeparator(text_[pos_])) ++pos_;
    return text_.substr(pos_);
  }

 private:
  std::string_view text_;
  std::size_t pos_ = 0;
};

}  // namespace numerics
