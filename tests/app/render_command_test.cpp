#include <gtest/gtest.h>

#include <ostream>

#include <QFile>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "app/command_modes.h"

namespace app {
namespace {

// S11 on the circle |r| = 0.5 from 0 to -180 degrees, S22 = 0.8, S21 = 4 and S12 = 0.1 turning.
std::string Fixture() {
  std::ostringstream text;
  text << "render fixture\n";
  for (int i = 0; i <= 18; ++i) {
    text << (i + 1) * 100 << "M 0.5 " << -10 * i << " 4 " << 180 - 10 * i << " 0.1 " << 80 - 5 * i << " 0.8 "
         << -5 * i << "\n";
  }
  return text.str();
}

class RenderCommandTest : public testing::Test {
 protected:
  void SetUp() override {
    // A folder of the test's own: tests may run side by side.
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string("render_") + test->test_suite_name() + "_" + test->name();
    std::replace(name.begin(), name.end(), '/', '_');
    folder_ = std::filesystem::path(testing::TempDir()) / name;
    std::filesystem::create_directories(folder_);
    input_ = (folder_ / "dut.s2p").string();
    std::ofstream(input_, std::ios::binary) << Fixture();
  }
  std::string Out(const std::string& name) const { return (folder_ / name).string(); }
  int Run(const std::vector<std::string>& args) {
    err_.str("");
    return RunHeadlessMode(args, out_, err_);
  }
  std::filesystem::path folder_;
  std::string input_;
  std::ostringstream out_, err_;
};

struct ViewFormat {
  const char* view;
  const char* extension;
};
void PrintTo(const ViewFormat& c, std::ostream* os) { *os << c.view << c.extension; }

class RenderEveryViewTest : public RenderCommandTest, public testing::WithParamInterface<ViewFormat> {};

TEST_P(RenderEveryViewTest, WritesAPictureOfTheAskedSize) {
  const std::string path = Out(std::string("out_") + GetParam().view + GetParam().extension);
  std::filesystem::remove(path);
  ASSERT_EQ(Run({"--render", GetParam().view, "--size", "500x320", "--out", path, input_}), 0) << err_.str();
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  if (QString(GetParam().extension).toLower() == ".pdf") {
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    return;
  }
  const QImage image = QImage::fromData(bytes).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(image.size(), QSize(500, 320));
  int inked = 0, reddish = 0;  // the first file's curves are red
  for (int y = 0; y < 320; ++y) {
    for (int x = 0; x < 500; ++x) {
      const QRgb p = image.pixel(x, y);
      inked += p != qRgb(255, 255, 255);
      reddish += qRed(p) - std::max(qGreen(p), qBlue(p)) > 60;  // loose enough for JPEG's smearing
    }
  }
  EXPECT_GT(inked, 2000);
  EXPECT_GT(reddish, 20);
}

INSTANTIATE_TEST_SUITE_P(
    All, RenderEveryViewTest,
    testing::Values(ViewFormat{"smith", ".png"}, ViewFormat{"smith", ".gif"}, ViewFormat{"smith", ".pdf"},
                    ViewFormat{"polar", ".bmp"}, ViewFormat{"polar", ".jpg"}, ViewFormat{"cartesian", ".png"},
                    ViewFormat{"cartesian", ".PDF"}),
    [](const testing::TestParamInfo<ViewFormat>& info) {
      return std::string(info.param.view) + "_" + (info.param.extension + 1);
    });

TEST_F(RenderCommandTest, SmithCurveAndGridAgreeWithTheReflectionPlane) {
  const std::string path = Out("smith.png");
  ASSERT_EQ(Run({"--render", "smith", "--q", "1", "--out", path, input_}), 0) << err_.str();
  const QImage image(QString::fromStdString(path));
  ASSERT_EQ(image.size(), QSize(768, 576));
  // Frame 66 .. 716 by 41 .. 525; 484 rows hold -1 .. 1, so one unit is 242 pixels and the
  // centre is column 391, row 283.
  const auto at = [&](double re, double im) {
    return image.pixel(static_cast<int>(std::lround(391 + 242 * re)), static_cast<int>(std::lround(283 - 242 * im)));
  };
  EXPECT_EQ(at(0, -0.5), qRgb(255, 0, 0));  // S11 of the fixture at -90 degrees, first file in red
  EXPECT_EQ(at(0, 1), qRgb(128, 128, 128));  // rim
  EXPECT_EQ(at(0, 0.5 - 0.001), qRgb(255, 255, 255));
}

TEST_F(RenderCommandTest, CartesianDrawsTheGainInDecibels) {
  const std::string path = Out("gain.png");
  ASSERT_EQ(Run({"--render", "cartesian", "--no-spline", "--out", path, input_}), 0) << err_.str();
  const QImage image(QString::fromStdString(path));
  // |S21| = 4 is 12.04 dB; autoscaled to 0 .. 20 on rows 525 .. 41; 100 MHz to 1.9 GHz on a
  // log axis from 100 MHz to 10 GHz over columns 66 .. 716, so 1 GHz is column 391.
  const int row = static_cast<int>(std::lround(525 - 484 * 20 * std::log10(4.0) / 20));
  bool red = false;
  for (int dy = -1; dy <= 1; ++dy) red = red || image.pixel(391, row + dy) == qRgb(255, 0, 0);
  EXPECT_TRUE(red);
}

struct ErrorCase {
  const char* name;
  std::vector<std::string> args;  // "@" stands for the fixture, "%" for a path in the folder
  const char* message;
};
void PrintTo(const ErrorCase& c, std::ostream* os) { *os << c.name; }

class RenderErrorTest : public RenderCommandTest, public testing::WithParamInterface<ErrorCase> {};

TEST_P(RenderErrorTest, ExitsWithOneAndSaysWhatToDo) {
  const std::string out = Out("error_output.png");
  std::filesystem::remove(out);
  std::vector<std::string> args = {"--render"};
  for (const std::string& a : GetParam().args) args.push_back(a == "@" ? input_ : a == "%" ? out : a);
  EXPECT_EQ(Run(args), 1);
  EXPECT_NE(err_.str().find(GetParam().message), std::string::npos) << err_.str();
  EXPECT_FALSE(std::filesystem::exists(out));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RenderErrorTest,
    testing::Values(
        ErrorCase{"unknown_view", {"spider", "--out", "%", "@"}, "unknown view \"spider\"; use smith, polar or cartesian"},
        ErrorCase{"unknown_extension", {"smith", "--out", "x.tif", "@"}, "end the name in .png, .bmp, .jpg, .gif or .pdf"},
        ErrorCase{"missing_file", {"smith", "--out", "%", "/nonexistent/amp.s2p"}, "File /nonexistent/amp.s2p is not present!"},
        ErrorCase{"no_file", {"smith", "--out", "%"}, "name one to four S-parameter files"},
        ErrorCase{"five_files", {"polar", "--out", "%", "@", "@", "@", "@", "@"}, "no more than 4 files"},
        ErrorCase{"no_out", {"smith", "@"}, "--out PATH is missing"},
        ErrorCase{"bad_size", {"smith", "--size", "800", "--out", "%", "@"}, "--size needs WIDTHxHEIGHT"},
        ErrorCase{"tiny_size", {"smith", "--size", "10x10", "--out", "%", "@"}, "from 64 to 10000"},
        ErrorCase{"bad_chart", {"smith", "--chart", "x", "--out", "%", "@"}, "--chart takes z, y or zy"},
        ErrorCase{"bad_q", {"smith", "--q", "many", "--out", "%", "@"}, "--q needs a number"},
        ErrorCase{"seven_q",
                  {"smith", "--q", "1", "--q", "2", "--q", "3", "--q", "4", "--q", "5", "--q", "6", "--q", "7", "--out", "%", "@"},
                  "at most six --q arcs"},
        ErrorCase{"option_without_value", {"smith", "@", "--out"}, "--out needs a value"},
        ErrorCase{"unknown_option", {"smith", "--colour", "--out", "%", "@"}, "unknown option \"--colour\""},
        ErrorCase{"view_missing", {"--out", "%", "@"}, "the view comes first"}),
    [](const testing::TestParamInfo<ErrorCase>& info) { return std::string(info.param.name); });

TEST_F(RenderCommandTest, AnUnwritableFolderIsReported) {
  EXPECT_EQ(Run({"--render", "smith", "--out", Out("missing/smith.png"), input_}), 1);
  EXPECT_NE(err_.str().find("Cannot write the picture"), std::string::npos) << err_.str();
}

TEST(RenderUsage, HelpNamesTheRenderMode) {
  EXPECT_NE(UsageText().find("netrix --render VIEW --out PATH"), std::string::npos);
}

}  // namespace
}  // namespace app
