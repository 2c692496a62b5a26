#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "app/command_modes.h"
#include "app/render_command.h"

namespace app {

// A folder of the test's own, since CTest runs the tests side by side, and the two streams of
// the last headless run.
class CommandTest : public testing::Test {
 protected:
  void SetUp() override {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string("app_") + test->test_suite_name() + "_" + test->name();
    std::replace(name.begin(), name.end(), '/', '_');
    folder_ = std::filesystem::path(testing::TempDir()) / name;
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  std::string Write(const std::string& name, const std::string& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
  }
  static std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  int Run(const std::vector<std::string>& args) {
    out_.str("");
    err_.str("");
    // netrix hands --render over to the program that links Qt, which runs it so.
    if (!args.empty() && args.front() == kRenderOption) {
      return RunRenderCommand({args.begin() + 1, args.end()}, out_, err_);
    }
    return RunHeadlessMode(args, out_, err_);
  }

  std::filesystem::path folder_;
  std::ostringstream out_, err_;
};

}  // namespace app
