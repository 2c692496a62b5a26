#include <limits>
#include <utility>

#include "fixtures.h"
#include "mainwin/ini_file.h"
#include "mainwin/settings_file.h"

using mainwin::IniFile;

class SettingsFileTest : public QObject {
  Q_OBJECT

 private slots:
  void IniReadsCrlfAndMatchesNamesWithoutCase();
  void IniRewriteKeepsForeignBytesAndAppendsNewKeys_data();
  void IniRewriteKeepsForeignBytesAndAppendsNewKeys();
  void ReadsOnlyWhatTheFieldsHoldAndWritesWhatReadsBack_data();
  void ReadsOnlyWhatTheFieldsHoldAndWritesWhatReadsBack();
  void MultiplierSelectsRadioButton();
  void CommentLinesSurviveOneLineStorage();
  void SaveReportsAFolderThatDoesNotExist();
};

void SettingsFileTest::IniReadsCrlfAndMatchesNamesWithoutCase() {
  const IniFile ini = IniFile::Parse("[Variablen]\r\nfo=  2.5G \r\nf Multiplier = 1e9\r\n[OPTIONS]\r\nWith Lgnd=Yes\r\n");
  QCOMPARE(ini.ReadString("variablen", "FO", "none"), QStringLiteral("2.5G"));
  QCOMPARE(ini.ReadString("Variablen", "f multiplier", "none"), QStringLiteral("1e9"));
  QCOMPARE(ini.ReadString("Options", "with lgnd", "none"), QStringLiteral("Yes"));
  QCOMPARE(ini.ReadString("Options", "fo", "none"), QStringLiteral("none"));
  QCOMPARE(ini.ReadString("Missing", "fo", "none"), QStringLiteral("none"));
}

// Each write is "Section/Key=value"; what was written reads back as written.
void SettingsFileTest::IniRewriteKeepsForeignBytesAndAppendsNewKeys_data() {
  QTest::addColumn<QByteArray>("file");
  QTest::addColumn<QStringList>("writes");
  QTest::addColumn<QByteArray>("expected");
  QTest::newRow("utf-8") << QByteArray("; hand-written note\n[Other]\nkeep=1\n[Variablen]\nfo = 1G\n")
                         << QStringList{"Variablen/fo=2G", "Variablen/Lgnd=  1n", "Options/j Output=Ja"}
                         << QByteArray("; hand-written note\n[Other]\nkeep=1\n[Variablen]\nfo =2G\nLgnd=  1n\n"
                                       "[Options]\nj Output=Ja\n");
  // Windows-1252 bytes (0xB0 degree, 0xB5 micro, 0xE4 a umlaut), CRLF, and no line end at the end.
  QTest::newRow("windows-1252")
      << QByteArray("; 25 \xB0\x43\r\n[Variablen]\r\nComment=5 \xB5m\r\n[Fremd]\r\nx=\xE4")
      << QStringList{QString::fromUtf8("Variablen/Comment=7 µm, 30 °C"), "Options/j Output=Ja"}
      << QByteArray("; 25 \xB0\x43\r\n[Variablen]\r\nComment=7 \xB5m, 30 \xB0\x43\r\n[Fremd]\r\nx=\xE4\r\n"
                    "[Options]\r\nj Output=Ja\r\n");
  QTest::newRow("beyond windows-1252") << QByteArray("[Variablen]\nComment=\xB5\n")
                                       << QStringList{QString::fromUtf8("Variablen/Comment=50 Ω")}
                                       << QByteArray("[Variablen]\nComment=50 \xCE\xA9\n");
}

void SettingsFileTest::IniRewriteKeepsForeignBytesAndAppendsNewKeys() {
  QFETCH(QByteArray, file);
  QFETCH(QStringList, writes);
  QFETCH(QByteArray, expected);
  IniFile ini = IniFile::Parse(file);
  for (const QString& write : writes) {
    ini.WriteString(write.section('/', 0, 0), write.section('/', 1).section('=', 0, 0), write.section('=', 1));
  }
  QCOMPARE(ini.Bytes(), expected);
  const IniFile again = IniFile::Parse(ini.Bytes());
  for (const QString& write : writes) {
    QCOMPARE(again.ReadString(write.section('/', 0, 0), write.section('/', 1).section('=', 0, 0), "none"),
             write.section('=', 1).trimmed());
  }
}

// A value the fields cannot hold gives the built-in one, and every value written reads back.
void SettingsFileTest::ReadsOnlyWhatTheFieldsHoldAndWritesWhatReadsBack_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<double>("read");
  QTest::addColumn<double>("typed");    // the entry's value when the window closes
  QTest::addColumn<double>("written");  // what the next start reads
  const double fo = series::DefaultSeriesSettings().fo;
  QTest::newRow("a million digits") << QString(1000000, '1') << fo << fo << fo;
  QTest::newRow("beyond double") << "1e999" << fo << fo << fo;
  // The prefix field writes 1e15 as "1.00E+150"; it is written in plain exponent form instead.
  QTest::newRow("beyond the prefixes") << "1e15" << 1e15 << 1e15 << 1e15;
  QTest::newRow("typed infinity keeps the file's text") << "3G" << 3e9 << std::numeric_limits<double>::infinity()
                                                        << 3e9;
}

void SettingsFileTest::ReadsOnlyWhatTheFieldsHoldAndWritesWhatReadsBack() {
  QFETCH(QString, stored);
  QFETCH(double, read);
  QFETCH(double, typed);
  QFETCH(double, written);
  IniFile ini;
  ini.WriteString("Variablen", "fo", stored);
  ini.WriteString("Variablen", "Comment", stored);  // the page keeps 1000 characters of it
  mainwin::IniSettings settings = mainwin::ReadIniSettings(ini);
  QCOMPARE(settings.entries.fo, read);
  QCOMPARE(settings.comment, stored.left(1000));
  settings.entries.fo = typed;
  mainwin::WriteIniSettings(settings, ini);
  QCOMPARE(mainwin::ReadIniSettings(IniFile::Parse(ini.Bytes())).entries.fo, written);
}

// 2e6 is still MHz, anything above it GHz; no value at all means MHz.
void SettingsFileTest::MultiplierSelectsRadioButton() {
  using enum mainwin::FrequencyUnit;
  const std::pair<QString, mainwin::FrequencyUnit> cases[] = {
      {"2", Hz}, {"2e6", MHz}, {"2.01M", GHz}, {QString(), MHz}};
  for (const auto& [stored, unit] : cases) {
    IniFile ini;
    if (!stored.isNull()) ini.WriteString("Variablen", "f Multiplier", stored);
    QCOMPARE(mainwin::MultiplierUnit(mainwin::ReadIniSettings(ini).entries.multiplier), unit);
  }
}

// Two lines, a typed backslash-n and a trailing backslash.
void SettingsFileTest::CommentLinesSurviveOneLineStorage() {
  for (const QString comment : {"first\nsecond", "C:\\new\\data", "end\\"}) {
    const QString stored = mainwin::EscapeLineEnds(comment);
    QVERIFY(!stored.contains('\n'));
    QCOMPARE(mainwin::UnescapeLineEnds(stored), comment);
  }
}

void SettingsFileTest::SaveReportsAFolderThatDoesNotExist() {
  QTemporaryDir dir;
  QString error;
  QVERIFY(!mainwin::SaveIniFile(dir.filePath("missing/netrix.ini"), IniFile(), error));
  QVERIFY(!error.isEmpty());
}

int RunSettingsFileTests(int argc, char** argv) { return mainwin_test::RunTests<SettingsFileTest>(argc, argv); }

#include "settings_file_test.moc"
