#include "settings_file.h"

#include <QDir>
#include <QStandardPaths>
#include <charconv>
#include <cmath>
#include <optional>

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace mainwin {
namespace {

const QString kVariables = QStringLiteral("Variablen");
const QString kOptions = QStringLiteral("Options");
constexpr int kFieldWidth = 6;
constexpr int kFieldDecimals = 2;
// What the entry fields can hold: longer texts are not values the program wrote, and a comment
// beyond a few hundred words only slows the page that shows it.
constexpr qsizetype kMostNumberChars = 40;
constexpr qsizetype kMostCommentChars = 1000;

bool ReadsBackAs(const std::string& text, double value) {
  const numerics::ParsedValue parsed = numerics::ParseValueText(text);
  return parsed.status == numerics::kParseDigitsRead && std::fabs(parsed.value - value) <= 0.01 * std::fabs(value);
}

// The prefix field where it reads back as the value. Beyond 1e13 the field's forms read back as
// other numbers ("1.00E+150" for 1e15), so those values are written in plain exponent form.
std::optional<QString> NumberText(double value) {
  if (!std::isfinite(value)) return std::nullopt;
  std::string text = numerics::FormatPrefixedField(kFieldWidth, kFieldDecimals, value);
  if (!ReadsBackAs(text, value)) {
    char plain[32];
    text.assign(plain, std::to_chars(plain, plain + sizeof plain, value).ptr);
  }
  return QString::fromStdString(text);
}

double ReadNumber(const IniFile& ini, const QString& key, double fallback) {
  const QString text = ini.ReadString(kVariables, key, QString());
  if (text.size() > kMostNumberChars) return fallback;
  const numerics::ParsedValue parsed = numerics::ParseValueText(text.toStdString());
  return parsed.status == numerics::kParseDigitsRead && std::isfinite(parsed.value) ? parsed.value : fallback;
}

// A value that is not a number keeps the text the file holds.
void WriteNumber(IniFile& ini, const QString& key, double value) {
  if (const std::optional<QString> text = NumberText(value)) ini.WriteString(kVariables, key, *text);
}

bool ReadOption(const IniFile& ini, const QString& key) {
  return ini.ReadString(kOptions, key, QStringLiteral("False")) == QLatin1String("Yes");
}

void WriteOption(IniFile& ini, const QString& key, bool checked) {
  ini.WriteString(kOptions, key, QString::fromStdString(numerics::BoolText(checked)));
}

}  // namespace

FrequencyUnit MultiplierUnit(double multiplier) {
  if (multiplier > 2e6) return FrequencyUnit::GHz;
  if (multiplier > 2.0) return FrequencyUnit::MHz;
  return FrequencyUnit::Hz;
}

double UnitMultiplier(FrequencyUnit unit) {
  switch (unit) {
    case FrequencyUnit::Hz: return 1;
    case FrequencyUnit::MHz: return 1e6;
    case FrequencyUnit::GHz: return 1e9;
  }
  return 1;
}

IniSettings ReadIniSettings(const IniFile& ini) {
  IniSettings s;
  s.fo = ReadNumber(ini, QStringLiteral("fo"), kDefaultFo);
  s.lgnd = ReadNumber(ini, QStringLiteral("Lgnd"), kDefaultLgnd);
  s.area = ReadNumber(ini, QStringLiteral("Area"), kDefaultArea);
  s.fMultiplier = ReadNumber(ini, QStringLiteral("f Multiplier"), kDefaultMultiplier);
  s.comment = UnescapeLineEnds(ini.ReadString(kVariables, QStringLiteral("Comment"), QString())).left(kMostCommentChars);
  s.withLgnd = ReadOption(ini, QStringLiteral("With Lgnd"));
  s.jOutput = ReadOption(ini, QStringLiteral("j Output"));
  s.connectPoints = ReadOption(ini, QStringLiteral("Connect Points"));
  return s;
}

void WriteIniSettings(const IniSettings& s, IniFile& ini) {
  WriteNumber(ini, QStringLiteral("fo"), s.fo);
  WriteNumber(ini, QStringLiteral("Lgnd"), s.lgnd);
  WriteNumber(ini, QStringLiteral("Area"), s.area);
  WriteNumber(ini, QStringLiteral("f Multiplier"), s.fMultiplier);
  ini.WriteString(kVariables, QStringLiteral("Comment"), EscapeLineEnds(s.comment));
  WriteOption(ini, QStringLiteral("With Lgnd"), s.withLgnd);
  WriteOption(ini, QStringLiteral("j Output"), s.jOutput);
  WriteOption(ini, QStringLiteral("Connect Points"), s.connectPoints);
}

QString SettingsFilePath() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return QDir(folder).filePath(QStringLiteral("netrix.ini"));
}

QString EscapeLineEnds(const QString& text) {
  QString escaped = text;
  escaped.replace('\\', QLatin1String("\\\\"));
  escaped.replace('\n', QLatin1String("\\n"));
  return escaped;
}

QString UnescapeLineEnds(const QString& text) {
  QString plain;
  plain.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '\\' && i + 1 < text.size();
    if (escape && text[i + 1] == 'n') {
      plain += '\n';
      ++i;
    } else if (escape && text[i + 1] == '\\') {
      plain += '\\';
      ++i;
    } else {
      plain += text[i];
    }
  }
  return plain;
}

}  // namespace mainwin
