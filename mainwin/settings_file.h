#pragma once

#include <QString>

#include "ini_file.h"

// The entry values kept in netrix.ini between runs: section "Variablen" holds the numbers and the
// comment, section "Options" the switches.
namespace mainwin {

// Built-in values before any settings file was read; the same as the entry fields' first texts.
inline constexpr double kDefaultFo = 2e9;         // Hz
inline constexpr double kDefaultLgnd = 100e-12;   // H
inline constexpr double kDefaultArea = 1000;      // square micrometres
inline constexpr double kDefaultMultiplier = 1e6;

enum class FrequencyUnit { Hz, MHz, GHz };

// The radio button a stored multiplier selects: above 2e6 GHz, above 2 MHz, else Hz.
FrequencyUnit MultiplierUnit(double multiplier);
double UnitMultiplier(FrequencyUnit unit);

struct IniSettings {
  double fo = kDefaultFo;
  double lgnd = kDefaultLgnd;
  double area = kDefaultArea;
  double fMultiplier = kDefaultMultiplier;
  QString comment;
  bool withLgnd = false;
  bool jOutput = false;
  bool connectPoints = false;
};

// Absent keys, and numbers that are too long for a field or not finite, give the built-in values;
// the comment is cut to what the page keeps. An option is on only when its text is exactly "Yes",
// while WriteIniSettings writes "Ja"/"Nein": a value the program wrote reads back as off.
// WriteIniSettings writes only numbers that read back: one that is not finite keeps the file's text.
IniSettings ReadIniSettings(const IniFile& ini);
void WriteIniSettings(const IniSettings& settings, IniFile& ini);

// netrix.ini in the user's configuration folder ($XDG_CONFIG_HOME, else ~/.config).
QString SettingsFilePath();

// The comment may span lines; the file holds it on one line with "\n" for each line end.
QString EscapeLineEnds(const QString& text);
QString UnescapeLineEnds(const QString& text);

}  // namespace mainwin
