#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "command_test.h"

namespace app {
namespace {

namespace fs = std::filesystem;

// S11 = S22 = 0, S21 = 2, S12 = 0.25 at 1 GHz. By hand: k = (1 + |S12 S21|^2) / (2 |S12 S21|)
// = 1.25, MAG = 8 (1.25 - 0.75) = 4 (6.021 dB), fmax = sqrt(4) 1 GHz, and
// |h21| = 2 |S21| / (1 + S12 S21) = 4 / 1.5, so fT = 2.667 GHz. Mason's U with r = S21 / S12 = 8
// is (r - 1)^2 / (2 (k r - r)) = 12.25, so fmax from U is 3.5 GHz.
constexpr const char* kPoint = "1000 0 0 2 0 0.25 0 0 0\n";
constexpr const char* kRow = "     2.00m     2.67G     2.00G   6.021  1.2500     1.00G\n";

class SeriesCommandTest : public CommandTest {
 protected:
  std::string Device(const std::string& name) { return Write(name, std::string("! Ic=2m\n# MHz S MA R 50\n") + kPoint); }
  int Series(std::vector<std::string> args) {
    args.insert(args.begin(), "--series");
    return Run(args);
  }
};

TEST_F(SeriesCommandTest, PrintsTheTableOfTheSeriesInTheGivenOrder) {
  const std::string a = Device("a.s2p");
  const std::string b = Device("b.s2p");
  ASSERT_EQ(Series({b, "--comment", "lot 7", a}), 0) << err_.str();
  EXPECT_EQ(out_.str(), "Data derived by lioraira: lot 7\n"
                        "                  I/A        fT/Hz        fmax/Hz      MAG/dB       k       f(k>1)\n" +
                            b + kRow + a + kRow);
  EXPECT_EQ(err_.str(), "");
}

TEST_F(SeriesCommandTest, AppliesTheOptions) {
  const std::string a = Write("a.s2p", std::string("! Id=2m\n") + kPoint);
  const auto rowWith = [&](std::vector<std::string> args) {  // the table row of a under the options
    args.push_back(a);
    EXPECT_EQ(Series(args), 0) << err_.str();
    const std::size_t at = out_.str().rfind(a);
    return at == std::string::npos ? std::string() : out_.str().substr(at + a.size());
  };
  // The frequency column read in GHz puts the point at 1 THz, above fo, so only f(k>1) is set;
  // j = 1000 * 2 mA / 4 = 0.5 mA per square micrometre.
  EXPECT_EQ(rowWith({"--multiplier", "GHz", "--x-axis", "ic", "--density", "--area", "4"}),
            "     2.00m     0.000     0.000   0.000  0.0000     1.00T   500.00m\n");
  EXPECT_EQ(rowWith({"--fo", "900M"}), "     2.00m     0.000     0.000   0.000  0.0000     1.00G\n");
  EXPECT_EQ(rowWith({"--fmax-from-u", "--lgnd", "1n"}), "     2.00m     2.67G     3.50G   6.021  1.2500     1.00G\n");
  EXPECT_NE(rowWith({"--with-lgnd", "--lgnd", "1n"}), kRow);  // the inductance changes the row
  // With --touchstone a file without an option line takes --multiplier, and standard error says so.
  EXPECT_EQ(rowWith({"--touchstone", "--multiplier", "MHz"}), kRow);
  EXPECT_NE(err_.str().find("has no \"#\" option line"), std::string::npos);
}

// The single point gives no slope; |h21| and MAG stay above 1, so there is no crossing either.
TEST_F(SeriesCommandTest, ChecksFollowTheTableThatStaysAsItWas) {
  const std::string a = Device("a.s2p");
  ASSERT_EQ(Series({a}), 0);
  const std::string table = out_.str();  // as worked out by hand in the first test
  const std::string checks = a + " h21_slope=- gain_slope=- k=1.2500 fT_crossing=- fmax_crossing=- flags=none\n";
  ASSERT_EQ(Series({"--checks", a}), 0) << err_.str();
  EXPECT_EQ(out_.str(), table + checks);
  const std::string target = Path("result.spa");
  ASSERT_EQ(Series({"--checks", "--out", target, a}), 0) << err_.str();
  EXPECT_EQ(ReadFile(target), table);
  EXPECT_EQ(out_.str(), checks);
  ASSERT_EQ(Series({"--checks", "--fo", "900M", "--out", target, a}), 0);
  EXPECT_EQ(out_.str(), a + " no point at or below fo, nothing to check\n");
}

// The engine refuses the files beyond forty; the command names the first of them and goes on.
TEST_F(SeriesCommandTest, TakesTheFirstFortyFilesAndRefusesTheNext) {
  std::vector<std::string> files;
  for (int i = 1; i <= 42; ++i) files.push_back(Device("d" + std::to_string(i) + ".s2p"));
  ASSERT_EQ(Series(files), 0);
  EXPECT_EQ(err_.str(), "Maximum of 40 files reached! Perform calculation to get the results.\n");
  const std::string table = out_.str();
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 42);
}

TEST_F(SeriesCommandTest, AFailedRunLeavesTheOutputFileAsItWas) {
  const std::string a = Device("a.s2p");
  const std::string bad = Write("bad.s2p", "! Ic=1m\n1000 0.5 x 1 0 1 0 1 0\n");
  const std::string target = Write("result.spa", "earlier result\n");
  EXPECT_EQ(Series({"--out", target, a, bad}), 1);
  EXPECT_NE(err_.str().find("File " + bad + ", line 2"), std::string::npos) << err_.str();
  EXPECT_EQ(ReadFile(target), "earlier result\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 3);  // nothing beside it either

  EXPECT_EQ(Series({"--out", Path("no_such_folder/r.spa"), a}), 1);
  EXPECT_NE(err_.str().find("Cannot write"), std::string::npos) << err_.str();
  EXPECT_EQ(out_.str(), "");
}

TEST(Help, NamesEveryMode) {
  std::ostringstream out, err;
  ASSERT_EQ(RunHeadlessMode({"--help"}, out, err), 0);
  for (const char* text : {"--figures [--touchstone] FILE|FOLDER...", "--render VIEW --out PATH",
                           "--render ft-fmax|k-mag|stability-limit", "--series [options] FILE..."}) {
    EXPECT_NE(out.str().find(text), std::string::npos) << text;
  }
  EXPECT_EQ(RunHeadlessMode({"--no-such-mode"}, out, err), 2);
  EXPECT_NE(err.str().find("netrix: unknown option --no-such-mode.\nUsage:"), std::string::npos) << err.str();
  // The window and --render are for the program that links Qt.
  EXPECT_EQ(RunHeadlessMode({}, out, err), kNotHeadless);
  EXPECT_EQ(RunHeadlessMode({"amp.s2p"}, out, err), kNotHeadless);
  EXPECT_EQ(RunHeadlessMode({"--render", "smith"}, out, err), kNotHeadless);
}

}  // namespace
}  // namespace app
