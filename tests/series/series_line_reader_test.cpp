#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "series/series_line_reader.h"

namespace series {
namespace {

TEST(ReadSeriesLine, ClassifiesTheFirstNonEmptyLine) {
  const struct {
    std::string text;
    SeriesLineKind kind;
    double frequency;     // 0 unless Data
    const char* comment;  // empty unless Comment
  } cases[] = {
      {"# MHz S MA R 50\r\n100 1 2", SeriesLineKind::Comment, 0, " MHz S MA R 50"},
      {"+.5e3G 1", SeriesLineKind::Data, 500, ""},  // sign, point first, exponent; no unit prefix
      {"250\n1", SeriesLineKind::Data, 250, ""},
      // The token ends after 199 characters of the line.
      {std::string(250, '1'), SeriesLineKind::Data, std::stod(std::string(199, '1')), ""},
      {". 1 2", SeriesLineKind::NotData, 0, ""},
      {"  ! Ic=1m", SeriesLineKind::NotData, 0, ""},
      {"\n   \r\n\n", SeriesLineKind::EndOfFile, 0, ""}};
  for (const auto& c : cases) {
    numerics::TextCursor in(c.text);
    const SeriesLine line = ReadSeriesLine(in);
    EXPECT_EQ(line.kind, c.kind) << c.text;
    EXPECT_DOUBLE_EQ(line.frequency, c.frequency) << c.text;
    EXPECT_EQ(line.comment, c.comment) << c.text;
  }
}

TEST(BiasCurrentFromComment, ReadsTheCurrentBehindTheKey) {
  const std::pair<std::string, std::optional<double>> cases[] = {
      {" IC = 1.5 m", 1.5e-3}, {" Id=2m Ic=3m", 3e-3}, {" Ic 1.5m", std::nullopt}, {" Vce=3V, Ic", 0.0},
      // "IC" inside a word counts too, and what follows it reads as no current.
      {" Electrical data: Vce=3", 0.0},
      // Only the first 79 characters take part.
      {std::string(80, 'x') + "Ic=1m", std::nullopt}};
  for (const auto& [comment, current] : cases) EXPECT_EQ(BiasCurrentFromComment(comment), current) << comment;
}

}  // namespace
}  // namespace series
