#include "file_names.h"

namespace mainwin {
namespace {

constexpr char16_t kEscapeBase = 0xDC00;

// Length of the valid UTF-8 sequence at bytes[i] (no overlong forms, no surrogates, nothing
// beyond U+10FFFF), or 0 when the byte starts none.
int Utf8SequenceLength(std::string_view bytes, std::size_t i) {
  const auto at = [&](std::size_t k) { return static_cast<unsigned char>(bytes[k]); };
  const unsigned lead = at(i);
  if (lead < 0x80) return 1;
  const int length = lead >= 0xC2 && lead <= 0xDF ? 2 : lead >= 0xE0 && lead <= 0xEF ? 3
                     : lead >= 0xF0 && lead <= 0xF4                                 ? 4
                                                                                     : 0;
  if (length == 0 || i + static_cast<std::size_t>(length) > bytes.size()) return 0;
  const unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (at(i + 1) < low || at(i + 1) > high) return 0;
  for (int k = 2; k < length; ++k) {
    if ((at(i + static_cast<std::size_t>(k)) & 0xC0) != 0x80) return 0;
  }
  return length;
}

bool IsEscapedByte(const QString& name, qsizetype i) {
  const char16_t c = name[i].unicode();
  return c >= kEscapeBase + 0x80 && c <= kEscapeBase + 0xFF && (i == 0 || !name[i - 1].isHighSurrogate());
}

}  // namespace

QString DecodeFileName(std::string_view bytes) {
  QString name;
  for (std::size_t i = 0; i < bytes.size();) {
    const int length = Utf8SequenceLength(bytes, i);
    if (length > 0) {
      name += QString::fromUtf8(bytes.data() + i, length);
      i += static_cast<std::size_t>(length);
    } else {
      name += QChar(static_cast<char16_t>(kEscapeBase + static_cast<unsigned char>(bytes[i++])));
    }
  }
  return name;
}

std::string EncodeFileName(const QString& name) {
  std::string bytes;
  qsizetype runStart = 0;
  for (qsizetype i = 0; i < name.size(); ++i) {
    if (!IsEscapedByte(name, i)) continue;
    bytes += name.mid(runStart, i - runStart).toStdString();
    bytes += static_cast<char>(name[i].unicode() - kEscapeBase);
    runStart = i + 1;
  }
  return bytes + name.mid(runStart).toStdString();
}

}  // namespace mainwin
