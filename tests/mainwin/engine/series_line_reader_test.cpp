#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

#include "mainwin/engine/series_line_reader.h"

namespace mainwin {
namespace {

struct LineCase {
  const char* name;
  std::string text;
  SeriesLineKind kind;
  double frequency;     // Data only
  const char* comment;  // Comment only
};

void PrintTo(const LineCase& c, std::ostream* os) { *os << c.name; }

class FirstLineTest : public testing::TestWithParam<LineCase> {};

TEST_P(FirstLineTest, ClassifiesTheFirstNonEmptyLine) {
  const LineCase& c = GetParam();
  numerics::TextCursor in(c.text);
  const SeriesLine line = ReadSeriesLine(in);
  EXPECT_EQ(line.kind, c.kind);
  if (c.kind == SeriesLineKind::Data) {
    EXPECT_EQ(line.frequency, c.frequency);
  }
  if (c.kind == SeriesLineKind::Comment) {
    EXPECT_EQ(line.comment, c.comment);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, FirstLineTest,
    testing::Values(
        LineCase{"CurrentComment", "! Ic=1.5m\n", SeriesLineKind::Comment, 0, " Ic=1.5m"},
        LineCase{"OptionLine", "# MHz S MA R 50\r\n100 1 2", SeriesLineKind::Comment, 0, " MHz S MA R 50"},
        LineCase{"DataLine", "100 0.5 -30\n", SeriesLineKind::Data, 100, ""},
        LineCase{"EmptyLinesBefore", "\n\r\n\n2000 1", SeriesLineKind::Data, 2000, ""},
        LineCase{"BlankLineSkipped", "      \n300 1", SeriesLineKind::Data, 300, ""},
        LineCase{"LeadingBlanks", "   40    .888  -10.0", SeriesLineKind::Data, 40, ""},
        LineCase{"NineteenBlanks", std::string(19, ' ') + "7 1", SeriesLineKind::Data, 7, ""},
        // The twentieth character read is still a blank, so the token is empty.
        LineCase{"TwentyBlanks", std::string(20, ' ') + "7 1", SeriesLineKind::NotData, 0, ""},
        LineCase{"ExponentToken", "2.5e3 1", SeriesLineKind::Data, 2500, ""},
        LineCase{"PointFirst", ".5 1", SeriesLineKind::Data, 0.5, ""},
        LineCase{"SignedToken", "+12 1", SeriesLineKind::Data, 12, ""},
        LineCase{"NoUnitPrefix", "1.5G 1", SeriesLineKind::Data, 1.5, ""},
        LineCase{"TokenAtEndOfLine", "250\n1", SeriesLineKind::Data, 250, ""},
        LineCase{"CommaIsNoPoint", "2,5 1", SeriesLineKind::Data, 2, ""},
        LineCase{"SectionKeyword", "[Version] 2.0\n", SeriesLineKind::NotData, 0, ""},
        LineCase{"Word", "Freq S11 S21", SeriesLineKind::NotData, 0, ""},
        LineCase{"LoneSign", "- 1 2", SeriesLineKind::NotData, 0, ""},
        LineCase{"LonePoint", ". 1 2", SeriesLineKind::NotData, 0, ""},
        LineCase{"CommentAfterBlank", "  ! Ic=1m", SeriesLineKind::NotData, 0, ""},
        LineCase{"EmptyFile", "", SeriesLineKind::EndOfFile, 0, ""},
        LineCase{"OnlyBlankLines", "\n   \r\n\n", SeriesLineKind::EndOfFile, 0, ""}),
    [](const testing::TestParamInfo<LineCase>& info) { return std::string(info.param.name); });

TEST(SeriesLineReader, LeavesTheCursorOnTheNextLineOrBehindTheToken) {
  numerics::TextCursor in("! Ic=2m\nFreq S11\n  100 0.9 -10\n\n# Hz\n200 1\n");
  EXPECT_EQ(ReadSeriesLine(in).kind, SeriesLineKind::Comment);
  EXPECT_EQ(ReadSeriesLine(in).kind, SeriesLineKind::NotData);
  const SeriesLine data = ReadSeriesLine(in);
  ASSERT_EQ(data.kind, SeriesLineKind::Data);
  EXPECT_EQ(data.frequency, 100);
  EXPECT_EQ(in.ReadReal(), 0.9);  // the S-parameters follow the token
  EXPECT_EQ(in.ReadReal(), -10);
  EXPECT_EQ(ReadSeriesLine(in).comment, " Hz");
  EXPECT_EQ(ReadSeriesLine(in).frequency, 200);
}

TEST(SeriesLineReader, ATokenLongerThanTheLineLimitIsCut) {
  // The token ends after 199 characters of the line.
  const std::string digits(250, '1');
  numerics::TextCursor in(digits);
  const SeriesLine line = ReadSeriesLine(in);
  ASSERT_EQ(line.kind, SeriesLineKind::Data);
  EXPECT_DOUBLE_EQ(line.frequency, std::stod(std::string(199, '1')));
}

struct CurrentCase {
  const char* name;
  std::string comment;  // the line after its "!" or "#"
  std::optional<double> current;
};

void PrintTo(const CurrentCase& c, std::ostream* os) { *os << c.name; }

class BiasCurrentTest : public testing::TestWithParam<CurrentCase> {};

TEST_P(BiasCurrentTest, ReadsTheCurrentBehindTheKey) {
  const CurrentCase& c = GetParam();
  const std::optional<double> current = BiasCurrentFromComment(c.comment);
  ASSERT_EQ(current.has_value(), c.current.has_value());
  if (c.current) {
    EXPECT_DOUBLE_EQ(*current, *c.current);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Comments, BiasCurrentTest,
    testing::Values(CurrentCase{"Compact", " Ic=1.5m", 1.5e-3},
                    CurrentCase{"BlanksAround", " IC = 1.5 m", 1.5e-3},
                    CurrentCase{"LowerCase", " ic=1.5m", 1.5e-3},
                    CurrentCase{"DrainCurrent", " Id=2m", 2e-3},
                    CurrentCase{"CollectorWinsOverDrain", " Id=2m Ic=3m", 3e-3},
                    CurrentCase{"VendorLine", " Bias condition: Vce=3V, Ic=5mA", 5e-3},
                    CurrentCase{"VendorLineWithBlanks", " VCE =  3.0 V,  IC =  6.0 mA", 6e-3},
                    CurrentCase{"Microamperes", " Ic=750u", 750e-6},
                    CurrentCase{"PlainAmperes", " Ic=0.02", 0.02},
                    // Blanks go before the key is looked for, so the letters may stand apart.
                    CurrentCase{"BlankBetweenLetters", " I c=1.5m", 1.5e-3},
                    CurrentCase{"NoEqualsSign", " Ic 1.5m", std::nullopt},
                    CurrentCase{"NoKey", " closed-form fT of the model: 3.5 GHz", std::nullopt},
                    CurrentCase{"KeyWithoutValue", " Vce=3V, Ic", 0.0},
                    // "IC" inside a word counts too, and what follows it reads as no current.
                    CurrentCase{"KeyInsideAWord", " Electrical data: Vce=3", 0.0},
                    // Only the first 79 characters take part.
                    CurrentCase{"BeyondTheExaminedPart", std::string(80, 'x') + "Ic=1m", std::nullopt}),
    [](const testing::TestParamInfo<CurrentCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace mainwin
