#include "ini_file.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <string_view>

#include "numerics/file_writer.h"
#include "settings_problems.h"

namespace mainwin {
namespace {

const QByteArray kUtf8Mark = "\xEF\xBB\xBF";

bool SameName(const QByteArray& a, const QString& b) { return a.compare(b.toUtf8(), Qt::CaseInsensitive) == 0; }

bool IsSectionHeader(const QByteArray& trimmed) {
  return trimmed.size() >= 2 && trimmed.startsWith('[') && trimmed.endsWith(']');
}

// The trimmed name before "=", or empty for a line that is not "key=value" or is a comment.
QByteArray KeyOf(const QByteArray& text) {
  const qsizetype equals = text.indexOf('=');
  if (equals <= 0 || text.trimmed().startsWith(';')) return {};
  return text.left(equals).trimmed();
}

QByteArray ValueOf(const QByteArray& text) { return text.mid(text.indexOf('=') + 1); }

}  // namespace

IniFile IniFile::Parse(const QByteArray& bytes) {
  IniFile ini;
  ini.encoding_ = IsUtf8(bytes) ? IniEncoding::Utf8 : IniEncoding::Windows1252;
  ini.sections_.push_back({});
  // A byte-order mark stays in front of the first line, where it does not hide a section header.
  Section* section = &ini.sections_.back();
  if (bytes.startsWith(kUtf8Mark)) section->lines.push_back({kUtf8Mark, {}, {}});
  for (qsizetype at = section->lines.empty() ? 0 : kUtf8Mark.size(); at < bytes.size();) {
    const qsizetype newline = bytes.indexOf('\n', at);
    const qsizetype next = newline < 0 ? bytes.size() : newline + 1;
    Line line{bytes.mid(at, next - at), {}, {}};
    at = next;
    const qsizetype endLength = line.text.endsWith("\r\n") ? 2 : line.text.endsWith('\n') ? 1 : 0;
    line.end = line.text.right(endLength);
    line.text.chop(endLength);
    const QByteArray trimmed = line.text.trimmed();
    if (IsSectionHeader(trimmed)) {
      ini.sections_.push_back({trimmed.mid(1, trimmed.size() - 2).trimmed(), {}});
      section = &ini.sections_.back();
    } else {
      line.key = KeyOf(line.text);
    }
    section->lines.push_back(line);
  }
  const auto& first = ini.sections_.front().lines;
  if (!first.empty() && !first.front().end.isEmpty()) ini.lineEnd_ = first.front().end;
  return ini;
}

QByteArray IniFile::Bytes() const {
  QByteArray bytes;
  for (const Section& section : sections_) {
    for (const Line& line : section.lines) bytes += line.text + line.end;
  }
  return bytes;
}

template <typename Self>
auto* IniFile::FindLine(Self& self, const QString& section, const QString& key) {
  decltype(&self.sections_.front().lines.front()) none = nullptr;
  for (auto& s : self.sections_) {
    if (s.name.isEmpty() || !SameName(s.name, section)) continue;
    const auto found = std::find_if(s.lines.begin(), s.lines.end(),
                                    [&](const Line& line) { return !line.key.isEmpty() && SameName(line.key, key); });
    return found == s.lines.end() ? none : &*found;
  }
  return none;
}

QString IniFile::ReadString(const QString& section, const QString& key, const QString& fallback) const {
  const Line* line = FindLine(*this, section, key);
  return line ? DecodeIniText(ValueOf(line->text)).trimmed() : fallback;
}

void IniFile::WriteString(const QString& section, const QString& key, const QString& value) {
  const QByteArray encoded = EncodeIniText(value, encoding_);
  if (Line* line = FindLine(*this, section, key)) {
    line->text = line->text.left(line->text.indexOf('=') + 1) + encoded;
    return;
  }
  Append(SectionNamed(section.toUtf8()), key.toUtf8() + '=' + encoded, key.toUtf8());
}

IniFile::Section& IniFile::SectionNamed(const QByteArray& name) {
  const auto found = std::find_if(sections_.begin(), sections_.end(), [&](const Section& s) {
    return !s.name.isEmpty() && s.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  if (found != sections_.end()) return *found;
  sections_.push_back({name, {}});
  Append(sections_.back(), '[' + name + ']', {});
  return sections_.back();
}

// A line added behind the file's last line gives that line the line end it may lack.
void IniFile::Append(Section& section, const QByteArray& text, const QByteArray& key) {
  for (auto s = sections_.rbegin(); &section == &sections_.back() && s != sections_.rend(); ++s) {
    if (s->lines.empty()) continue;
    if (s->lines.back().end.isEmpty()) s->lines.back().end = lineEnd_;
    break;
  }
  section.lines.push_back({text, lineEnd_, key});
}

bool LoadIniFile(const QString& path, IniFile& ini, QString& reason) {
  QFile file(path);
  if (!file.exists() && !QFileInfo(path).isSymLink()) {
    ini = IniFile();
    return true;
  }
  if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) {
    reason = ReadProblem(path);
    if (reason.isEmpty()) reason = file.errorString();
    return false;
  }
  ini = IniFile::Parse(file.readAll());
  return true;
}

bool SaveIniFile(const QString& path, const IniFile& ini, QString& reason) {
  const QByteArray bytes = ini.Bytes();
  const numerics::FileWriteOutcome written = numerics::WriteFileAtomically(
      QFile::encodeName(path).toStdString(), std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  if (written.Ok()) return true;
  reason = QString::fromStdString(written.reason);
  return false;
}

}  // namespace mainwin
