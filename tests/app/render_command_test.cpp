#include <gtest/gtest.h>

#include <ostream>

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "command_test.h"

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

class RenderCommandTest : public CommandTest {
 protected:
  void SetUp() override {
    CommandTest::SetUp();
    input_ = Write("dut.s2p", Fixture());
  }
  std::string input_;
};

struct ViewFormat {
  const char* view;
  const char* extension;
};
void PrintTo(const ViewFormat& c, std::ostream* os) { *os << c.view << c.extension; }

class RenderEveryViewTest : public RenderCommandTest, public testing::WithParamInterface<ViewFormat> {};

TEST_P(RenderEveryViewTest, WritesAPictureOfTheAskedSize) {
  const std::string path = Path(std::string("out_") + GetParam().view + GetParam().extension);
  ASSERT_EQ(Run({"--render", GetParam().view, "--size", "500x320", "--out", path, input_}), 0) << err_.str();
  const std::string bytes = ReadFile(path);
  if (QString(GetParam().extension).toLower() == ".pdf") {
    EXPECT_TRUE(bytes.starts_with("%PDF-"));
    return;
  }
  const QImage image = QImage::fromData(QByteArray::fromStdString(bytes)).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(image.size(), QSize(500, 320));
  int reddish = 0;  // the first file's curves are red
  for (int y = 0; y < 320; ++y) {
    for (int x = 0; x < 500; ++x) {
      const QRgb p = image.pixel(x, y);
      reddish += qRed(p) - std::max(qGreen(p), qBlue(p)) > 60;  // loose enough for JPEG's smearing
    }
  }
  EXPECT_GT(reddish, 20);
}

INSTANTIATE_TEST_SUITE_P(
    All, RenderEveryViewTest,
    testing::Values(ViewFormat{"smith", ".gif"}, ViewFormat{"cartesian", ".bmp"}, ViewFormat{"polar", ".jpg"},
                    ViewFormat{"gain", ".PDF"}, ViewFormat{"impedance", ".png"}),
    [](const testing::TestParamInfo<ViewFormat>& info) {
      return std::string(info.param.view) + "_" + (info.param.extension + 1);
    });

// The curve table of a frequency view holds, point for point, the numbers of netrix --figures.
TEST_F(RenderCommandTest, StabilityCurvesAreTheFiguresColumns) {
  const std::string csv = Path("k.csv");
  ASSERT_EQ(Run({"--render", "stability", "--curves", "mu,k", "--xlog", "--data", csv, "--out", Path("k.png"), input_}),
            0)
      << err_.str();
  ASSERT_EQ(Run({"--figures", input_}), 0);
  std::istringstream figures(out_.str()), table(ReadFile(csv));
  std::string line, row;
  std::getline(figures, line);
  std::getline(table, row);
  EXPECT_EQ(row, "f_Hz,k (dut.s2p),mu (dut.s2p)");
  int rows = 0;
  for (; std::getline(figures, line) && std::getline(table, row); ++rows) {
    EXPECT_EQ(row, line.substr(0, line.find(',', line.find(',', line.find(',') + 1) + 1)));  // f_Hz,k,mu
  }
  EXPECT_EQ(rows, 19);
}

// The reflection window's |S22| against frequency, as its curve export writes it.
TEST_F(RenderCommandTest, ReflectionMagnitudeTable) {
  const std::string csv = Path("s22.csv");
  ASSERT_EQ(Run({"--render", "reflection", "--mode", "mag", "--param", "s22", "--data", csv, "--out", Path("s22.png"),
                 input_}),
            0)
      << err_.str();
  EXPECT_EQ(ReadFile(csv).rfind("f_Hz,|S22| (dut.s2p)\n100000000,0.8\n", 0), 0U) << ReadFile(csv);
}

struct ErrorCase {
  const char* name;
  const char* args;  // split at blanks; "@" stands for the fixture, "%" for a path in the folder
  const char* message;
};
void PrintTo(const ErrorCase& c, std::ostream* os) { *os << c.name; }

class CommandErrorTest : public RenderCommandTest, public testing::WithParamInterface<ErrorCase> {};

TEST_P(CommandErrorTest, ExitsWithOneAndSaysWhatToDo) {
  const std::string out = Path("error_output.png");
  std::vector<std::string> args;
  std::istringstream words(GetParam().args);
  for (std::string a; words >> a;) args.push_back(a == "@" ? input_ : a == "%" ? out : a);
  EXPECT_EQ(Run(args), 1);
  EXPECT_NE(err_.str().find(GetParam().message), std::string::npos) << err_.str();
  EXPECT_EQ(out_.str(), "");
  EXPECT_FALSE(std::filesystem::exists(out));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, CommandErrorTest,
    testing::Values(
        ErrorCase{"render_unknown_view", "--render spider --out % @", "unknown view \"spider\"; use smith, polar, cartesian, gain, stability, impedance, reflection or transmission"},
        ErrorCase{"render_unknown_extension", "--render smith --out x.tif @", "end the name in .png, .bmp, .jpg, .gif or .pdf"},
        ErrorCase{"render_missing_file", "--render smith --out % /nonexistent/amp.s2p", "File /nonexistent/amp.s2p is not present!"},
        ErrorCase{"render_no_file", "--render smith --out %", "name one to four S-parameter files"},
        ErrorCase{"render_five_files", "--render polar --out % @ @ @ @ @", "no more than 4 files"},
        ErrorCase{"render_no_out", "--render smith @", "--out PATH is missing"},
        ErrorCase{"render_bad_size", "--render smith --size 800 --out % @", "--size needs WIDTHxHEIGHT"},
        ErrorCase{"render_bad_q", "--render smith --q many --out % @", "--q needs a number"},
        ErrorCase{"render_seven_q", "--render smith --q 1 --q 2 --q 3 --q 4 --q 5 --q 6 --q 7 --out % @", "at most six --q arcs"},
        ErrorCase{"render_option_without_value", "--render smith @ --out", "--out needs a value"},
        ErrorCase{"render_unknown_option", "--render smith --colour --out % @", "unknown option \"--colour\""},
        ErrorCase{"render_gain_option_elsewhere", "--render polar --xlog --out % @", "belong to the gain, stability and impedance views"},
        ErrorCase{"render_mode_elsewhere", "--render stability --mode q --out % @", "--mode belongs to the reflection, transmission and impedance views"},
        ErrorCase{"render_smith_transmission", "--render transmission --mode smith --out % @", "has no Smith chart"},
        ErrorCase{"render_wrong_param", "--render reflection --param s21 --out % @", "--param takes s11, s22 or both"},
        ErrorCase{"render_circles_elsewhere", "--render polar --circles 2G --out % @", "belong to the reflection view"},
        ErrorCase{"render_bad_curves", "--render gain --curves mag,k --out % @", "--curves takes mag, u, mug and s21"},
        ErrorCase{"render_view_missing", "--render --out % @", "the view comes first"},
        // The views of a bias series take the options of --series.
        ErrorCase{"series_render_no_out", "--render ft-fmax @", "--out PATH is missing"},
        ErrorCase{"series_render_bad_series_option", "--render ft-fmax --fo high --out % @", "--fo needs a number"},
        ErrorCase{"series_unknown_option", "--series --fast a.s2p", "netrix --series: unknown option --fast"},
        ErrorCase{"series_zero_area", "--series --area 0 a.s2p", "--area is the transistor area"},
        ErrorCase{"series_lower_case_multiplier", "--series --multiplier mhz a.s2p", "--multiplier takes Hz, MHz or GHz"},
        ErrorCase{"figures_no_file", "--figures", "needs at least one file or folder name"}),
    [](const testing::TestParamInfo<ErrorCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace app
