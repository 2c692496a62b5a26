#include "prefixed_number.h"

#include <bitset>
#include <cmath>
#include <cstdint>

#include "extended.h"

namespace numerics {
namespace {

using CharSet = std::bitset<256>;

CharSet SetOf(std::string_view chars) {
  CharSet set;
  for (const char c : chars) set.set(static_cast<unsigned char>(c));
  return set;
}

const CharSet kPrefixLetters = SetOf("ACDFGKMNPTUacdfgkmnptu");
const CharSet kIgnoredLetters = SetOf("ILSils");
const CharSet kNumberChars = SetOf(" +,-.0123456789Ee");
const CharSet kBlankAndSigns = SetOf(" +-");
const CharSet kSigns = SetOf("+-");
const CharSet kSignsAndPoints = SetOf("+,-.");
const CharSet kPointsAndExponent = SetOf(",.Ee");

bool Contains(const CharSet& set, char c) { return set.test(static_cast<unsigned char>(c)); }

// Factor of a prefix letter; "d" before "B" or "b" is the "dB" of a level, not deci.
Extended PrefixFactor(char letter, char next) {
  switch (letter) {
    case 'T': case 't': return 1e12L;
    case 'G': case 'g': return 1e9L;
    case 'M': return 1e6L;
    case 'K': case 'k': return 1e3L;
    case 'D': case 'd': return (next == 'B' || next == 'b') ? 1.0L : 0.1L;
    case 'C': case 'c': return 0.01L;
    case 'm': return 1e-3L;
    case 'U': case 'u': return 1e-6L;
    case 'N': case 'n': return 1e-9L;
    case 'P': case 'p': return 1e-12L;
    case 'F': case 'f': return 1e-15L;
    default: return 1e-18L;  // A, a
  }
}

struct ScanState {
  CharSet allowed = kPrefixLetters | kIgnoredLetters | kNumberChars;
  Extended value = 0;
  Extended mantissa = 0;
  std::int32_t divisor = 1;
  bool negative = false;
  bool afterPoint = false;
  bool exponentSeen = false;
  int status = kParseNoDigits;
};

// The divisor is a 32-bit integer that wraps like the original's; it reaches zero after
// 32 fractional digits, and such digits add nothing.
void AddDigit(ScanState& s, int digit) {
  if (s.afterPoint) {
    s.divisor = static_cast<std::int32_t>(static_cast<std::uint32_t>(s.divisor) * 10U);
    if (s.divisor != 0) s.value += static_cast<Extended>(digit) / s.divisor;
  } else {
    s.value = s.value * 10 + digit;
  }
  s.allowed &= ~kBlankAndSigns;
  s.status = kParseDigitsRead;
}

// Before the point the value is a whole number. Whole numbers below 2^64 are exact in the
// extended type, so gathering a run of digits in an integer gives the same bits as adding
// them one by one, at a fraction of the cost.
constexpr std::uint64_t kWholeDigitLimit = 1000000000000000000ULL;

std::size_t AddWholeDigits(ScanState& s, std::string_view text, std::size_t i) {
  if (s.afterPoint || !Contains(s.allowed, '0') || !(s.value < kWholeDigitLimit)) return i;
  auto whole = static_cast<std::uint64_t>(s.value);
  const std::size_t start = i;
  for (; i < text.size() && whole < kWholeDigitLimit; ++i) {
    const unsigned digit = static_cast<unsigned char>(text[i]) - '0';
    if (digit > 9) break;
    whole = whole * 10 + digit;
  }
  if (i == start) return i;
  s.value = static_cast<Extended>(whole);
  s.allowed &= ~kBlankAndSigns;
  s.status = kParseDigitsRead;
  return i;
}

void StartExponent(ScanState& s) {
  s.allowed |= kSigns;
  s.allowed &= ~(kPointsAndExponent | kPrefixLetters | kIgnoredLetters);
  s.mantissa = s.negative ? -s.value : s.value;
  s.value = 0;
  s.divisor = 0;
  s.negative = false;
  s.afterPoint = false;
  s.exponentSeen = true;
}

void ScanCharacter(ScanState& s, char c, char next) {
  if (c >= '0' && c <= '9') {
    AddDigit(s, c - '0');
  } else if (c == '+' || c == '-') {
    if (c == '-') s.negative = true;
    s.allowed &= ~kSigns;
  } else if (c == '.' || c == ',') {
    s.afterPoint = true;
    s.divisor = 1;
    s.allowed &= ~kSignsAndPoints;
  } else if (c == 'E' || c == 'e') {
    StartExponent(s);
  } else if (Contains(kPrefixLetters, c)) {
    s.value *= PrefixFactor(c, next);
    s.allowed.reset();
  }
  // Ignored letters (I, L, S) change nothing.
}

}  // namespace

ParsedValue ParseValueText(std::string_view text) {
  ScanState s;
  if (text.empty() || !Contains(s.allowed, text.front())) return {0, kParseNoDigits};
  std::size_t i = text.find_first_not_of(' ');
  if (i == std::string_view::npos) i = text.size();
  s.allowed.reset(static_cast<unsigned char>(' '));
  for (; i < text.size(); ++i) {
    i = AddWholeDigits(s, text, i);
    if (i == text.size() || !Contains(s.allowed, text[i])) break;
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    ScanCharacter(s, text[i], next);
  }
  if (s.negative) s.value = -s.value;
  if (s.exponentSeen) s.value = s.mantissa * std::pow(10.0L, s.value);
  return {static_cast<double>(s.value), s.status};
}

double ParseEntryText(std::string_view text) {
  const std::size_t miles = text.find("miles");
  if (miles != std::string_view::npos) return static_cast<double>(Extended{ParseValueText(text.substr(0, miles)).value} * 1.6L * 1000);
  const std::size_t mil = text.find("mil");
  if (mil != std::string_view::npos) {
    return static_cast<double>(Extended{ParseValueText(text.substr(0, mil)).value} * 2.54L * 0.01L * 0.001L);
  }
  return ParseValueText(text).value;
}

std::string StripBlanks(std::string_view text) {
  std::string result;
  for (const char c : text.substr(0, 79)) {
    if (c != ' ') result += c;
  }
  return result;
}

}  // namespace numerics
