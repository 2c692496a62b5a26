#include "pdf_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSizeF>

#include "picture_files.h"

namespace imageexport {
namespace {

constexpr double kPointsPerInch = 72;

}  // namespace

ExportResult SavePdf(const std::string& path, int width, int height, const std::function<void(QPainter&)>& draw) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
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
  return SaveFileBytes(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace imageexport
