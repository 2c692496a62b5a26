#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "command_test.h"

// The program run as a user runs it, with careless and hostile arguments: no input, data file or
// protected file is ever replaced, and every failure is told with its reason.
namespace app {
namespace {

namespace fs = std::filesystem;

// S11 = S22 = 0, S21 = 2, S12 = 0.25 at 1000 MHz.
constexpr const char* kDevice = "! Ic=2m\n1000 0 0 2 0 0.25 0 0 0\n";

struct RuleCase {
  const char* name;
  const char* command;  // run in the test's folder; {netrix} stands for the program
  int status;
  const char* told;     // a part of what standard error says
};

class CommandLineRulesTest : public CommandTest, public testing::WithParamInterface<RuleCase> {
 protected:
  void SetUp() override {
    CommandTest::SetUp();
    for (const char* name : {"a.s2p", "b.s2p", "meas.txt"}) Write(name, kDevice);
    Write("ro.spa", "kept\n");
    fs::permissions(Path("ro.spa"), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    Write("nan.s2p", "! Ic=1m\n1000 1e999 0 2 0 0.25 0 0 0\n");
    Write("cut.s2p", "! Ic=1m\n1000 0 0 2 0 0.25\n");
    Write("fall.s2p", "title\n2G 0 0 2 0 0.25 0 0 0\n3G 0 0 2 0 0.25 0 0 0\n1G 0 0 2 0 0.25 0 0 0\n");
  }

  // The exit status and standard error of the command.
  int Shell(std::string command) {
    command.replace(command.find("{netrix}"), 8, "'" + std::string(NETRIX_LAUNCHER) + "'");
    const int status = std::system(("cd '" + folder_.string() + "' && " + command + " 2> err.txt").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
};

TEST_P(CommandLineRulesTest, KeepsTheUsersFilesAndTellsWhy) {
  EXPECT_EQ(Shell(GetParam().command), GetParam().status);
  EXPECT_NE(ReadFile(Path("err.txt")).find(GetParam().told), std::string::npos) << ReadFile(Path("err.txt"));
  for (const char* name : {"a.s2p", "b.s2p", "meas.txt"}) EXPECT_EQ(ReadFile(Path(name)), kDevice) << name;
  EXPECT_EQ(ReadFile(Path("ro.spa")), "kept\n");
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CommandLineRulesTest,
    testing::Values(
        RuleCase{"OutLostItsValue", "{netrix} --series --out *.s2p", 1, "has the extension of an S-parameter file"},
        RuleCase{"DataIsAnInputByAnotherName", "{netrix} --render gain --out g.png --data ./meas.txt meas.txt", 1,
                 "is one of the input files"},
        RuleCase{"SeriesOverAProtectedFile", "{netrix} --series --out ro.spa a.s2p", 1, "ro.spa is write-protected"},
        RuleCase{"ClosedStandardOutput", "{netrix} --series a.s2p >&-", 1, "(Bad file descriptor)"},
        // A file size limit stops the writes part of the way, as a full disk does.
        RuleCase{"PictureOnAFullDisk", "trap '' XFSZ; ulimit -f 1; {netrix} --render smith --out big.bmp meas.txt", 1,
                 "\"big.bmp\": File too large"},
        RuleCase{"FiguresToAFullDisk", "{netrix} --figures meas.txt > /dev/full", 1,
                 "the figures could not be written to standard output (No space left on device)"},
        RuleCase{"NotFiniteSeriesRow", "{netrix} --series nan.s2p > out.spa", 0,
                 "not finite numbers (nan or inf) for fT"},
        RuleCase{"NotFiniteFiguresRow", "{netrix} --figures nan.s2p > out.csv", 0,
                 "1 row of nan.s2p holds values that are not finite numbers (nan or inf), the first at 1000 Hz"},
        RuleCase{"NotesGoToStandardError", "{netrix} --figures fall.s2p > out.csv", 0,
                 "stopped at line 4: the frequency does not rise; 1 line not read."},
        RuleCase{"SeriesFileTooLargeIsNotCut", "truncate -s 65M big.s2p && {netrix} --series big.s2p", 1,
                 "big.s2p cannot be read (larger than 64 MiB"},
        RuleCase{"SeriesRecordCutByTheEnd", "{netrix} --series cut.s2p", 1, "line 2: the file ends within this record"},
        RuleCase{"DeviceAsAFile", "{netrix} --figures /dev/zero", 1, "/dev/zero cannot be read (a device, not a regular"},
        RuleCase{"WindowWithoutDisplay", "env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb {netrix} a.s2p", 1,
                 "no display could be reached (DISPLAY is not set)"}),
    [](const testing::TestParamInfo<RuleCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace app
