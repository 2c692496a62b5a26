#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "app/command_modes.h"
#include "numerics/data_set.h"

namespace app {
namespace {

std::vector<double> Fields(const std::string& line) {
  std::vector<double> values;
  std::stringstream in(line);
  std::string field;
  while (std::getline(in, field, ',')) values.push_back(std::stod(field));
  return values;
}

class FiguresCommandTest : public testing::Test {
 protected:
  void SetUp() override { numerics::DataSets() = {}; }
  std::string WriteFixture(const std::string& content) {
    // One file per test: CTest runs the tests of this suite side by side.
    const std::string path =
        testing::TempDir() + "figures_fixture_" + testing::UnitTest::GetInstance()->current_test_info()->name() + ".s2p";
    std::ofstream(path, std::ios::binary) << content;
    return path;
  }
  int Run(const std::vector<std::string>& args) { return RunHeadlessMode(args, out_, err_); }
  std::ostringstream out_, err_;
};

TEST_F(FiguresCommandTest, PrintsOneLinePerPointOfAMatchedAttenuator) {
  // 10 dB matched attenuator: S21 = S12 = 10^-0.5, S11 = S22 = 0, at two frequencies.
  const std::string path = WriteFixture(
      "10 dB attenuator\n1G 0 0 0.316227766 0 0.316227766 0 0 0\n2G 0 0 0.316227766 0 0.316227766 0 0 0\n");
  ASSERT_EQ(Run({"--figures", path}), 0) << err_.str();
  std::stringstream lines(out_.str());
  std::string header, first, second, extra;
  std::getline(lines, header);
  std::getline(lines, first);
  std::getline(lines, second);
  EXPECT_FALSE(std::getline(lines, extra));
  EXPECT_EQ(header, "f_Hz,k,mu,mu_prime,stable,MAG_dB,MSG_or_MAG_dB,MUG_dB,U_dB,U_ratio_dB,S21sq_dB,h21_abs");
  const std::vector<double> v = Fields(first);
  ASSERT_EQ(v.size(), 12U);
  EXPECT_EQ(v[0], 1e9);
  EXPECT_NEAR(v[1], 1.01 / 0.2, 1e-8);  // k = (1 + |S21|^4) / (2 |S21|^2)
  EXPECT_NEAR(v[2], 10, 1e-7);          // mu = 1 / |S12 S21|
  EXPECT_EQ(v[4], 1);
  EXPECT_NEAR(v[5], -10, 1e-8);         // MAG is the loss itself
  EXPECT_NEAR(v[6], -10, 1e-8);
  EXPECT_NEAR(v[7], -10, 1e-8);         // MUG = |S21|^2 for matched ports
  EXPECT_NEAR(v[8], -10, 1e-8);         // reciprocal: U = MAG
  EXPECT_NEAR(v[10], -10, 1e-8);
  EXPECT_NEAR(v[11], 2 * 0.316227766 / 1.1, 1e-8);  // |h21| = 2 S21 / (1 + S21^2)
  EXPECT_EQ(Fields(second)[0], 2e9);
}

TEST_F(FiguresCommandTest, WritesNumbersWithTenSignificantDigits) {
  const std::string path = WriteFixture("t\n123456789.123 0.5 -30 3 120 0.05 40 0.4 -20\n");
  ASSERT_EQ(Run({"--figures", path}), 0);
  const std::string line = out_.str().substr(out_.str().find('\n') + 1);
  EXPECT_EQ(line.substr(0, line.find(',')), "123456789.1");
}

TEST_F(FiguresCommandTest, FailsWithTheReadersMessage) {
  EXPECT_EQ(Run({"--figures", "/nonexistent/amp.s2p"}), 1);
  EXPECT_EQ(err_.str(), "File /nonexistent/amp.s2p is not present!\n");
  EXPECT_TRUE(out_.str().empty());

  err_.str("");
  const std::string path = WriteFixture("t\n1G 0.5 abc 3 120 0.05 40 0.4 -20\n");
  EXPECT_EQ(Run({"--figures", path}), 1);
  EXPECT_NE(err_.str().find("line 2"), std::string::npos) << err_.str();

  EXPECT_EQ(Run({"--figures"}), 1);
  EXPECT_EQ(Run({"--figures", "a", "b"}), 1);
  EXPECT_EQ(Run({"--no-such-mode"}), -1);
  EXPECT_EQ(Run({"--help"}), 0);
  EXPECT_NE(out_.str().find("--figures FILE"), std::string::npos);
}

}  // namespace
}  // namespace app
