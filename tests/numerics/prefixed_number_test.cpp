#include <gtest/gtest.h>

#include <ostream>

#include <cmath>
#include <string>

#include "numerics/prefixed_number.h"

namespace numerics {
namespace {

struct ParseCase {
  const char* text;
  double value;
  int status;
};

void PrintTo(const ParseCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class ParseValueTextTest : public testing::TestWithParam<ParseCase> {};

TEST_P(ParseValueTextTest, ReadsValueAndStatus) {
  const ParseCase& c = GetParam();
  const ParsedValue parsed = ParseValueText(c.text);
  EXPECT_DOUBLE_EQ(parsed.value, c.value) << '"' << c.text << '"';
  EXPECT_EQ(parsed.status, c.status) << '"' << c.text << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseValueTextTest,
    testing::Values(ParseCase{"  2.0G", 2e9, 0}, ParseCase{"  100p", 1e-10, 0}, ParseCase{"   50.0", 50, 0},
                    ParseCase{"1,5k", 1500, 0},             // comma is a decimal point
                    ParseCase{"3dB", 3, 0},                 // "d" before "B" is not deci
                    ParseCase{"3d", 0.3, 0}, ParseCase{"1db", 1, 0}, ParseCase{"10mils", 0.01, 0},
                    ParseCase{"-2.5e-3", -0.0025, 0}, ParseCase{"2e3k", 2000, 0},  // no letter after an exponent
                    ParseCase{"1M", 1e6, 0}, ParseCase{"1m", 1e-3, 0}, ParseCase{"1.5mA", 1.5e-3, 0},
                    ParseCase{"4t", 4e12, 0}, ParseCase{"2c", 0.02, 0}, ParseCase{"3f", 3e-15, 0},
                    ParseCase{"7a", 7e-18, 0}, ParseCase{"12.5uF", 12.5e-6, 0}, ParseCase{"1n", 1e-9, 0},
                    ParseCase{"1k5", 1000, 0}, ParseCase{"12G34", 12e9, 0},  // no digit after a prefix
                    ParseCase{"1.5G", 1.5e9, 0}, ParseCase{"2,5M", 2.5e6, 0}, ParseCase{"0", 0, 0},
                    ParseCase{"+5", 5, 0}, ParseCase{"-0.5", -0.5, 0}, ParseCase{"1E-2", 0.01, 0},
                    ParseCase{"5 k", 5, 0},                 // the blank after a digit ends the scan
                    ParseCase{"2.5 GHz", 2.5, 0}, ParseCase{"1.2.3", 1.2, 0}, ParseCase{"1S5", 15, 0},
                    ParseCase{"1e 5", 1, 0},                // exponent without digits is 10^0
                    ParseCase{"abc", 0, 1},                 // "a" is a prefix letter: 0 * 1e-18
                    ParseCase{"", 0, 1}, ParseCase{"x5", 0, 1}, ParseCase{"    ", 0, 1},
                    ParseCase{"--5", 0, 1}, ParseCase{"Ls=5n", 0, 1}, ParseCase{"dB", 0, 1}));

TEST(ParseValueText, OnlyNineFractionalDigitsCount) {
  // The tenth digit is divided by 10^10 wrapped to 32 bits, 1410065408.
  const double expected = 0.123456789 + 1.0 / 1410065408.0;
  EXPECT_DOUBLE_EQ(ParseValueText("0.1234567891").value, expected);
  EXPECT_DOUBLE_EQ(ParseValueText("0.123456789").value, 0.123456789);
}

TEST(ParseValueText, LongWholeNumbersRoundLikeDigitByDigitExtendedArithmetic) {
  for (const std::string text : {"12650000000", "999999999999999999", "1000000000000000000",
                                 "12345678901234567890123", "98765432109876543210987654321"}) {
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

struct EntryCase {
  const char* text;
  double metres;
};

void PrintTo(const EntryCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class ParseEntryTextTest : public testing::TestWithParam<EntryCase> {};

TEST_P(ParseEntryTextTest, ConvertsLengthUnits) {
  EXPECT_DOUBLE_EQ(ParseEntryText(GetParam().text), GetParam().metres) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, ParseEntryTextTest,
                         testing::Values(EntryCase{"10mil", 10 * 25.4e-6}, EntryCase{"2miles", 3200},
                                         EntryCase{"10m", 0.01}, EntryCase{"5 miles", 8000},
                                         EntryCase{"abc", 0}, EntryCase{"1.5", 1.5}, EntryCase{"", 0}));

TEST(StripBlanks, KeepsNonBlanksOfTheFirst79Characters) {
  EXPECT_EQ(StripBlanks(" I c = 1.5 m "), "Ic=1.5m");
  EXPECT_EQ(StripBlanks(std::string(78, ' ') + "ab"), "a");
}

struct FormatCase {
  int width;
  int decimals;
  double value;
  const char* text;
};

void PrintTo(const FormatCase& c, std::ostream* os) { *os << c.value << " -> \"" << c.text << '"'; }

class FormatPrefixedTest : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatPrefixedTest, Writes) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(FormatPrefixed(c.decimals, c.value), c.text) << c.value;
}

INSTANTIATE_TEST_SUITE_P(
    Values, FormatPrefixedTest,
    testing::Values(FormatCase{0, 2, 0.5, "0.50"}, FormatCase{0, 2, 0.05, "50.00m"}, FormatCase{0, 1, 2e9, "2.0G"},
                    FormatCase{0, 1, 0, "0.0"}, FormatCase{0, 2, 1500, "1.50k"}, FormatCase{0, 2, -0.05, "-50.00m"},
                    FormatCase{0, 1, 999, "999.0"}, FormatCase{0, 1, 3.3e-6, "3.3u"},
                    // Below one the display groups are shifted by one decade: 100p reads 0.1n.
                    FormatCase{0, 1, 1e-10, "0.1n"}, FormatCase{0, 1, 1e-12, "1.0p"},
                    FormatCase{0, 2, 1e13, "10.00E+12"},     // beyond T: the wide exponent form
                    FormatCase{0, 1, 1e-25, "100.0E-27"}, FormatCase{0, 1, 1e-305, "0.0"}));

class FormatPrefixedFieldTest : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatPrefixedFieldTest, Writes) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(FormatPrefixedField(c.width, c.decimals, c.value), c.text) << c.value;
}

INSTANTIATE_TEST_SUITE_P(
    Values, FormatPrefixedFieldTest,
    testing::Values(FormatCase{6, 2, 2e9, "  2.00G"}, FormatCase{6, 2, 1e-10, "100.00p"},
                    FormatCase{6, 1, 50, "  50.00"},        // 1 to 999 carry the suffix "0"
                    FormatCase{6, 2, 0.5, "500.00m"},       // 0.1 to 0.999 fall under milli
                    FormatCase{6, 2, 0, "  0.000"}, FormatCase{6, 2, 1e6, "  1.00M"},
                    FormatCase{8, 2, 1.5e-3, "    1.50m"}, FormatCase{7, 2, 1000, "   1.00k"},
                    FormatCase{8, 2, 17.067e9, "   17.07G"}, FormatCase{6, 2, -2e-6, " -2.00u"},
                    FormatCase{6, 2, 1e20, "100.0E+180"}));  // exponent form, then the "0" suffix

class FormatExponentTest : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatExponentTest, Writes) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(FormatExponent(c.width, c.decimals, c.value), c.text) << c.value;
}

INSTANTIATE_TEST_SUITE_P(Values, FormatExponentTest,
                         testing::Values(FormatCase{8, 2, 0.5, "  500.00E-3"}, FormatCase{6, 0, 1, "   1.0E+0"},
                                         FormatCase{6, 1, 2e9, "   2.0E+9"}, FormatCase{6, 1, 0, "   0.0"},
                                         FormatCase{6, 1, -4.7e-12, "  -4.7E-12"},
                                         FormatCase{6, 1, 1e-27, "   1.0E-27"}, FormatCase{6, 1, 1e31, "1.0E+31"}));

}  // namespace
}  // namespace numerics
