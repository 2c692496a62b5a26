#include "imageexport/jpeg_encoder.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include "images.h"

namespace imageexport {
namespace {

QImage Decode(const std::vector<unsigned char>& bytes) {
  return QImage::fromData(QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())),
                          "JPEG");
}

TEST(Jpeg, ADiagramComesBackCloseToTheSource) {
  const QImage source = test::DiagramLike(768, 576);
  const JpegOutcome jpeg = EncodeJpeg(source);
  ASSERT_TRUE(jpeg.error.empty()) << jpeg.error;
  ASSERT_GE(jpeg.bytes.size(), 4U);
  EXPECT_EQ(jpeg.bytes[0], 0xFF);
  EXPECT_EQ(jpeg.bytes[1], 0xD8);
  const QImage decoded = Decode(jpeg.bytes);
  ASSERT_EQ(decoded.size(), source.size());
  EXPECT_LT(test::MeanChannelError(decoded, source), 3.0);
}

TEST(Jpeg, SmoothPicturesKeepTheirColours) {
  const QImage source = test::Gradient();
  const QImage decoded = Decode(EncodeJpeg(source).bytes);
  ASSERT_EQ(decoded.size(), source.size());
  EXPECT_LT(test::MeanChannelError(decoded, source), 2.0);
  EXPECT_LE(test::LargestChannelError(decoded.pixel(32, 32), source.pixel(32, 32)), 8);
}

}  // namespace
}  // namespace imageexport
