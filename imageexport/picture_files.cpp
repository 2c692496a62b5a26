#include "picture_files.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageWriter>
#include <cassert>
#include <span>

#include "gif_encoder.h"
#include "jpeg_encoder.h"
#include "numerics/file_writer.h"

namespace imageexport {
namespace {

std::string CannotWriteMessage(const std::string& path, const std::string& reason) {
  return "Cannot write the picture \"" + path + "\": " + reason +
         ". Check that the folder exists and that you may write to it.";
}

std::string_view AsText(std::span<const unsigned char> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

ExportResult SaveThroughQt(const QImage& image, const std::string& path, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  [[maybe_unused]] const bool opened = buffer.open(QIODevice::WriteOnly);
  assert(opened);  // a buffer in memory always opens
  QImageWriter writer(&buffer, format);
  if (!writer.write(image)) return {CannotWriteMessage(path, writer.errorString().toStdString())};
  return SaveFileBytes(path, bytes);
}

}  // namespace

ExportResult SaveFileBytes(const std::string& path, std::string_view bytes) {
  const numerics::FileWriteOutcome written = numerics::WriteFileAtomically(path, bytes);
  if (written.Ok()) return {};
  return {CannotWriteMessage(path, written.reason)};
}

ExportResult SaveFileBytes(const std::string& path, const QByteArray& bytes) {
  return SaveFileBytes(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

ExportResult SaveBmp(const QImage& image, const std::string& path) { return SaveThroughQt(image, path, "BMP"); }
ExportResult SavePng(const QImage& image, const std::string& path) { return SaveThroughQt(image, path, "PNG"); }

ExportResult SaveJpeg(const QImage& image, const std::string& path) {
  const JpegOutcome jpeg = EncodeJpeg(image);
  if (!jpeg.error.empty()) return {CannotWriteMessage(path, "the JPEG coder refused it: " + jpeg.error)};
  return SaveFileBytes(path, AsText(jpeg.bytes));
}

ExportResult SaveGif(const QImage& image, const std::string& path) {
  assert(!image.isNull());
  const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
  // 32-bit rows have no padding, so the pixels are one contiguous run.
  const std::span<const std::uint32_t> pixels(reinterpret_cast<const std::uint32_t*>(rgb.constBits()),
                                              static_cast<std::size_t>(rgb.width()) * static_cast<std::size_t>(rgb.height()));
  const std::vector<std::uint8_t> bytes = EncodeGif(rgb.width(), rgb.height(), pixels);
  return SaveFileBytes(path, AsText(bytes));
}

}  // namespace imageexport
