#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text_cursor.h"

// What the readers of data files share: the failure that ends a read with a message naming the
// file and the line, the notes that tell the user what a read left out or did not apply, and the
// line-start rules of the plain format.
namespace numerics {

// Bad input ends a read with this; the message names the file and the line and says what was
// expected there.
struct ReadFailure {
  std::string message;
};

// What a successful read left out or did not apply, one message each, for the user.
using ReadNotes = std::vector<std::string>;

// Throws ReadFailure with "File NAME, line N: " followed by what.
[[noreturn]] void FailAtLine(const std::string& fileName, int line, const std::string& what);

// "\"TOKEN\" is not a number. " followed by what the line should hold.
std::string NotANumber(std::string_view token, const char* expected);

// Reads the number at the cursor; anything else fails with NotANumber at the cursor's line.
double ReadNumberOrFail(TextCursor& in, const std::string& fileName, const char* expected);

// What every line of the plain format holds, said when one of its numbers is not one.
inline constexpr const char* kPlainLineContent =
    "Every data line needs a frequency and eight numbers (magnitude and angle of S11, S21, S12, S22).";

enum class LineStartKind {
  Marker,     // the line starts with "!" or "#"; the cursor stands behind that character
  Field,      // the line's first field was read
  EndOfFile,  // only empty lines were left
};

struct LineStart {
  LineStartKind kind = LineStartKind::EndOfFile;
  std::size_t fieldStart = 0;     // position of the field's first character
  std::size_t afterLastRead = 0;  // position behind the last character read
  bool endedAtBlank = false;      // the last character read is the blank that ended the field
};

// The plain line rules: the first character is tested for "!" and "#", at most 19 leading
// blanks are skipped, empty lines are passed over, and the field ends at a blank, at the end of
// the line or after 199 characters of the line. The readers differ only in which of the
// characters read belong to the field.
LineStart ReadLineStart(TextCursor& in);

// True when a line after the first starts with "!" or "#" (blanks before it allowed): the file
// looks like a Touchstone file whose option line and comments the plain reading does not apply.
bool HasTouchstoneLines(std::string_view content);

// The line that holds position pos of content, counted from 1.
int LineNumberAt(std::string_view content, std::size_t pos);

// "File NAME: stopped at line L: " followed by why, and how many lines from line L on were not read.
std::string StoppedAtLineNote(std::string_view content, const std::string& fileName, std::size_t pos,
                              const std::string& why);

// What makes a file's text unreadable as it stands, in one line: UTF-16 text (recognised by its
// byte-order mark) or lines ended by a carriage return alone. nullopt for ordinary text.
std::optional<std::string> TextShapeNote(std::string_view content, const std::string& fileName);

// How to switch the Touchstone reading on, in the window and on the command line.
inline constexpr const char* kTouchstoneSwitchHint =
    "Check \"Read Touchstone Files\" in the Options menu (or give --touchstone on the command line) to read it as "
    "a Touchstone file.";

}  // namespace numerics
