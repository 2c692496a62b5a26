#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "numerics/file_reader.h"

namespace numerics {
namespace {

class FileReaderTest : public testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& content) {
    const std::filesystem::path path = folder_ / name;
    std::ofstream(path, std::ios::binary) << content;
    return path.string();
  }

  const TwoPortDataSet& Load(const std::string& content) {
    const LoadOutcome outcome = LoadTwoPortFile(store_, Write("data.s2p", content));
    EXPECT_EQ(outcome.status, LoadStatus::Loaded) << outcome.message;
    return store_.sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)];
  }

  void SetUp() override {
    folder_ = std::filesystem::path(testing::TempDir()) /
              ("reader_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path folder_;
  DataSetStore store_;
};

std::string Line(const std::string& frequency, double angle = 10) {
  const std::string a = std::to_string(angle);
  return frequency + " 0.5 " + a + " 2.0 " + a + " 0.1 " + a + " 0.4 " + a + "\n";
}

TEST_F(FileReaderTest, ReadsTitleFrequenciesAndParameters) {
  const TwoPortDataSet& set = Load("My amplifier\n100M 0.9 -20 3.5 150 0.05 60 0.7 -30\n1.5G 0.8 -40 3 140 0.06 55 0.6 -40\n");
  EXPECT_EQ(set.title, "My amplifier");
  ASSERT_EQ(set.pointCount, 2);
  EXPECT_DOUBLE_EQ(set.frequency[1], 1.5e9);
  const SParameters& p = set.points[1];  // file order S11, S21, S12, S22
  EXPECT_EQ(p.s[0][0].form, ComplexForm::Polar);
  EXPECT_DOUBLE_EQ(p.s[0][0].first, 0.8);
  EXPECT_DOUBLE_EQ(p.s[1][0].second, 140);
  EXPECT_DOUBLE_EQ(p.s[0][1].first, 0.06);
}

std::string Lines(int count, char lineEnd = '\n') {
  std::string text = "title\n";
  for (int i = 1; i <= count; ++i) text += Line(std::to_string(i * 1000));
  std::replace(text.begin(), text.end(), '\n', lineEnd);
  return text;
}

TEST_F(FileReaderTest, DropsTheLastRecordAndTellsWhatElseWasLeftOut) {
  const struct {
    std::string content;
    int points;
    std::string note;  // what the load tells behind "File PATH"; empty for nothing
  } cases[] = {
      {Lines(3).substr(0, Lines(3).size() - 1), 2, ""},  // no final line break
      {"", -1, ""},
      // Record 254 stands on line 255; lines 255 to 301 are left.
      {Lines(300), 253, ": stopped at line 255: the store holds 253 points; 47 lines not read."},
      {"t\n" + Line("3k") + Line("4k") + Line("2k") + Line("5k"), 2,
       ": stopped at line 4: the frequency does not rise; 2 lines not read."},
      // The empty record after the last line break is read at 1 GHz, below this sweep: no note.
      {"t\n" + Line("2G") + Line("3G"), 2, ""},
      {Lines(3, '\r'), -1,
       " ends its lines with a carriage return alone, which is not a line end here: it was read as one "
       "line; 3 lines after the first not read. Save it with LF or CRLF line ends."}};
  for (const auto& c : cases) {
    DataSetStore store;
    const std::string path = Write("data.s2p", c.content);
    const LoadOutcome outcome = LoadTwoPortFile(store, path);
    ASSERT_EQ(outcome.status, LoadStatus::Loaded) << outcome.message;
    EXPECT_EQ(store.sets[0].pointCount, c.points) << c.content.size();
    EXPECT_EQ(outcome.notes, c.note.empty() ? ReadNotes{} : ReadNotes{"File " + path + c.note});
  }
}

TEST_F(FileReaderTest, UnwrapsAnglesAlongTheSweep) {
  const TwoPortDataSet& down = Load("t\n" + Line("1k", 190) + Line("2k", -170) + Line("3k", -170));
  EXPECT_DOUBLE_EQ(down.points[0].s[0][0].second, -170);  // folded once
  EXPECT_DOUBLE_EQ(down.points[1].s[0][0].second, -170);
  const TwoPortDataSet& up = Load("t\n" + Line("1k", 170) + Line("2k", -170) + Line("3k", -150));
  EXPECT_DOUBLE_EQ(up.points[0].s[1][0].second, 170);
  EXPECT_DOUBLE_EQ(up.points[1].s[1][0].second, 190);  // unwrapped beyond 180
  EXPECT_DOUBLE_EQ(up.points[2].s[1][0].second, 210);   // against the stored, unwrapped neighbour
}

TEST_F(FileReaderTest, OnlyTheFirstLineMayBeAHeader) {
  // The "!" line gives a point at 1 GHz whose numbers come from the next line.
  const TwoPortDataSet& set = Load("t\n! comment\n100 0.5 10 2 20 0.1 30 0.4 40\n");
  EXPECT_DOUBLE_EQ(set.frequency[0], 1e9);
  EXPECT_DOUBLE_EQ(set.points[0].s[0][0].first, 100);
  EXPECT_DOUBLE_EQ(set.points[0].s[0][0].second, 0.5);
}

TEST_F(FileReaderTest, FrequencyFieldRules) {
  const TwoPortDataSet& set = Load("t\n" + Line("2,5M") + Line("    1.5G") + Line("0"));
  EXPECT_DOUBLE_EQ(set.frequency[0], 2.5e6);
  EXPECT_DOUBLE_EQ(set.frequency[1], 1.5e9);   // leading blanks are skipped
  EXPECT_DOUBLE_EQ(set.frequency[2], 1e-9);    // bounded below, and the sweep stops rising
  // A field that ends its line loses its last character: "1000" reads as 100 Hz.
  const TwoPortDataSet& cut = Load("t\n1000\n0.5 10 2 20 0.1 30 0.4 40\n" + Line("200"));
  EXPECT_DOUBLE_EQ(cut.frequency[0], 100);
  EXPECT_DOUBLE_EQ(cut.points[0].s[0][0].first, 0.5);
}

// A failed load names the file and what failed, and leaves the store as it was.
TEST_F(FileReaderTest, FailedLoadsLeaveTheStoreAsItWas) {
  Load("t\n" + Line("100M"));
  const std::string bad = Write("bad.s2p", "t\n" + Line("5G") + "6G 0.5 10 x 1 0 0 0 0\n");
  const LoadOutcome unreadable = LoadTwoPortFile(store_, bad);
  EXPECT_EQ(unreadable.status, LoadStatus::Unreadable);
  EXPECT_EQ(unreadable.message.rfind("File " + bad + ", line 3: \"x\"", 0), 0U) << unreadable.message;
  const std::string utf16 = Write("utf16.s2p", std::string("\xFF\xFEt\0\n\0\x31\0 \0\x32\0\n\0", 14));
  const std::string wide = LoadTwoPortFile(store_, utf16).message;
  EXPECT_NE(wide.find("File " + utf16 + " is UTF-16 text (it starts with a byte-order mark)"), std::string::npos)
      << wide;
  EXPECT_EQ(store_.openCount, 1);
}

TEST_F(FileReaderTest, HugeLinesAndManyBlankLinesEndQuickly) {
  const std::string longLine(1 << 20, '7');
  EXPECT_EQ(Load("t\n" + longLine + "\n").pointCount, 0);
  EXPECT_EQ(Load("t\n" + std::string(1000000, '\n') + Line("1k")).pointCount, 1);  // blank lines are skipped
}

// A "!" line after the first suggests the Touchstone reading, also when the load fails; a "!" title does not.
TEST_F(FileReaderTest, PlainReadingSuggestsTheTouchstoneReading) {
  EXPECT_TRUE(LoadTwoPortFile(store_, Write("plain.s2p", "! title\n" + Line("1k"))).notes.empty());
  const LoadOutcome failed = LoadTwoPortFile(store_, Write("db.s2p", "t\n# GHz DB\n1 -3 x\n"));
  EXPECT_NE(failed.message.find(kTouchstoneSwitchHint), std::string::npos) << failed.message;
}

TEST_F(FileReaderTest, TouchstoneReadingThinsLongSweepsAndTellsWhatItLeftOut) {
  std::string content = "! long sweep\n# MHz S MA R 50\n";
  for (int i = 1; i <= 600; ++i) content += Line(std::to_string(i), 150 + 10 * i);
  const std::string path = Write("long.s2p", content + "! noise\n1 1 .5 10 .2\n2 1 .5 10 .2\n");
  const LoadOutcome outcome = LoadTwoPortFile(store_, path, {FileReading::Touchstone, 50});
  ASSERT_EQ(outcome.status, LoadStatus::Loaded) << outcome.message;
  const TwoPortDataSet& set = store_.sets[0];
  EXPECT_EQ(set.title, "! long sweep");
  ASSERT_EQ(set.pointCount, 253);
  EXPECT_EQ(set.frequency[1], 3e6);  // 599 / 252 = 2.38 points on: the third; then 4.75 on: the sixth
  EXPECT_EQ(set.frequency[252], 600e6);
  EXPECT_DOUBLE_EQ(set.points[1].s[1][0].second, 180);
  EXPECT_DOUBLE_EQ(set.points[2].s[1][0].second, 210);  // folded to -150, unwrapped along the kept points
  EXPECT_EQ(outcome.notes, (ReadNotes{"File " + path + " holds 600 frequency points; 253 of them, spread evenly "
                                      "from the first to the last, are kept.",
                                      "File " + path + " also holds noise parameters at 2 frequencies; they are "
                                      "not S-parameters and are left out."}));

  const std::string bare = Write("bare.s2p", "! no option line\n" + Line("2"));
  const LoadOutcome defaults = LoadTwoPortFile(store_, bare, {FileReading::Touchstone, 50});
  EXPECT_EQ(store_.sets[1].frequency[0], 2e9);
  ASSERT_EQ(defaults.notes.size(), 1U);
  EXPECT_NE(defaults.notes[0].find("has no \"#\" option line, so the Touchstone defaults apply"), std::string::npos);
}

TEST(ReadFrequencyField, SkipsAtMostNineteenBlanks) {
  for (const auto& [blanks, frequency] : {std::pair{19, 25.0}, std::pair{20, 1e-9}}) {  // 1e-9: the field is empty
    const std::string text = std::string(blanks, ' ') + "25 rest";
    TextCursor in(text);
    EXPECT_DOUBLE_EQ(ReadFrequencyField(in), frequency) << blanks;
  }
}

}  // namespace
}  // namespace numerics
