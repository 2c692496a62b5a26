#include "ini_text.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <iterator>

namespace mainwin {
namespace {

// The characters of the bytes 0x80 to 0x9F; the five bytes Windows-1252 leaves undefined keep
// their own code, as Windows maps them, so that every byte reads back as itself.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t Windows1252Character(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : char16_t{byte};
}

// The byte of a character, or -1 when Windows-1252 has none for it.
int Windows1252Byte(char16_t c) {
  const auto* found = std::find(kHighControls.begin(), kHighControls.end(), c);
  if (found != kHighControls.end()) return 0x80 + static_cast<int>(found - kHighControls.begin());
  return c < 0x100 && !(c >= 0x80 && c < 0xA0) ? c : -1;
}

}  // namespace

bool IsUtf8(const QByteArray& bytes) {
  QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
  const QString unused = decoder.decode(bytes);
  return !decoder.hasError();
}

QString DecodeIniText(const QByteArray& bytes) {
  if (IsUtf8(bytes)) return QString::fromUtf8(bytes);
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [](char byte) { return QChar(Windows1252Character(static_cast<unsigned char>(byte))); });
  return text;
}

QByteArray EncodeIniText(const QString& text, IniEncoding encoding) {
  if (encoding == IniEncoding::Utf8) return text.toUtf8();
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar c : text) {
    const int byte = Windows1252Byte(c.unicode());
    if (byte < 0) return text.toUtf8();
    bytes.append(static_cast<char>(byte));
  }
  return bytes;
}

}  // namespace mainwin
