#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <ostream>
#include <string>
#include <vector>

#include "app/command_modes.h"

namespace app {
namespace {

namespace fs = std::filesystem;

// S11 = S22 = 0, S21 = 2, S12 = 0.25 at 1 GHz. By hand: k = (1 + |S12 S21|^2) / (2 |S12 S21|)
// = 1.25, MAG = 8 (1.25 - 0.75) = 4 (6.021 dB), fmax = sqrt(4) 1 GHz, and
// |h21| = 2 |S21| / (1 + S12 S21) = 4 / 1.5, so fT = 2.667 GHz. Mason's U with r = S21 / S12 = 8
// is (r - 1)^2 / (2 (k r - r)) = 12.25, so fmax from U is 3.5 GHz.
constexpr const char* kPoint = "1000 0 0 2 0 0.25 0 0 0\n";
constexpr const char* kRow = "     2.00m     2.67G     2.00G   6.021  1.2500     1.00G\n";

class SeriesCommandTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::path(testing::TempDir()) / ("series_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  std::string Fixture(const std::string& name, const std::string& content) {
    const std::string path = (folder_ / name).string();
    std::ofstream(path, std::ios::binary) << content;
    return path;
  }
  std::string Device(const std::string& name) { return Fixture(name, std::string("! Ic=2m\n# MHz S MA R 50\n") + kPoint); }
  int Run(std::vector<std::string> args) {
    args.insert(args.begin(), "--series");
    return RunHeadlessMode(args, out_, err_);
  }
  std::vector<std::string> FolderEntries() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& e : fs::directory_iterator(folder_)) names.push_back(e.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  static std::string ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

  fs::path folder_;
  std::ostringstream out_, err_;
};

TEST_F(SeriesCommandTest, PrintsTheTableOfTheSeriesInTheGivenOrder) {
  const std::string a = Device("a.s2p");
  const std::string b = Device("b.s2p");
  ASSERT_EQ(Run({b, "--comment", "lot 7", a}), 0) << err_.str();
  EXPECT_EQ(out_.str(), "Data derived by lioraira: lot 7\n"
                        "                  I/A        fT/Hz        fmax/Hz      MAG/dB       k       f(k>1)\n" +
                            b + kRow + a + kRow);
  EXPECT_EQ(err_.str(), "");
}

TEST_F(SeriesCommandTest, AppliesTheOptions) {
  // The frequency column read in GHz puts the point at 1 THz, above fo, so only f(k>1) is set;
  // j = 1000 * 2 mA / 4 = 0.5 mA per square micrometre.
  const std::string a = Fixture("a.s2p", std::string("! Id=2m\n") + kPoint);
  ASSERT_EQ(Run({"--multiplier", "GHz", "--x-axis", "ic", "--density", "--area", "4", a}), 0) << err_.str();
  EXPECT_NE(out_.str().find(a + "     2.00m     0.000     0.000   0.000  0.0000     1.00T   500.00m\n"),
            std::string::npos)
      << out_.str();

  out_.str("");
  ASSERT_EQ(Run({"--fo", "900M", a}), 0) << err_.str();
  EXPECT_NE(out_.str().find(a + "     2.00m     0.000     0.000   0.000  0.0000     1.00G\n"), std::string::npos)
      << out_.str();

  out_.str("");
  ASSERT_EQ(Run({"--fmax-from-u", "--lgnd", "1n", a}), 0) << err_.str();
  EXPECT_NE(out_.str().find(a + "     2.00m     2.67G     3.50G   6.021  1.2500     1.00G\n"), std::string::npos)
      << out_.str();

  out_.str("");
  ASSERT_EQ(Run({"--with-lgnd", "--lgnd", "1n", a}), 0) << err_.str();
  EXPECT_EQ(out_.str().find(a + kRow), std::string::npos) << out_.str();  // the inductance changes the row
}

TEST_F(SeriesCommandTest, TakesTheFirstFortyFilesAndRefusesTheNext) {
  std::vector<std::string> files;
  for (int i = 1; i <= 42; ++i) files.push_back(Device("d" + std::to_string(i) + ".s2p"));
  ASSERT_EQ(Run(files), 0);
  EXPECT_EQ(err_.str(), "Maximum of 40 files reached! Perform calculation to get the results.\n");
  const std::string text = out_.str();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 42);
  EXPECT_NE(text.find(files[39] + kRow), std::string::npos);
  EXPECT_EQ(text.find(files[40]), std::string::npos);
}

TEST_F(SeriesCommandTest, WritesTheOutputFileWhole) {
  const std::string a = Device("a.s2p");
  ASSERT_EQ(Run({a}), 0);
  const std::string expected = out_.str();
  const fs::path target = folder_ / "result.spa";
  ASSERT_EQ(Run({"--out", target.string(), a}), 0) << err_.str();
  EXPECT_EQ(ReadFile(target), expected);
  EXPECT_EQ(FolderEntries(), (std::vector<std::string>{"a.s2p", "result.spa"}));
  EXPECT_EQ(fs::status(target).permissions() & fs::perms::others_write, fs::perms::none);
  EXPECT_NE(fs::status(target).permissions() & fs::perms::owner_read, fs::perms::none);
}

TEST_F(SeriesCommandTest, AFailedRunLeavesTheOutputFileAsItWas) {
  const std::string a = Device("a.s2p");
  const std::string bad = Fixture("bad.s2p", "! Ic=1m\n1000 0.5 x 1 0 1 0 1 0\n");
  const std::string target = Fixture("result.spa", "earlier result\n");
  EXPECT_EQ(Run({"--out", target, a, bad}), 1);
  EXPECT_NE(err_.str().find("File " + bad + ", line 2"), std::string::npos) << err_.str();
  EXPECT_EQ(ReadFile(target), "earlier result\n");
  EXPECT_EQ(FolderEntries(), (std::vector<std::string>{"a.s2p", "bad.s2p", "result.spa"}));

  err_.str("");
  EXPECT_EQ(Run({"--out", (folder_ / "no_such_folder" / "r.spa").string(), a}), 1);
  EXPECT_NE(err_.str().find("Cannot write"), std::string::npos) << err_.str();
  EXPECT_EQ(out_.str(), "");
}

struct UsageCase {
  const char* name;
  std::vector<std::string> args;
  const char* message;  // a part of the message on standard error
};

void PrintTo(const UsageCase& c, std::ostream* os) { *os << c.name; }

class SeriesUsageTest : public testing::TestWithParam<UsageCase> {};

TEST_P(SeriesUsageTest, RefusesWithAMessage) {
  std::ostringstream out, err;
  std::vector<std::string> args = GetParam().args;
  args.insert(args.begin(), "--series");
  EXPECT_EQ(RunHeadlessMode(args, out, err), 1);
  EXPECT_NE(err.str().find(GetParam().message), std::string::npos) << err.str();
  EXPECT_EQ(out.str(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, SeriesUsageTest,
    testing::Values(UsageCase{"NoFiles", {}, "Please drag s2p file(s) to the program.\n"},
                    UsageCase{"MissingFile", {"/nonexistent/a.s2p"}, "File /nonexistent/a.s2p cannot be read"},
                    UsageCase{"UnknownOption", {"--fast", "a.s2p"}, "netrix --series: unknown option --fast"},
                    UsageCase{"MissingValue", {"a.s2p", "--fo"}, "--fo needs a value"},
                    UsageCase{"NumberWithoutDigits", {"--fo", "high", "a.s2p"}, "--fo needs a number"},
                    UsageCase{"LgndWithoutDigits", {"--lgnd", "p", "a.s2p"}, "--lgnd needs a number"},
                    UsageCase{"ZeroArea", {"--area", "0", "a.s2p"}, "--area is the transistor area"},
                    UsageCase{"LowerCaseMultiplier", {"--multiplier", "mhz", "a.s2p"}, "--multiplier takes Hz, MHz or GHz"},
                    UsageCase{"UnknownXAxis", {"--x-axis", "vce", "a.s2p"}, "--x-axis takes ic, id or fileno"}),
    [](const testing::TestParamInfo<UsageCase>& info) { return std::string(info.param.name); });

TEST(SeriesHelp, ListsTheModeAndEveryOption) {
  const std::string usage = UsageText();
  for (const char* option : {"--series [options] FILE...", "--fo TEXT", "--multiplier Hz|MHz|GHz", "--lgnd TEXT",
                             "--with-lgnd", "--fmax-from-u", "--x-axis ic|id|fileno", "--area TEXT", "--density",
                             "--comment TEXT", "--out PATH", "--figures FILE"}) {
    EXPECT_NE(usage.find(option), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace app
