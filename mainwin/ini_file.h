#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "ini_text.h"

// A small INI reader and writer over the file's bytes. Section and key names are matched without
// regard to case and kept exactly as written, blanks included ("f Multiplier"); every line the
// program does not write, and the line ends of all, come back byte for byte.
namespace mainwin {

class IniFile {
 public:
  // Reads LF or CRLF text in UTF-8 or Windows-1252.
  static IniFile Parse(const QByteArray& bytes);
  // The file's bytes: the lines as read, with the values written since in their place.
  QByteArray Bytes() const;

  // The value with its surrounding blanks removed, or fallback when the key is absent.
  QString ReadString(const QString& section, const QString& key, const QString& fallback) const;
  // Replaces the value in place, or appends the key (and its section) at the end. The value is
  // written as given, leading blanks included, in the file's encoding where that holds it.
  void WriteString(const QString& section, const QString& key, const QString& value);

 private:
  struct Line {
    QByteArray text;  // as read, without its line end
    QByteArray end;   // "\n", "\r\n", or empty for a last line without one
    QByteArray key;   // the trimmed name of a "key=value" line; empty for any other line
  };
  struct Section {
    QByteArray name;          // empty for the lines before the first section header
    std::vector<Line> lines;  // the header line first, when there is one
  };

  // The key's line in the section, const or not as self is; nullptr when absent.
  template <typename Self>
  static auto* FindLine(Self& self, const QString& section, const QString& key);
  Section& SectionNamed(const QByteArray& name);
  void Append(Section& section, const QByteArray& text, const QByteArray& key);

  std::vector<Section> sections_;
  IniEncoding encoding_ = IniEncoding::Utf8;
  QByteArray lineEnd_ = "\n";  // the line end of lines the program adds: the file's first one
};

// Reads a file. A missing file gives an empty ini and true; a file that exists but cannot be
// read gives false, and reason says why.
bool LoadIniFile(const QString& path, IniFile& ini, QString& reason);
// Replaces the file in one step, so a crash never leaves half a file. On failure reason says why.
bool SaveIniFile(const QString& path, const IniFile& ini, QString& reason);

}  // namespace mainwin
