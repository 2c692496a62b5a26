#include "pdf_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSizeF>
#include <cassert>

#include "picture_files.h"

namespace imageexport {
namespace {

constexpr double kPointsPerInch = 72;

}  // namespace

ExportResult SavePdf(const std::string& path, int width, int height, const std::function<void(QPainter&)>& draw) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  [[maybe_unused]] const bool opened = buffer.open(QIODevice::WriteOnly);
  assert(opened);  // a buffer in memory always opens
  {
    QPdfWriter pdf(&buffer);
    pdf.setCreator("netrix");
    pdf.setResolution(kPdfPixelsPerInch);
    const double scale = kPointsPerInch / kPdfPixelsPerInch;
    pdf.setPageLayout(QPageLayout(QPageSize(QSizeF(width * scale, height * scale), QPageSize::Point),
                                  QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    QPainter painter(&pdf);
    draw(painter);
  }
  return SaveFileBytes(path, bytes);
}

}  // namespace imageexport
