#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "series/series_line_reader.h"

namespace series {
namespace {

struct LineCase {
  const char* name;
  std::string text;
  SeriesLineKind kind;
  double frequency;     // 0 unless Data
  const char* comment;  // empty unless Comment
};

class FirstLineTest : public testing::TestWithParam<LineCase> {};

TEST_P(FirstLineTest, ClassifiesTheFirstNonEmptyLine) {
  const LineCase& c = GetParam();
  numerics::TextCursor in(c.text);
  const SeriesLine line = ReadSeriesLine(in);
  EXPECT_EQ(line.kind, c.kind);
  EXPECT_DOUBLE_EQ(line.frequency, c.frequency);
  EXPECT_EQ(line.comment, c.comment);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, FirstLineTest,
    testing::Values(
        LineCase{"OptionLine", "# MHz S MA R 50\r\n100 1 2", SeriesLineKind::Comment, 0, " MHz S MA R 50"},
        LineCase{"BlankLineSkipped", "      \n300 1", SeriesLineKind::Data, 300, ""},
        // The twentieth character read is still a blank, so the token is empty.
        LineCase{"TwentyBlanks", std::string(20, ' ') + "7 1", SeriesLineKind::NotData, 0, ""},
        LineCase{"ExponentToken", "2.5e3 1", SeriesLineKind::Data, 2500, ""},
        LineCase{"PointFirst", ".5 1", SeriesLineKind::Data, 0.5, ""},
        LineCase{"SignedToken", "+12 1", SeriesLineKind::Data, 12, ""},
        LineCase{"NoUnitPrefix", "1.5G 1", SeriesLineKind::Data, 1.5, ""},
        LineCase{"TokenAtEndOfLine", "250\n1", SeriesLineKind::Data, 250, ""},
        // The token ends after 199 characters of the line.
        LineCase{"LongTokenIsCut", std::string(250, '1'), SeriesLineKind::Data, std::stod(std::string(199, '1')), ""},
        LineCase{"LonePoint", ". 1 2", SeriesLineKind::NotData, 0, ""},
        LineCase{"CommentAfterBlank", "  ! Ic=1m", SeriesLineKind::NotData, 0, ""},
        LineCase{"OnlyBlankLines", "\n   \r\n\n", SeriesLineKind::EndOfFile, 0, ""}),
    [](const testing::TestParamInfo<LineCase>& info) { return std::string(info.param.name); });

struct CurrentCase {
  const char* name;
  std::string comment;  // the line after its "!" or "#"
  std::optional<double> current;
};

class BiasCurrentTest : public testing::TestWithParam<CurrentCase> {};

TEST_P(BiasCurrentTest, ReadsTheCurrentBehindTheKey) {
  // No current reads as -1, which no row expects.
  EXPECT_DOUBLE_EQ(BiasCurrentFromComment(GetParam().comment).value_or(-1), GetParam().current.value_or(-1));
}

INSTANTIATE_TEST_SUITE_P(
    Comments, BiasCurrentTest,
    testing::Values(CurrentCase{"BlanksAround", " IC = 1.5 m", 1.5e-3},
                    CurrentCase{"CollectorWinsOverDrain", " Id=2m Ic=3m", 3e-3},
                    CurrentCase{"NoEqualsSign", " Ic 1.5m", std::nullopt},
                    CurrentCase{"KeyWithoutValue", " Vce=3V, Ic", 0.0},
                    // "IC" inside a word counts too, and what follows it reads as no current.
                    CurrentCase{"KeyInsideAWord", " Electrical data: Vce=3", 0.0},
                    // Only the first 79 characters take part.
                    CurrentCase{"BeyondTheExaminedPart", std::string(80, 'x') + "Ic=1m", std::nullopt}),
    [](const testing::TestParamInfo<CurrentCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace series
