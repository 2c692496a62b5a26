#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "command_test.h"

// The command users type, run as a process: it loads no GUI library, runs the headless modes
// itself and hands --render over to the program that links Qt.
namespace app {
namespace {

using LauncherTest = CommandTest;

std::string Quoted(const std::string& path) { return "'" + path + "'"; }

int Shell(const std::string& command) { return std::system(command.c_str()); }

TEST_F(LauncherTest, LoadsNoQtAndHandsTheDrawingOver) {
  const std::string libraries = Path("libraries.txt");
  Shell("ldd " + Quoted(NETRIX_LAUNCHER) + " > " + Quoted(libraries) + " 2>&1");  // fails on a static program
  EXPECT_EQ(ReadFile(libraries).find("libQt"), std::string::npos) << ReadFile(libraries);

  const std::string input = Write("dut.s2p", "dut\n1G 0.5 -40 4 120 0.1 60 0.8 -20\n2G 0.5 -80 3 100 0.1 50 0.8 -40\n");
  const std::string output = Path("figures.csv"), messages = Path("messages.txt"), picture = Path("smith.png");
  ASSERT_EQ(Shell(Quoted(NETRIX_LAUNCHER) + " --figures " + Quoted(input) + " > " + Quoted(output) + " 2> " +
                  Quoted(messages)), 0);
  ASSERT_EQ(Run({"--figures", input}), 0);
  EXPECT_EQ(ReadFile(output), out_.str());
  EXPECT_EQ(ReadFile(messages), "");
  // Batch jobs often run without a runtime folder named; nothing may reach stderr all the same.
  ASSERT_EQ(Shell("env -u XDG_RUNTIME_DIR " + Quoted(NETRIX_LAUNCHER) + " --render smith --out " + Quoted(picture) +
                  " " + Quoted(input) + " 2> " + Quoted(messages)), 0);
  EXPECT_EQ(ReadFile(messages), "");
  EXPECT_GT(std::filesystem::file_size(picture), 0U);
}

}  // namespace
}  // namespace app
