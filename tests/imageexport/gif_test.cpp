#include "imageexport/gif_encoder.h"

#include <gtest/gtest.h>

#include <ostream>

#include <QByteArray>
#include <set>
#include <span>
#include <string>

#include "images.h"

namespace imageexport {
namespace {

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

void ExpectSamePixels(const QImage& decoded, const QImage& source) {
  ASSERT_EQ(decoded.size(), source.size());
  const QImage expected = source.convertToFormat(QImage::Format_RGB32);
  int differing = 0;
  for (int y = 0; y < expected.height(); ++y) {
    for (int x = 0; x < expected.width(); ++x) differing += (decoded.pixel(x, y) & 0xFFFFFF) != (expected.pixel(x, y) & 0xFFFFFF);
  }
  EXPECT_EQ(differing, 0);
}

struct GifCase {
  const char* name;
  QImage (*make)();
};
void PrintTo(const GifCase& c, std::ostream* os) { *os << c.name; }

class GifRoundTripTest : public testing::TestWithParam<GifCase> {};

TEST_P(GifRoundTripTest, QtReadsBackEveryPixel) {
  const QImage source = GetParam().make();
  ExpectSamePixels(Decode(Encode(source)), source);
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, GifRoundTripTest,
    testing::Values(GifCase{"diagram", [] { return test::DiagramLike(768, 576); }},
                    GifCase{"one pixel",
                            [] {
                              QImage i(1, 1, QImage::Format_RGB32);
                              i.fill(QColor(0x12, 0x34, 0x56));
                              return i;
                            }},
                    GifCase{"two colours",
                            [] {
                              QImage i(17, 13, QImage::Format_RGB32);
                              for (int y = 0; y < 13; ++y)
                                for (int x = 0; x < 17; ++x) i.setPixel(x, y, (x + y) % 2 ? 0xFF000000 : 0xFFFFFFFF);
                              return i;
                            }},
                    GifCase{"three colours", [] { return test::Noise(40, 30, 3, 1); }},
                    GifCase{"all 256, with clear codes", [] { return test::Noise(300, 200, 256, 2); }},
                    GifCase{"17 colours, code size 5", [] { return test::Noise(257, 3, 17, 3); }}),
    [](const testing::TestParamInfo<GifCase>& info) {
      std::string name = info.param.name;
      for (char& c : name) c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
      return name;
    });

TEST(Gif, FileLayoutIsGif89aWithTheSizeLittleEndian) {
  const std::vector<std::uint8_t> bytes = Encode(test::DiagramLike(300, 258));
  ASSERT_GT(bytes.size(), 13U);
  EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 6), "GIF89a");
  EXPECT_EQ(bytes[6] | bytes[7] << 8, 300);
  EXPECT_EQ(bytes[8] | bytes[9] << 8, 258);
  EXPECT_EQ(bytes.back(), 0x3B);
}

TEST(Gif, RicherPicturesComeBackInAtMost256NearColours) {
  const QImage source = test::Gradient();
  const QImage decoded = Decode(Encode(source));
  ASSERT_EQ(decoded.size(), source.size());
  std::set<QRgb> colours;
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) {
      colours.insert(decoded.pixel(x, y));
      EXPECT_LE(test::LargestChannelError(decoded.pixel(x, y), source.pixel(x, y)), 8);
    }
  }
  EXPECT_LE(colours.size(), 256U);
}

}  // namespace
}  // namespace imageexport
