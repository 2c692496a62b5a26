#include "imageexport/jpeg_encoder.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>

#include "images.h"
#include "imageexport/picture_files.h"

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

TEST(Jpeg, SaveJpegWritesTheEncodedBytes) {
  const std::string path = QDir(QString::fromStdString(testing::TempDir())).filePath("jpeg_test_diagram.jpg").toStdString();
  const QImage source = test::DiagramLike(200, 100);
  ASSERT_TRUE(SaveJpeg(source, path).Ok());
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray written = file.readAll();
  const std::vector<unsigned char> expected = EncodeJpeg(source).bytes;
  EXPECT_EQ(written, QByteArray(reinterpret_cast<const char*>(expected.data()), static_cast<qsizetype>(expected.size())));
}

}  // namespace
}  // namespace imageexport
