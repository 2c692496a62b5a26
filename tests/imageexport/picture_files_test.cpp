#include "imageexport/picture_files.h"

#include <gtest/gtest.h>

#include <ostream>

#include <QDir>
#include <QFile>
#include <QImageReader>

#include "images.h"

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
  bool exact;
};
void PrintTo(const FormatCase& c, std::ostream* os) { *os << c.format; }

class PictureFileTest : public testing::TestWithParam<FormatCase> {};

TEST_P(PictureFileTest, WritesAFileOfItsFormat) {
  const FormatCase& c = GetParam();
  const std::string path = TempPath(c.file);
  const QImage source = test::DiagramLike(320, 200);
  const ExportResult result = c.save(source, path);
  ASSERT_TRUE(result.Ok()) << result.error;
  QImageReader reader(QString::fromStdString(path));
  EXPECT_EQ(reader.format(), c.format);
  const QImage back = reader.read().convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(back.size(), source.size());
  if (c.exact) {
    EXPECT_EQ(back, source);
  }
}

TEST_P(PictureFileTest, AMissingFolderEndsInAMessageAndNoFile) {
  const std::string path = TempPath("no-such-folder/" + std::string(GetParam().file));
  const ExportResult result = GetParam().save(test::DiagramLike(32, 32), path);
  EXPECT_FALSE(result.Ok());
  EXPECT_NE(result.error.find("Cannot write the picture \"" + path + "\""), std::string::npos) << result.error;
  EXPECT_NE(result.error.find("Check that the folder exists"), std::string::npos);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(path)));
}

TEST_P(PictureFileTest, ReplacesAnOlderFileCompletely) {
  const std::string path = TempPath(GetParam().file);
  ASSERT_TRUE(GetParam().save(test::Noise(300, 300, 256, 4), path).Ok());
  ASSERT_TRUE(GetParam().save(test::DiagramLike(40, 30), path).Ok());
  EXPECT_EQ(QImage(QString::fromStdString(path)).size(), QSize(40, 30));
}

INSTANTIATE_TEST_SUITE_P(Formats, PictureFileTest,
                         testing::Values(FormatCase{"p.bmp", SaveBmp, "bmp", true},
                                         FormatCase{"p.png", SavePng, "png", true},
                                         FormatCase{"p.jpg", SaveJpeg, "jpeg", false},
                                         FormatCase{"p.gif", SaveGif, "gif", true}),
                         [](const testing::TestParamInfo<FormatCase>& info) { return std::string(info.param.format); });

}  // namespace
}  // namespace imageexport
