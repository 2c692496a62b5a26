#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "series/dropped_files.h"

namespace series {
namespace {

namespace fs = std::filesystem;
using Paths = std::vector<std::string>;

// A folder gives its own .s2p files (any case, not those of subfolders) in name order at its
// place; other files and folders without series files are refused.
TEST(DroppedFiles, SortsOutSeriesFilesAndRefusesTheRest) {
  const fs::path root = fs::path(testing::TempDir()) / "dropped_files_test";
  fs::remove_all(root);
  fs::create_directories(root / "series" / "deeper");
  fs::create_directories(root / "empty");
  const auto at = [&](const char* relative) { return (root / relative).string(); };
  for (const char* file : {"z.s2p", "series/b.S2P", "series/a.s2p", "series/n.txt", "series/deeper/d.s2p", "o.s1p"}) {
    std::ofstream(at(file)) << "! Ic=1m\n";
  }
  const DroppedFiles dropped = SortOutDroppedPaths({at("z.s2p"), at("series"), at("o.s1p"), at("empty")});
  EXPECT_EQ(dropped.series, (Paths{at("z.s2p"), at("series/a.s2p"), at("series/b.S2P")}));
  EXPECT_EQ(dropped.refused, (Paths{at("o.s1p"), at("empty")}));
}

TEST(RefusedFilesMessage, NamesEveryRefusedPath) {
  EXPECT_EQ(RefusedFilesMessage({"/m/a.txt", "/m/b"}),
            "Only .s2p files can join the series; left out: /m/a.txt, /m/b. Drop S-parameter files (*.s2p) or "
            "folders holding them!");
}

}  // namespace
}  // namespace series
