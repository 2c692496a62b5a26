#include "picture_files.h"

#include <QImageWriter>
#include <QSaveFile>
#include <cassert>
#include <cerrno>
#include <span>

#include "atomic_file.h"
#include "gif_encoder.h"
#include "jpeg_encoder.h"

namespace imageexport {
namespace {

ExportResult SaveThroughQt(const QImage& image, const std::string& path, const char* format) {
  QSaveFile file(QString::fromStdString(path));
  if (ExportResult opened = OpenSaveFile(file); !opened.Ok()) return opened;
  QImageWriter writer(&file, format);
  errno = 0;
  if (!writer.write(image)) {
    const std::string reason = errno != 0 ? FailureReason(file, errno) : writer.errorString().toStdString();
    file.cancelWriting();
    return {CannotWriteMessage(path, reason)};
  }
  return CommitSaveFile(file);
}

}  // namespace

ExportResult SaveBmp(const QImage& image, const std::string& path) { return SaveThroughQt(image, path, "BMP"); }
ExportResult SavePng(const QImage& image, const std::string& path) { return SaveThroughQt(image, path, "PNG"); }

ExportResult SaveJpeg(const QImage& image, const std::string& path) {
  const JpegOutcome jpeg = EncodeJpeg(image);
  if (!jpeg.error.empty()) return {CannotWriteMessage(path, "the JPEG coder refused it: " + jpeg.error)};
  return WriteFileAtomically(path, jpeg.bytes);
}

ExportResult SaveGif(const QImage& image, const std::string& path) {
  assert(!image.isNull());
  const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
  // 32-bit rows have no padding, so the pixels are one contiguous run.
  const std::span<const std::uint32_t> pixels(reinterpret_cast<const std::uint32_t*>(rgb.constBits()),
                                              static_cast<std::size_t>(rgb.width()) * static_cast<std::size_t>(rgb.height()));
  const std::vector<std::uint8_t> bytes = EncodeGif(rgb.width(), rgb.height(), pixels);
  return WriteFileAtomically(path, bytes);
}

}  // namespace imageexport
