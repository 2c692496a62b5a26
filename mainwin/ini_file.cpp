#include "ini_file.h"

#include <QFile>
#include <QSaveFile>
#include <algorithm>

namespace mainwin {
namespace {

bool SameName(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

bool IsSectionHeader(const QString& trimmed) {
  return trimmed.size() >= 2 && trimmed.startsWith('[') && trimmed.endsWith(']');
}

}  // namespace

IniFile IniFile::Parse(const QString& text) {
  IniFile ini;
  ini.sections_.push_back({});
  QStringList lines = text.split('\n');
  if (!lines.isEmpty() && lines.back().isEmpty()) lines.removeLast();
  for (QString line : lines) {
    if (line.endsWith('\r')) line.chop(1);
    const QString trimmed = line.trimmed();
    if (IsSectionHeader(trimmed)) {
      ini.sections_.push_back({trimmed.mid(1, trimmed.size() - 2).trimmed(), {}});
      continue;
    }
    const qsizetype equals = line.indexOf('=');
    const QString key = equals > 0 ? line.left(equals).trimmed() : QString();
    if (key.isEmpty() || trimmed.startsWith(';')) {
      ini.sections_.back().lines.push_back({QString(), line});
    } else {
      ini.sections_.back().lines.push_back({key, line.mid(equals + 1)});
    }
  }
  return ini;
}

QString IniFile::Text() const {
  QString text;
  for (const Section& section : sections_) {
    if (!section.name.isEmpty()) text += '[' + section.name + "]\n";
    for (const Line& line : section.lines) {
      text += line.key.isEmpty() ? line.text : line.key + '=' + line.text;
      text += '\n';
    }
  }
  return text;
}

QString IniFile::ReadString(const QString& section, const QString& key, const QString& fallback) const {
  const int index = SectionIndex(section);
  if (index < 0) return fallback;
  for (const Line& line : sections_[index].lines) {
    if (!line.key.isEmpty() && SameName(line.key, key)) return line.text.trimmed();
  }
  return fallback;
}

void IniFile::WriteString(const QString& section, const QString& key, const QString& value) {
  Section& target = SectionNamed(section);
  for (Line& line : target.lines) {
    if (!line.key.isEmpty() && SameName(line.key, key)) {
      line.text = value;
      return;
    }
  }
  target.lines.push_back({key, value});
}

int IniFile::SectionIndex(const QString& name) const {
  const auto found = std::find_if(sections_.begin(), sections_.end(), [&](const Section& s) {
    return !s.name.isEmpty() && SameName(s.name, name);
  });
  return found == sections_.end() ? -1 : static_cast<int>(found - sections_.begin());
}

IniFile::Section& IniFile::SectionNamed(const QString& name) {
  const int index = SectionIndex(name);
  if (index >= 0) return sections_[index];
  sections_.push_back({name, {}});
  return sections_.back();
}

bool LoadIniFile(const QString& path, IniFile& ini) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  ini = IniFile::Parse(QString::fromUtf8(file.readAll()));
  return true;
}

bool SaveIniFile(const QString& path, const IniFile& ini, QString& error) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    error = file.errorString();
    return false;
  }
  file.write(ini.Text().toUtf8());
  if (!file.commit()) {
    error = file.errorString();
    return false;
  }
  return true;
}

}  // namespace mainwin
