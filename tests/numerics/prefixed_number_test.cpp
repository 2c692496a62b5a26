#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "numerics/prefixed_number.h"

namespace numerics {
namespace {

TEST(ParseValueText, ReadsValueAndStatus) {
  const struct {
    const char* text;
    double value;
    int status;
  } cases[] = {{"  2.0G", 2e9, 0}, {"100p", 1e-10, 0}, {"1,5k", 1500, 0}, {"1M", 1e6, 0}, {"1m", 1e-3, 0},
               {"3dB", 3, 0}, {"3d", 0.3, 0},                   // "dB" is no deci
               {"-2.5e-3", -0.0025, 0}, {"2e3k", 2000, 0},  // no letter after an exponent
               {"1k5", 1000, 0},  // nothing counts after a prefix
               {"+5", 5, 0}, {"5 k", 5, 0}, {"1.2.3", 1.2, 0},  // a blank or a second point ends the scan
               {"1S5", 15, 0},                                  // the letters I, L and S are skipped
               {"1e 5", 1, 0},                                  // exponent without digits is 10^0
               {"abc", 0, 1},                                   // "a" is a prefix letter: 0 * 1e-18
               {"    ", 0, 1}, {"x5", 0, 1}, {"--5", 0, 1}};
  for (const auto& c : cases) {
    const ParsedValue parsed = ParseValueText(c.text);
    EXPECT_DOUBLE_EQ(parsed.value, c.value) << '"' << c.text << '"';
    EXPECT_EQ(parsed.status, c.status) << '"' << c.text << '"';
  }
}

TEST(ParseValueText, OnlyNineFractionalDigitsCount) {
  // The tenth digit is divided by 10^10 wrapped to 32 bits, 1410065408.
  const double expected = 0.123456789 + 1.0 / 1410065408.0;
  EXPECT_DOUBLE_EQ(ParseValueText("0.1234567891").value, expected);
  EXPECT_DOUBLE_EQ(ParseValueText("0.123456789").value, 0.123456789);
}

TEST(ParseValueText, LongWholeNumbersRoundLikeDigitByDigitExtendedArithmetic) {
  for (const std::string text : {"12650000000", "999999999999999999", "1000000000000000000",
                                 "12345678901234567890123"}) {
    long double expected = 0;
    for (const char c : text) expected = expected * 10 + (c - '0');
    EXPECT_EQ(ParseValueText(text).value, static_cast<double>(expected)) << text;
  }
}

TEST(ParseValueText, NoInputBreaksIt) {
  EXPECT_TRUE(std::isinf(ParseValueText("1e99999").value));
  EXPECT_EQ(ParseValueText(std::string(100000, '9')).status, 0);
  const std::string zeros = "0." + std::string(200, '1');  // the divisor wraps to zero after 32 digits
  EXPECT_TRUE(std::isfinite(ParseValueText(zeros).value));
  EXPECT_EQ(ParseValueText(std::string("\0\x01\xff", 3)).status, 1);
}

TEST(ParseEntryText, ConvertsLengthUnits) {
  EXPECT_DOUBLE_EQ(ParseEntryText("10mil"), 10 * 25.4e-6);
  EXPECT_DOUBLE_EQ(ParseEntryText("2miles"), 3200.0);
  EXPECT_DOUBLE_EQ(ParseEntryText("10m"), 0.01);
}

// One signature for the three formatters; FormatPrefixed has no width and ignores it.
std::string Display(int, int decimals, double value) { return FormatPrefixed(decimals, value); }
constexpr auto* Field = &FormatPrefixedField;
constexpr auto* Exponent = &FormatExponent;

TEST(FormatPrefixed, WritesTheDisplayFieldAndExponentForms) {
  const struct {
    std::string (*format)(int width, int decimals, double value);
    int width, decimals;
    double value;
    const char* text;
  } cases[] = {{Display, 0, 2, 0.5, "0.50"}, {Display, 0, 1, 2e9, "2.0G"}, {Display, 0, 1, 0, "0.0"},
               {Display, 0, 2, -0.05, "-50.00m"},
               {Display, 0, 1, 1e-10, "0.1n"},  // below one the groups are shifted by one decade: 100p reads 0.1n
               {Display, 0, 2, 1e13, "10.00E+12"},  // beyond T: the wide exponent form
               {Field, 6, 2, 2e9, "  2.00G"}, {Field, 6, 1, 50, "  50.00"},  // 1 to 999 carry the suffix "0"
               {Field, 6, 2, 0.5, "500.00m"},                                  // 0.1 to 0.999 fall under milli
               {Field, 6, 2, 0, "  0.000"}, {Field, 6, 2, 1e20, "100.0E+180"},  // exponent form, then the "0" suffix
               {Exponent, 8, 2, 0.5, "  500.00E-3"}, {Exponent, 6, 0, 1, "   1.0E+0"}, {Exponent, 6, 1, 0, "   0.0"},
               {Exponent, 6, 1, 1e-27, "   1.0E-27"}, {Exponent, 6, 1, 1e31, "1.0E+31"}};
  for (const auto& c : cases) EXPECT_EQ(c.format(c.width, c.decimals, c.value), c.text) << c.value;
}

}  // namespace
}  // namespace numerics
