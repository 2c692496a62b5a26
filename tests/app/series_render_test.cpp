#include <gtest/gtest.h>

#include <QImage>
#include <string>
#include <vector>

#include "command_test.h"

namespace app {
namespace {

// One point at 1 GHz each, S11 = S22 = 0. First file, 1 mA: S21 = 2, S12 = 0.25, so by hand
// k = 1.25, |h21| = 2 |S21| / (1 + S12 S21) = 2.667 (fT 2.667 GHz), MAG = 4 (fmax 2 GHz, 6.02 dB).
// Second file, 2 mA: S21 = 4, S12 = 0.25, so k = 1, |h21| = 4 (fT 4 GHz), MAG = 16 (fmax 4 GHz).
constexpr const char* kFirst = "! Ic=1m\n# MHz S MA R 50\n1000 0 0 2 0 0.25 0 0 0\n";
constexpr const char* kSecond = "! Ic=2m\n# MHz S MA R 50\n1000 0 0 4 0 0.25 0 0 0\n";

// Pictures of 400 x 300 pixels have the frame columns 48 .. 366 and rows 27 .. 263.
const QRgb kGreenPixel = qRgb(0, 128, 0);

class SeriesRenderTest : public CommandTest {
 protected:
  void SetUp() override {
    CommandTest::SetUp();
    files_ = {Write("first.s2p", kFirst), Write("second.s2p", kSecond)};
  }
  // Renders the view at 400 x 300 with the extra options and returns the picture.
  QImage Render(const std::string& view, std::vector<std::string> options) {
    const std::string path = Path(view + ".png");
    std::vector<std::string> args = {"--render", view, "--size", "400x300", "--out", path};
    args.insert(args.end(), options.begin(), options.end());
    args.insert(args.end(), files_.begin(), files_.end());
    EXPECT_EQ(Run(args), 0) << err_.str();
    return QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_RGB32);
  }
  static bool GreenIn(const QImage& image, int column, int top, int bottom) {
    for (int row = top; row <= bottom; ++row) {
      if (image.pixel(column, row) == kGreenPixel) return true;
    }
    return false;
  }

  std::vector<std::string> files_;
};

// x 0 .. 3 mA, y 0 .. 5 GHz (4 GHz * 1.001 rounded up): 1 mA is column 154, 2 mA column 260;
// 2.667 GHz is row 263 - 236 * 2.667 / 5 = 137, 4 GHz row 74.
TEST_F(SeriesRenderTest, FtFmaxPlotsFtAgainstTheCurrent) {
  const QImage image = Render("ft-fmax", {});
  ASSERT_EQ(image.size(), QSize(400, 300));
  EXPECT_EQ(image.pixel(154, 137), kGreenPixel);
  EXPECT_EQ(image.pixel(260, 74), kGreenPixel);
  EXPECT_FALSE(GreenIn(image, 181, 120, 122));  // between the points: not joined
  // Column 181 lies on the line from (154, 137) to (260, 74), at row 121.
  EXPECT_TRUE(GreenIn(Render("ft-fmax", {"--connect"}), 181, 120, 122));
  // The series options reach the graph: j = 1000 I / 500 = 0.002 on an axis to 0.005, column 175.
  EXPECT_EQ(Render("ft-fmax", {"--density", "--area", "500"}).pixel(175, 137), kGreenPixel);
}

// Each view draws its own page. k-mag: 10 k is 12.5 and 10 on an axis to 20 (12.5 * 1.001
// rounded up), rows 115.5 and 145. stability-limit: the first file is stable at its only point,
// f(k>1) = 1 GHz on an axis to 2 GHz, row 145.
TEST_F(SeriesRenderTest, TheOtherViewsDrawTheirPages) {
  const QImage kMag = Render("k-mag", {});
  EXPECT_TRUE(GreenIn(kMag, 154, 115, 116));
  EXPECT_EQ(kMag.pixel(260, 145), kGreenPixel);
  EXPECT_EQ(Render("stability-limit", {}).pixel(154, 145), kGreenPixel);
}

}  // namespace
}  // namespace app
