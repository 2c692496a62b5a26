#pragma once

#include <QByteArray>
#include <QString>

// The text of netrix.ini as bytes: files written on Windows hold Windows-1252 text, newer ones
// UTF-8. Values are decoded one by one so that a file of either kind, or a mix, reads right.
namespace mainwin {

enum class IniEncoding { Utf8, Windows1252 };

bool IsUtf8(const QByteArray& bytes);

// UTF-8 when the bytes are valid UTF-8, else Windows-1252.
QString DecodeIniText(const QByteArray& bytes);

// Windows-1252 is used only when it holds every character of the text; else UTF-8, which
// DecodeIniText recognises.
QByteArray EncodeIniText(const QString& text, IniEncoding encoding);

}  // namespace mainwin
