#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// A small INI reader and writer. Section and key names are matched without regard to case and
// kept exactly as written, blanks included ("f Multiplier"); lines it does not understand are
// carried through a rewrite unchanged.
namespace mainwin {

class IniFile {
 public:
  // Reads LF or CRLF text.
  static IniFile Parse(const QString& text);
  // The file's text, LF line ends.
  QString Text() const;

  // The value with its surrounding blanks removed, or fallback when the key is absent.
  QString ReadString(const QString& section, const QString& key, const QString& fallback) const;
  // Replaces the value in place, or appends the key (and its section) at the end. The value is
  // written as given, leading blanks included.
  void WriteString(const QString& section, const QString& key, const QString& value);

 private:
  struct Line {
    QString key;   // empty for a line that is not "key=value"
    QString text;  // the value as written, or the whole line when key is empty
  };
  struct Section {
    QString name;  // empty for lines before the first section header
    std::vector<Line> lines;
  };

  int SectionIndex(const QString& name) const;  // -1 when absent
  Section& SectionNamed(const QString& name);

  std::vector<Section> sections_;
};

// Reads a file; false (and ini left alone) when it is missing or cannot be read.
bool LoadIniFile(const QString& path, IniFile& ini);
// Replaces the file in one step, so a crash never leaves half a file. On failure error says why.
bool SaveIniFile(const QString& path, const IniFile& ini, QString& error);

}  // namespace mainwin
