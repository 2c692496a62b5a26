#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "series/dropped_files.h"
#include "series_fixtures.h"

namespace series {
namespace {

namespace fs = std::filesystem;

// A folder gives its own .s2p files (any case, not those of subfolders) in name order at its
// place; other files and folders without series files are refused.
TEST(DroppedFiles, SortsOutSeriesFilesAndRefusesTheRest) {
  const fs::path root = fixtures::FixturePath("drop");
  fs::remove_all(root);
  fs::create_directories(root / "series" / "deeper");
  fs::create_directories(root / "empty");
  const auto at = [&](const char* relative) { return (root / relative).string(); };
  const auto touch = [&](const char* relative) {
    std::ofstream(root / relative) << "! Ic=1m\n";
    return at(relative);
  };
  const std::string first = touch("z_first.s2p");
  const std::string b = touch("series/b_5mA.S2P");
  const std::string a = touch("series/a_1mA.s2p");
  touch("series/notes.txt");
  touch("series/deeper/d.s2p");
  const std::string text = touch("one.s1p");
  const std::string last = touch("a_last.s2p");
  const DroppedFiles dropped = SortOutDroppedPaths({first, at("series"), text, at("empty"), last});
  EXPECT_EQ(dropped.series, (std::vector<std::string>{first, a, b, last}));
  EXPECT_EQ(dropped.refused, (std::vector<std::string>{text, at("empty")}));
}

TEST(RefusedFilesMessage, NamesEveryRefusedPath) {
  EXPECT_EQ(RefusedFilesMessage({"/m/a.txt", "/m/b"}),
            "Only .s2p files can join the series; left out: /m/a.txt, /m/b. Drop S-parameter files (*.s2p) or "
            "folders holding them!");
}

}  // namespace
}  // namespace series
