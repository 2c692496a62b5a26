#include "diagram/canvas.h"

#include <gtest/gtest.h>

#include <QFontInfo>

#include "diagram/fonts.h"
#include "picture.h"

namespace diagram {
namespace {

using test::ColourAt;
using test::CountNotWhite;
using test::Picture;

TEST(Canvas, ColoursAreBlueGreenRedFromTheHighByteDown) {
  Picture p(20, 20);
  p.canvas().SetBrushColour(255);
  p.canvas().FillRect(0, 0, 10, 10);
  p.canvas().SetBrushColour(32768);
  p.canvas().FillRect(10, 0, 20, 10);
  const QImage& image = p.Finish();
  EXPECT_EQ(image.pixel(5, 5), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(15, 5), qRgb(0, 128, 0));
  EXPECT_EQ(image.pixel(5, 15), qRgb(255, 255, 255));  // right and bottom edges excluded
}

TEST(Canvas, TheHistoricSansSerifIsSubstituted) {
  InstallFontSubstitutions();
  const QFontInfo info(MakeQFont(DiagramFont{}));
  EXPECT_EQ(info.family(), kSubstituteFontName);
}

TEST(Canvas, TextStandsBelowAndRightOfItsCorner) {
  Picture p(100, 60);
  p.canvas().TextOut(20, 20, "Hg");
  const int width = p.canvas().TextWidth("Hg"), height = p.canvas().TextHeight("Hg");
  const QImage& image = p.Finish();
  EXPECT_EQ(CountNotWhite(image, QRect(0, 0, 100, 20)), 0);
  EXPECT_EQ(CountNotWhite(image, QRect(0, 0, 20, 60)), 0);
  EXPECT_GT(CountNotWhite(image, QRect(20, 20, width, height)), 20);
}

TEST(Canvas, ARotatedFontWritesUpwards) {
  Picture p(120, 120);
  DiagramFont rotated;
  rotated.orientation = 900;
  p.canvas().SetFont(rotated);
  p.canvas().TextOut(60, 110, "Gain in dB");
  const QImage& image = p.Finish();
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (ColourAt(image, x, y) != kWhite) inked |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_GT(inked.height(), 3 * inked.width());
  EXPECT_LE(inked.bottom(), 110);
  EXPECT_GE(inked.left(), 60);
}

}  // namespace
}  // namespace diagram
