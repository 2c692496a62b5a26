#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "app/figures_rows.h"
#include "command_test.h"

namespace app {
namespace {

std::vector<double> Fields(const std::string& line) {
  std::vector<double> values;
  std::stringstream in(line);
  std::string field;
  while (std::getline(in, field, ',')) values.push_back(std::stod(field));
  return values;
}

using FiguresCommandTest = CommandTest;

TEST_F(FiguresCommandTest, PrintsOneLinePerPointOfAMatchedAttenuator) {
  // 10 dB matched attenuator: S21 = S12 = 10^-0.5, S11 = S22 = 0, at two frequencies.
  const std::string path = Write("amp.s2p", "10 dB attenuator\n1G 0 0 0.316227766 0 0.316227766 0 0 0\n"
                                            "2G 0 0 0.316227766 0 0.316227766 0 0 0\n");
  ASSERT_EQ(Run({"--figures", path}), 0) << err_.str();
  std::stringstream lines(out_.str());
  std::string header, first, second, extra;
  std::getline(lines, header);
  std::getline(lines, first);
  std::getline(lines, second);
  EXPECT_FALSE(std::getline(lines, extra));
  EXPECT_EQ(header, "f_Hz,k,mu,mu_prime,stable,MAG_dB,MSG_or_MAG_dB,MUG_dB,U_dB,U_ratio_dB,S21sq_dB,h21_abs");
  // The figures themselves are the engine's; here each lands in its column.
  const std::vector<double> v = Fields(first);
  ASSERT_EQ(v.size(), 12U);
  EXPECT_EQ(v[0], 1e9);
  EXPECT_NEAR(v[1], 1.01 / 0.2, 1e-8);  // k = (1 + |S21|^4) / (2 |S21|^2)
  EXPECT_NEAR(v[2], 10, 1e-7);          // mu = 1 / |S12 S21|
  EXPECT_EQ(v[4], 1);
  EXPECT_NEAR(v[5], -10, 1e-8);         // MAG is the loss itself
  EXPECT_NEAR(v[10], -10, 1e-8);        // |S21|^2
  EXPECT_NEAR(v[11], 2 * 0.316227766 / 1.1, 1e-8);  // |h21| = 2 S21 / (1 + S21^2)
  EXPECT_EQ(Fields(second)[0], 2e9);
}

TEST(FiguresNumbers, AreWrittenAsPrintfWritesThemWithTenDigits) {
  for (const double v : {-1e301, -0.0, 0.1, 9.9999999995, 99999.999995, 1e-5, 1.5e-310, static_cast<double>(INFINITY),
                         -static_cast<double>(NAN)}) {
    std::string text;
    AppendNumber(text, v);
    char expected[40];
    std::snprintf(expected, sizeof expected, "%.10g", v);
    EXPECT_EQ(text, expected);
  }
}

TEST_F(FiguresCommandTest, WritesABatchInTheGivenOrderAndReportsWhatFails) {
  const std::string row = "0 0 0.316227766 0 0.316227766 0 0 0\n";
  const std::string a = Write("a.s2p", "first\n1G " + row + "2G " + row);
  const std::string quoted = Write("b,\"c\".s2p", "second\n3G " + row);
  std::filesystem::create_directories(Path("folder/deeper"));
  const std::string z = Write("folder/z.S2P", "third\n4G " + row);
  const std::string y = Write("folder/y.spm", "fourth\n5G " + row);
  Write("folder/notes.txt", "not data\n");
  Write("folder/deeper/x.s2p", "not taken\n6G " + row);
  std::filesystem::create_directories(Path("empty"));
  const std::string missing = Path("missing.s2p");

  ASSERT_EQ(Run({"--figures", a}), 0) << err_.str();
  const std::string single = out_.str();
  EXPECT_EQ(Run({"--figures", Path("folder"), missing, a, Path("empty"), quoted}), 1);
  EXPECT_EQ(err_.str(), "File " + missing + " is not present!\nnetrix --figures: the folder " + Path("empty") +
                            " holds no .s2p or .spm file. Name S-parameter files or folders holding them.\n");
  std::stringstream lines(out_.str());
  std::vector<std::string> files;
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "file," + single.substr(0, single.find('\n')));
  std::string rowsOfA;
  while (std::getline(lines, line)) {
    const std::size_t fieldEnd = line.front() == '"' ? line.find("\",") + 1 : line.find(',');
    files.push_back(line.substr(0, fieldEnd));
    if (files.back() == a) rowsOfA += line.substr(fieldEnd + 1) + "\n";
  }
  // A folder gives its data files in name order; a path with a comma or a quote is quoted.
  EXPECT_EQ(files, (std::vector<std::string>{y, z, a, a, "\"" + Path("b,\"\"c\"\".s2p") + "\""}));
  EXPECT_EQ(rowsOfA, single.substr(single.find('\n') + 1));
}

// Without --touchstone the file reads as it always has, and standard error says why it should not.
TEST_F(FiguresCommandTest, TouchstoneOptionAppliesTheOptionLine) {
  const std::string path = Write("att.s2p", "! attenuator\n# MHz S MA R 50\n100 0 0 0.316227766 0 0.316227766 0 0 0\n");
  ASSERT_EQ(Run({"--figures", path, "--touchstone"}), 0) << err_.str();
  EXPECT_EQ(Fields(out_.str().substr(out_.str().find('\n') + 1))[0], 1e8);  // the option line's MHz
  EXPECT_EQ(err_.str(), "");
  ASSERT_EQ(Run({"--figures", path}), 0);
  EXPECT_NE(err_.str().find("File " + path + " looks like a Touchstone file"), std::string::npos) << err_.str();
}

}  // namespace
}  // namespace app
