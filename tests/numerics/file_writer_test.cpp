#include "numerics/file_writer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace numerics {
namespace {

namespace fs = std::filesystem;

class FileWriterTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::path(testing::TempDir()) /
              ("writer_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  static std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  std::size_t Entries() const { return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {})); }

  fs::path folder_;
};

// A link stays a link, its target gets the content and keeps its permissions; nothing else is left.
TEST_F(FileWriterTest, WritesThroughALinkAndKeepsThePermissions) {
  const fs::perms kept = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  std::ofstream(Path("target.spa")) << "old content that is longer\n";
  fs::permissions(Path("target.spa"), kept);
  fs::create_symlink("target.spa", Path("link.spa"));
  ASSERT_TRUE(WriteFileAtomically(Path("link.spa"), "new\n").Ok());
  EXPECT_TRUE(fs::is_symlink(Path("link.spa")));
  EXPECT_EQ(Read(Path("target.spa")), "new\n");
  EXPECT_EQ(fs::status(Path("target.spa")).permissions() & fs::perms::all, kept);
  EXPECT_EQ(Entries(), 2U);
}

// A new file is readable by others as any new file is, not private as a temporary file.
TEST_F(FileWriterTest, ANewFileGetsTheUsualPermissions) {
  ASSERT_TRUE(WriteFileAtomically(Path("new.csv"), "a,b\n").Ok());
  EXPECT_EQ(Read(Path("new.csv")), "a,b\n");
  EXPECT_NE(fs::status(Path("new.csv")).permissions() & fs::perms::owner_read, fs::perms::none);
  EXPECT_EQ(fs::status(Path("new.csv")).permissions() & fs::perms::others_write, fs::perms::none);
}

TEST_F(FileWriterTest, FailuresGiveTheSystemsReason) {
  const FileWriteOutcome noFolder = WriteFileAtomically(Path("missing/r.spa"), "x");
  EXPECT_EQ(noFolder.reason, "No such file or directory");
  EXPECT_TRUE(noFolder.noTemporaryFile);
  // A device is written directly, here one that is always full.
  const FileWriteOutcome full = WriteFileAtomically("/dev/full", "x");
  EXPECT_EQ(full.reason, "No space left on device");
  EXPECT_FALSE(full.noTemporaryFile);
  EXPECT_TRUE(WriteFileAtomically("/dev/null", "x").Ok());
}

}  // namespace
}  // namespace numerics
