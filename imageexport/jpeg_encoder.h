#pragma once

#include <QImage>
#include <string>
#include <vector>

// JPEG through libjpeg, called directly with its default settings.
namespace imageexport {

struct JpegOutcome {
  std::vector<unsigned char> bytes;  // the whole file
  std::string error;                 // libjpeg's message when it refused
};

JpegOutcome EncodeJpeg(const QImage& image);

}  // namespace imageexport
