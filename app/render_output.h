#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "imageexport/export_result.h"

class QGuiApplication;
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
// The message for a path whose extension names no format; it lists the extensions.
std::string UnknownPictureFormat(const std::string& path);

// Text needs a GUI application: the session makes one for the render mode, on the offscreen
// platform unless the environment asks for another, so that no display is needed. Where the
// process has a GUI application already, it uses that one.
class GuiSession {
 public:
  GuiSession();
  ~GuiSession();
  GuiSession(const GuiSession&) = delete;
  GuiSession& operator=(const GuiSession&) = delete;

 private:
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace app
