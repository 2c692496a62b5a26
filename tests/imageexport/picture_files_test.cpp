#include "imageexport/picture_files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>

#include "images.h"
#include "imageexport/pdf_file.h"

namespace imageexport {
namespace {

// Named after the running test, so that tests running side by side never share a file.
std::string TempPath(const std::string& name) {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  QString prefix = QString("%1_%2_").arg(test->test_suite_name(), test->name());
  prefix.replace('/', '_');
  return QDir(QString::fromStdString(testing::TempDir())).filePath(prefix + QString::fromStdString(name)).toStdString();
}

struct FormatCase {
  const char* file;
  ExportResult (*save)(const QImage&, const std::string&);
  const char* format;  // what Qt's reader must recognise
  double meanError;    // largest mean channel error read back; 0 for a lossless format
};

class PictureFileTest : public testing::TestWithParam<FormatCase> {};

// Written over a larger, richer picture, which must leave no trace.
TEST_P(PictureFileTest, WritesAFileOfItsFormatOverAnOlderOne) {
  const FormatCase& c = GetParam();
  const std::string path = TempPath(c.file);
  ASSERT_TRUE(c.save(test::Noise(400, 300, 256, 4), path).Ok());
  const QImage source = test::DiagramLike(320, 200);
  const ExportResult result = c.save(source, path);
  ASSERT_TRUE(result.Ok()) << result.error;
  QImageReader reader(QString::fromStdString(path));
  EXPECT_EQ(reader.format(), c.format);
  const QImage back = reader.read().convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(back.size(), source.size());
  EXPECT_LE(test::MeanChannelError(back, source), c.meanError);
}

TEST_P(PictureFileTest, AMissingFolderEndsInAMessageAndNoFile) {
  const std::string path = TempPath("no-such-folder/" + std::string(GetParam().file));
  const ExportResult result = GetParam().save(test::DiagramLike(32, 32), path);
  EXPECT_FALSE(result.Ok());
  EXPECT_NE(result.error.find("Cannot write the picture \"" + path + "\""), std::string::npos) << result.error;
  EXPECT_NE(result.error.find("Check that the folder exists"), std::string::npos);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(path)));
}

INSTANTIATE_TEST_SUITE_P(Formats, PictureFileTest,
                         testing::Values(FormatCase{"p.bmp", SaveBmp, "bmp", 0}, FormatCase{"p.png", SavePng, "png", 0},
                                         FormatCase{"p.jpg", SaveJpeg, "jpeg", 3},
                                         FormatCase{"p.gif", SaveGif, "gif", 0}),
                         [](const testing::TestParamInfo<FormatCase>& info) { return std::string(info.param.format); });

// The diagram above has few colours, mostly grey; a smooth gradient shows whether the coder keeps
// the colour channels apart.
TEST(Jpeg, SmoothPicturesKeepTheirColours) {
  const std::string path = TempPath("gradient.jpg");
  const QImage source = test::Gradient();
  ASSERT_TRUE(SaveJpeg(source, path).Ok());
  const QImage back = QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(back.size(), source.size());
  EXPECT_LT(test::MeanChannelError(back, source), 2.0);
}

TEST(Pdf, OnePageOfThePicturesSizeInVectors) {
  const std::string path = TempPath("diagram.pdf");
  QSize device;
  const ExportResult result = SavePdf(path, 768, 576, [&](QPainter& p) {
    device = QSize(p.device()->width(), p.device()->height());
    p.drawLine(10, 10, 700, 500);
    p.drawText(100, 100, "f in Hz");
  });
  ASSERT_TRUE(result.Ok()) << result.error;
  EXPECT_EQ(device, QSize(768, 576));  // the drawing sees the picture's pixels
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray pdf = file.readAll();
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.contains("/MediaBox [0 0 576.000000 432.000000]"));  // 768 x 576 pixels at 96 per inch, in points
  EXPECT_FALSE(pdf.contains("/Subtype /Image"));
}

TEST(Pdf, AMissingFolderEndsInAMessage) {
  const std::string path = TempPath("no-such-folder/d.pdf");
  const ExportResult result = SavePdf(path, 100, 100, [](QPainter&) {});
  EXPECT_FALSE(result.Ok());
  EXPECT_NE(result.error.find(path), std::string::npos);
}

}  // namespace
}  // namespace imageexport
