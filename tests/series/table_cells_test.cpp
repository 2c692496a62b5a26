#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "series/table_cells.h"

namespace series {
namespace {

struct PathCase {
  const char* name;
  std::string (*shorten)(const std::string&);
  std::string path;
  std::string text;
};

class PathTextTest : public testing::TestWithParam<PathCase> {};

TEST_P(PathTextTest, ShortensLongPaths) { EXPECT_EQ(GetParam().shorten(GetParam().path), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Paths, PathTextTest,
    testing::Values(
        PathCase{"TableThirtyCharacters", TablePathText, "/home/a/series/bjt_01_0.5m.s2p", "/home/a/series/bjt_01_0.5m.s2p"},
        PathCase{"TableThirtyOneCharacters", TablePathText, "/home/ab/series/bjt_01_0.5m.s2p", "/home/a...bjt_01_0.5m.s2p"},
        // Umlauts count as one character each and are never cut in half.
        PathCase{"TableUtf8", TablePathText, "/hö/jürgen/Messungen/Lötstelle_Ü_40mA.s2p", "/hö/jür...elle_Ü_40mA.s2p"},
        PathCase{"TableUtf8ThirtyCharacters", TablePathText, "/home/jürgen/Lötstelle_5mA.s2p", "/home/jürgen/Lötstelle_5mA.s2p"},
        PathCase{"FileListThirtyFourCharacters", FileListPathText, "/home/engineer/series/bjt_0.5m.s2p",
                 "/home/engineer/series/bjt_0.5m.s2p"},
        PathCase{"FileListThirtyFiveCharacters", FileListPathText, "/home/engineer/series/bjt_0.5mA.s2p",
                 "/home/engineer/se...eries/bjt_0.5mA.s2p"}),
    [](const testing::TestParamInfo<PathCase>& info) { return std::string(info.param.name); });

TEST(TableCells, WritesEachColumnInItsFormat) {
  const FileFigures file{1.5e-3, 12.3456e9, 25e9, 15.4321, 0.8, 0.56789, 0};
  SeriesSettings settings = DefaultSeriesSettings();
  EXPECT_EQ(TableRowTexts("/m/a.s2p", file, settings),
            (std::vector<std::string>{"/m/a.s2p", "   1.50mA", "  12.35GHz", "  25.00GHz", "  15.43dB", "  0.568",
                                      "   0.000Hz"}));
  settings.density = true;
  settings.area = 2.5;
  EXPECT_EQ(TableRowTexts("/m/a.s2p", file, settings).back(), "  0.600");  // 1000 * 1.5 mA / 2.5
}

}  // namespace
}  // namespace series
