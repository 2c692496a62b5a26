#include "imageexport/pdf_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QPaintDevice>
#include <QPainter>

namespace imageexport {
namespace {

TEST(Pdf, OnePageOfThePicturesSizeInVectors) {
  const std::string path = QDir(QString::fromStdString(testing::TempDir())).filePath("pdf_test_diagram.pdf").toStdString();
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
  const std::string path = QDir(QString::fromStdString(testing::TempDir())).filePath("pdf_test_missing/d.pdf").toStdString();
  bool drawn = false;
  const ExportResult result = SavePdf(path, 100, 100, [&](QPainter&) { drawn = true; });
  EXPECT_FALSE(result.Ok());
  EXPECT_FALSE(drawn);
  EXPECT_NE(result.error.find(path), std::string::npos);
}

}  // namespace
}  // namespace imageexport
