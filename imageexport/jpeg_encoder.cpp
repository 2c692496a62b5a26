#include "jpeg_encoder.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>
// jpeglib.h needs size_t and FILE declared before it.
#include <jpeglib.h>

namespace imageexport {
namespace {

// libjpeg reports errors by calling error_exit, which must not return: jump back out.
struct ErrorManager {
  jpeg_error_mgr base;
  std::jmp_buf jump;
  char message[JMSG_LENGTH_MAX];
};

void ExitOnError(j_common_ptr info) {
  ErrorManager* errors = reinterpret_cast<ErrorManager*>(info->err);
  info->err->format_message(info, errors->message);
  std::longjmp(errors->jump, 1);
}

struct RgbRows {
  const unsigned char* first;
  int width, height, stride;
};

// Only trivially destructible objects live here, as a libjpeg error leaves by longjmp.
bool Compress(const RgbRows& rows, unsigned char** buffer, unsigned long* size, ErrorManager& errors) {
  jpeg_compress_struct info;
  info.err = jpeg_std_error(&errors.base);
  errors.base.error_exit = ExitOnError;
  if (setjmp(errors.jump) != 0) {
    jpeg_destroy_compress(&info);
    return false;
  }
  jpeg_create_compress(&info);
  jpeg_mem_dest(&info, buffer, size);
  info.image_width = static_cast<JDIMENSION>(rows.width);
  info.image_height = static_cast<JDIMENSION>(rows.height);
  info.input_components = 3;
  info.in_color_space = JCS_RGB;
  jpeg_set_defaults(&info);
  jpeg_start_compress(&info, TRUE);
  while (info.next_scanline < info.image_height) {
    JSAMPROW row = const_cast<JSAMPROW>(rows.first + static_cast<std::ptrdiff_t>(info.next_scanline) * rows.stride);
    jpeg_write_scanlines(&info, &row, 1);
  }
  jpeg_finish_compress(&info);
  jpeg_destroy_compress(&info);
  return true;
}

}  // namespace

JpegOutcome EncodeJpeg(const QImage& image) {
  const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
  const RgbRows rows{rgb.constBits(), rgb.width(), rgb.height(), static_cast<int>(rgb.bytesPerLine())};
  unsigned char* buffer = nullptr;
  unsigned long size = 0;
  ErrorManager errors{};
  JpegOutcome outcome;
  if (Compress(rows, &buffer, &size, errors)) {
    outcome.bytes.assign(buffer, buffer + size);
  } else {
    outcome.error = errors.message;
  }
  std::free(buffer);  // allocated by libjpeg's memory destination
  return outcome;
}

}  // namespace imageexport
