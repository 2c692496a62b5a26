#pragma once

#include <QString>

#include "ini_file.h"
#include "series/series_settings.h"

// The entry values kept in netrix.ini between runs: section "Variablen" holds the numbers and the
// comment, section "Options" the switches.
namespace mainwin {

enum class FrequencyUnit { Hz, MHz, GHz };

// The radio button a stored multiplier selects: above 2e6 GHz, above 2 MHz, else Hz.
FrequencyUnit MultiplierUnit(double multiplier);
double UnitMultiplier(FrequencyUnit unit);

// The stored entries are those of the series evaluation (fo, lgnd, area, multiplier, withLgnd and
// density, as "j Output"), before any settings file was read the series' built-in values.
struct IniSettings {
  series::SeriesSettings entries = series::DefaultSeriesSettings();
  QString comment;
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
