#include "pdf_file.h"

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSizeF>

#include "atomic_file.h"

namespace imageexport {
namespace {

constexpr double kPointsPerInch = 72;

}  // namespace

ExportResult SavePdf(const std::string& path, int width, int height, const std::function<void(QPainter&)>& draw) {
  QSaveFile file(QString::fromStdString(path));
  if (ExportResult opened = OpenSaveFile(file); !opened.Ok()) return opened;
  {
    QPdfWriter pdf(&file);
    pdf.setCreator("netrix");
    pdf.setResolution(kPdfPixelsPerInch);
    const double scale = kPointsPerInch / kPdfPixelsPerInch;
    pdf.setPageLayout(QPageLayout(QPageSize(QSizeF(width * scale, height * scale), QPageSize::Point),
                                  QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    QPainter painter(&pdf);
    draw(painter);
  }
  return CommitSaveFile(file);
}

}  // namespace imageexport
