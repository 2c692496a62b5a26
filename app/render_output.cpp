#include "render_output.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cassert>
#include <cctype>

#include "imageexport/pdf_file.h"
#include "imageexport/picture_files.h"
#include "named_table.h"

namespace app {
namespace {

QImage Paint(int width, int height, const DrawPicture& draw) {
  QImage image(width, height, QImage::Format_RGB32);
  QPainter painter(&image);
  draw(painter);
  return image;
}

template <imageexport::ExportResult (*Save)(const QImage&, const std::string&)>
imageexport::ExportResult WriteRaster(const std::string& path, int width, int height, const DrawPicture& draw) {
  return Save(Paint(width, height, draw), path);
}

constexpr PictureFormat kFormats[] = {
    {".png", WriteRaster<imageexport::SavePng>},
    {".bmp", WriteRaster<imageexport::SaveBmp>},
    {".jpg", WriteRaster<imageexport::SaveJpeg>},
    {".gif", WriteRaster<imageexport::SaveGif>},
    {".pdf", imageexport::SavePdf},
};

char gApplicationName[] = "netrix";
char* gArguments[] = {gApplicationName, nullptr};
int gArgumentCount = 1;

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

}  // namespace

// A name that is nothing but the extension names no picture.
const PictureFormat* FindPictureFormat(std::string_view path) {
  const std::size_t dot = path.rfind('.');
  if (dot == 0 || dot == std::string_view::npos) return nullptr;
  return FindByName(kFormats, LowerCase(path.substr(dot)), &PictureFormat::extension);
}

std::string UnknownPictureFormat(const std::string& path) {
  return "cannot tell the picture format of \"" + path + "\"; end the name in " +
         NameList(kFormats, " or ", &PictureFormat::extension);
}

GuiSession::GuiSession() {
  if (QCoreApplication::instance() != nullptr) {
    assert(qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr && "text needs a GUI application");
    return;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  application_ = std::make_unique<QGuiApplication>(gArgumentCount, gArguments);
}

GuiSession::~GuiSession() = default;

}  // namespace app
