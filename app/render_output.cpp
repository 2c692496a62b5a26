#include "render_output.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cassert>
#include <cctype>
#include <iterator>

#include "imageexport/pdf_file.h"
#include "imageexport/picture_files.h"

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

const PictureFormat* FindPictureFormat(std::string_view path) {
  const std::string lower = LowerCase(path);
  const auto found = std::find_if(std::begin(kFormats), std::end(kFormats), [&](const PictureFormat& f) {
    return lower.ends_with(f.extension) && lower.size() > std::char_traits<char>::length(f.extension);
  });
  return found == std::end(kFormats) ? nullptr : found;
}

std::string PictureExtensions() {
  std::string list;
  for (std::size_t i = 0; i < std::size(kFormats); ++i) {
    list += i == 0 ? "" : (i + 1 == std::size(kFormats) ? " or " : ", ");
    list += kFormats[i].extension;
  }
  return list;
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
