#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "mainwin/engine/dropped_files.h"
#include "series_fixtures.h"

namespace mainwin {
namespace {

namespace fs = std::filesystem;

class DroppedFilesTest : public testing::Test {
 protected:
  void SetUp() override {
    root_ = fixtures::FixturePath("drop");
    fs::remove_all(root_);
    fs::create_directories(root_ / "series" / "deeper");
    fs::create_directories(root_ / "empty");
  }
  std::string Touch(const fs::path& relative) {
    const fs::path path = root_ / relative;
    std::ofstream(path) << "! Ic=1m\n";
    return path.string();
  }
  std::string At(const fs::path& relative) const { return (root_ / relative).string(); }
  fs::path root_;
};

TEST_F(DroppedFilesTest, AFolderGivesItsOwnSeriesFilesInNameOrderAtItsPlace) {
  const std::string first = Touch("z_first.s2p");
  const std::string b = Touch("series/b_5mA.S2P");
  const std::string a = Touch("series/a_1mA.s2p");
  const std::string c = Touch("series/c_9mA.s2p");
  Touch("series/notes.txt");
  Touch("series/deeper/d.s2p");
  const std::string last = Touch("a_last.s2p");
  const DroppedFiles dropped = SortOutDroppedPaths({first, At("series"), last});
  EXPECT_EQ(dropped.series, (std::vector<std::string>{first, a, b, c, last}));
  EXPECT_TRUE(dropped.refused.empty());
}

TEST_F(DroppedFilesTest, OtherFilesAndFoldersWithoutSeriesFilesAreRefused) {
  const std::string text = Touch("readme.txt");
  const std::string kept = Touch("bjt.s2p");
  const std::string touchstone1 = Touch("one.s1p");
  const DroppedFiles dropped = SortOutDroppedPaths({text, kept, At("empty"), touchstone1});
  EXPECT_EQ(dropped.series, std::vector<std::string>{kept});
  EXPECT_EQ(dropped.refused, (std::vector<std::string>{text, At("empty"), touchstone1}));
}

TEST(RefusedFilesMessage, NamesEveryRefusedPath) {
  EXPECT_EQ(RefusedFilesMessage({"/m/a.txt", "/m/b"}),
            "Only .s2p files can join the series; left out: /m/a.txt, /m/b. Drop S-parameter files (*.s2p) or "
            "folders holding them!");
}

}  // namespace
}  // namespace mainwin
