#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "mainwin/engine/table_cells.h"

namespace mainwin {
namespace {

struct PathCase {
  const char* name;
  std::string path;
  std::string text;
};

void PrintTo(const PathCase& c, std::ostream* os) { *os << c.name; }

class TablePathTest : public testing::TestWithParam<PathCase> {};

TEST_P(TablePathTest, ShortensLongPaths) { EXPECT_EQ(TablePathText(GetParam().path), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Paths, TablePathTest,
    testing::Values(PathCase{"Short", "/m/a.s2p", "/m/a.s2p"},
                    PathCase{"ThirtyCharacters", "/home/a/series/bjt_01_0.5m.s2p", "/home/a/series/bjt_01_0.5m.s2p"},
                    PathCase{"ThirtyOneCharacters", "/home/ab/series/bjt_01_0.5m.s2p", "/home/a...bjt_01_0.5m.s2p"},
                    PathCase{"Long", "/home/engineer/measurements/lot7/bjt_12_40mA.s2p", "/home/e...bjt_12_40mA.s2p"},
                    // Umlauts count as one character each and are never cut in half.
                    PathCase{"Utf8", "/hö/jürgen/Messungen/Lötstelle_Ü_40mA.s2p", "/hö/jür...elle_Ü_40mA.s2p"},
                    PathCase{"Utf8ThirtyCharacters", "/home/jürgen/Lötstelle_5mA.s2p", "/home/jürgen/Lötstelle_5mA.s2p"}),
    [](const testing::TestParamInfo<PathCase>& info) { return std::string(info.param.name); });

class FileListPathTest : public testing::TestWithParam<PathCase> {};

TEST_P(FileListPathTest, ShortensLongPaths) { EXPECT_EQ(FileListPathText(GetParam().path), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Paths, FileListPathTest,
    testing::Values(
        PathCase{"Short", "/m/a.s2p", "/m/a.s2p"},
        PathCase{"ThirtyFourCharacters", "/home/engineer/series/bjt_0.5m.s2p", "/home/engineer/series/bjt_0.5m.s2p"},
        PathCase{"ThirtyFiveCharacters", "/home/engineer/series/bjt_0.5mA.s2p", "/home/engineer/se...eries/bjt_0.5mA.s2p"},
        PathCase{"Long", "/home/engineer/measurements/lot7/bjt_12_40mA.s2p", "/home/engineer/me...ot7/bjt_12_40mA.s2p"},
        PathCase{"Utf8", "/home/jürgen/Messreihe/Lötstelle_Ü_40mA.s2p", "/home/jürgen/Mess...ötstelle_Ü_40mA.s2p"}),
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
}  // namespace mainwin
