#pragma once

#include <QByteArray>
#include <QImage>
#include <string>
#include <string_view>

#include "export_result.h"

// A drawn picture saved as a file, each format by its own writer: BMP and PNG through Qt,
// JPEG through libjpeg, GIF through our encoder. Each is made in memory and then written atomically.
namespace imageexport {

// Writes a file made in memory (a picture, or a graph window's table) in one piece; on failure
// the message names the picture and the system's reason.
ExportResult SaveFileBytes(const std::string& path, std::string_view bytes);
ExportResult SaveFileBytes(const std::string& path, const QByteArray& bytes);

ExportResult SaveBmp(const QImage& image, const std::string& path);
ExportResult SavePng(const QImage& image, const std::string& path);
ExportResult SaveJpeg(const QImage& image, const std::string& path);
ExportResult SaveGif(const QImage& image, const std::string& path);

}  // namespace imageexport
