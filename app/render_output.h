#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "imageexport/export_result.h"

class QPainter;

// The picture formats of netrix --render, chosen by the extension of the output path.
namespace app {

using DrawPicture = std::function<void(QPainter& painter)>;

struct PictureFormat {
  const char* extension;  // with the dot, lower case
  imageexport::ExportResult (*write)(const std::string& path, int width, int height, const DrawPicture& draw);
};

// nullptr when the path's extension names no format (compared without regard to case).
const PictureFormat* FindPictureFormat(std::string_view path);
// ".png, .bmp, .jpg, .gif or .pdf", for messages.
std::string PictureExtensions();

}  // namespace app
