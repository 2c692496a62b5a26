#include "settings_file.h"

#include <QDir>
#include <QStandardPaths>

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace mainwin {
namespace {

const QString kVariables = QStringLiteral("Variablen");
const QString kOptions = QStringLiteral("Options");
constexpr int kFieldWidth = 6;
constexpr int kFieldDecimals = 2;

QString NumberText(double value) {
  return QString::fromStdString(numerics::FormatPrefixedField(kFieldWidth, kFieldDecimals, value));
}

double ReadNumber(const IniFile& ini, const QString& key, const QString& fallbackText, double fallback) {
  const std::string text = ini.ReadString(kVariables, key, fallbackText).toStdString();
  const numerics::ParsedValue parsed = numerics::ParseValueText(text);
  return parsed.status == numerics::kParseDigitsRead ? parsed.value : fallback;
}

double ReadNumber(const IniFile& ini, const QString& key, double fallback) {
  return ReadNumber(ini, key, NumberText(fallback), fallback);
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
  s.fMultiplier = ReadNumber(ini, QStringLiteral("f Multiplier"), QStringLiteral("1e6"), kDefaultMultiplier);
  s.comment = UnescapeLineEnds(ini.ReadString(kVariables, QStringLiteral("Comment"), QString()));
  s.withLgnd = ReadOption(ini, QStringLiteral("With Lgnd"));
  s.jOutput = ReadOption(ini, QStringLiteral("j Output"));
  s.connectPoints = ReadOption(ini, QStringLiteral("Connect Points"));
  return s;
}

void WriteIniSettings(const IniSettings& s, IniFile& ini) {
  ini.WriteString(kVariables, QStringLiteral("fo"), NumberText(s.fo));
  ini.WriteString(kVariables, QStringLiteral("Lgnd"), NumberText(s.lgnd));
  ini.WriteString(kVariables, QStringLiteral("Area"), NumberText(s.area));
  ini.WriteString(kVariables, QStringLiteral("f Multiplier"), NumberText(s.fMultiplier));
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
