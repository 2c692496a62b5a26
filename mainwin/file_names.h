#pragma once

#include <QString>
#include <string>
#include <string_view>

// File names are bytes on Linux and need not be valid UTF-8. A name travels through the window as
// a QString in which each byte that is not part of valid UTF-8 stands as the lone surrogate
// U+DC80..U+DCFF, so that it can be turned back into the very same bytes to open the file.
namespace mainwin {

QString DecodeFileName(std::string_view bytes);
std::string EncodeFileName(const QString& name);

}  // namespace mainwin
