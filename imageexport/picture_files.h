#pragma once

#include <QImage>
#include <string>

#include "export_result.h"

// A drawn picture saved as a file, each format by its own writer: BMP and PNG through Qt,
// JPEG through libjpeg, GIF through our encoder. Every file is written atomically.
namespace imageexport {

ExportResult SaveBmp(const QImage& image, const std::string& path);
ExportResult SavePng(const QImage& image, const std::string& path);
ExportResult SaveJpeg(const QImage& image, const std::string& path);
ExportResult SaveGif(const QImage& image, const std::string& path);

}  // namespace imageexport
