#include "imageexport/gif_encoder.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "images.h"
#include "imageexport/colour_table.h"

namespace imageexport {
namespace {

TEST(ColourTable, KeepsFewColoursExactlyInOrderOfAppearance) {
  const std::vector<std::uint32_t> pixels = {0xFFFFFFFF, 0xFFFF0000, 0x00FFFFFF, 0xFF0000FF, 0xFFFF0000};
  const IndexedPicture p = ReduceColours(pixels);
  EXPECT_EQ(p.palette, (std::vector<std::uint32_t>{0xFFFFFF, 0xFF0000, 0x0000FF}));
  EXPECT_EQ(p.indices, (std::vector<std::uint8_t>{0, 1, 0, 2, 1}));  // alpha plays no part
}

std::vector<std::uint8_t> Encode(const QImage& image) {
  const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
  return EncodeGif(rgb.width(), rgb.height(),
                   std::span(reinterpret_cast<const std::uint32_t*>(rgb.constBits()),
                             static_cast<std::size_t>(rgb.width() * rgb.height())));
}

QImage Decode(const std::vector<std::uint8_t>& bytes) {
  return QImage::fromData(QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())),
                          "GIF")
      .convertToFormat(QImage::Format_RGB32);
}

// One pixel; all 256 colours at random, with clear codes; 17 colours, so codes start at 5 bits.
TEST(Gif, QtReadsBackEveryPixel) {
  QImage onePixel(1, 1, QImage::Format_RGB32);
  onePixel.fill(QColor(0x12, 0x34, 0x56));
  for (const QImage& source : {onePixel, test::Noise(300, 200, 256, 2), test::Noise(257, 3, 17, 3)}) {
    EXPECT_EQ(Decode(Encode(source)), source) << source.width();
  }
}

TEST(Gif, FileLayoutIsGif89aWithTheSizeLittleEndian) {
  const std::vector<std::uint8_t> bytes = Encode(test::DiagramLike(300, 258));
  ASSERT_GT(bytes.size(), 13U);
  EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 6), "GIF89a");
  EXPECT_EQ(bytes[6] | bytes[7] << 8, 300);
  EXPECT_EQ(bytes[8] | bytes[9] << 8, 258);
  EXPECT_EQ(bytes.back(), 0x3B);
}

// More than 256 colours go through the colour reduction; a GIF cannot hold more than 256, so
// what is checked is how near the reduced colours stay.
TEST(Gif, RicherPicturesComeBackInAtMost256NearColours) {
  const QImage source = test::Gradient();
  const QImage decoded = Decode(Encode(source));
  ASSERT_EQ(decoded.size(), source.size());
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) EXPECT_LE(test::LargestChannelError(decoded.pixel(x, y), source.pixel(x, y)), 8);
  }
}

}  // namespace
}  // namespace imageexport
