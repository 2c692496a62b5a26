#include <QTemporaryDir>
#include <QTest>

#include "mainwin/ini_file.h"
#include "mainwin/settings_file.h"

using mainwin::FrequencyUnit;
using mainwin::IniFile;
using mainwin::IniSettings;

Q_DECLARE_METATYPE(FrequencyUnit)

class SettingsFileTest : public QObject {
  Q_OBJECT

 private slots:
  void IniReadsCrlfAndMatchesNamesWithoutCase();
  void IniRewriteKeepsForeignLinesAndAppendsNewKeys();
  void IniWritesValuesWithTheirLeadingBlanks();
  void MultiplierSelectsRadioButton_data();
  void MultiplierSelectsRadioButton();
  void OptionIsOnOnlyForExactYes_data();
  void OptionIsOnOnlyForExactYes();
  void AbsentKeysGiveBuiltInValues();
  void NumbersReadWithUnitPrefixes();
  void WrittenFileHasKeysInOrderAndGermanSwitches();
  void WrittenSettingsReadBackWithOptionsOff();
  void CommentLinesSurviveOneLineStorage_data();
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

void SettingsFileTest::IniRewriteKeepsForeignLinesAndAppendsNewKeys() {
  IniFile ini = IniFile::Parse("; hand-written note\n[Other]\nkeep=1\n[Variablen]\nfo=1G\n");
  ini.WriteString("Variablen", "fo", "2G");
  ini.WriteString("Variablen", "Lgnd", "1n");
  ini.WriteString("Options", "j Output", "Ja");
  QCOMPARE(ini.Text(), QStringLiteral("; hand-written note\n[Other]\nkeep=1\n[Variablen]\nfo=2G\nLgnd=1n\n"
                                      "[Options]\nj Output=Ja\n"));
}

void SettingsFileTest::IniWritesValuesWithTheirLeadingBlanks() {
  IniFile ini;
  ini.WriteString("Variablen", "fo", "  2.00G");
  QCOMPARE(ini.Text(), QStringLiteral("[Variablen]\nfo=  2.00G\n"));
  QCOMPARE(ini.ReadString("Variablen", "fo", ""), QStringLiteral("2.00G"));
}

void SettingsFileTest::MultiplierSelectsRadioButton_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<FrequencyUnit>("unit");
  QTest::newRow("1e9") << "1e9" << FrequencyUnit::GHz;
  QTest::newRow("1e6") << "1e6" << FrequencyUnit::MHz;
  QTest::newRow("1") << "1" << FrequencyUnit::Hz;
  QTest::newRow("2 is still Hz") << "2" << FrequencyUnit::Hz;
  QTest::newRow("3") << "3" << FrequencyUnit::MHz;
  QTest::newRow("2e6 is still MHz") << "2e6" << FrequencyUnit::MHz;
  QTest::newRow("just above 2e6") << "2.01M" << FrequencyUnit::GHz;
  QTest::newRow("prefixed 1.00G") << "  1.00G" << FrequencyUnit::GHz;
  QTest::newRow("absent means 1e6") << QString() << FrequencyUnit::MHz;
}

void SettingsFileTest::MultiplierSelectsRadioButton() {
  QFETCH(QString, stored);
  QFETCH(FrequencyUnit, unit);
  IniFile ini;
  if (!stored.isNull()) ini.WriteString("Variablen", "f Multiplier", stored);
  QCOMPARE(mainwin::MultiplierUnit(mainwin::ReadIniSettings(ini).fMultiplier), unit);
}

void SettingsFileTest::OptionIsOnOnlyForExactYes_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<bool>("checked");
  QTest::newRow("Yes") << "Yes" << true;
  QTest::newRow("Ja as the program writes it") << "Ja" << false;
  QTest::newRow("Nein") << "Nein" << false;
  QTest::newRow("True") << "True" << false;
  QTest::newRow("lower-case yes") << "yes" << false;
  QTest::newRow("absent") << QString() << false;
}

void SettingsFileTest::OptionIsOnOnlyForExactYes() {
  QFETCH(QString, stored);
  QFETCH(bool, checked);
  for (const char* key : {"With Lgnd", "j Output", "Connect Points"}) {
    IniFile ini;
    if (!stored.isNull()) ini.WriteString("Options", key, stored);
    const IniSettings s = mainwin::ReadIniSettings(ini);
    const int on = int(s.withLgnd) + int(s.jOutput) + int(s.connectPoints);
    QCOMPARE(on, checked ? 1 : 0);
  }
}

void SettingsFileTest::AbsentKeysGiveBuiltInValues() {
  const IniSettings s = mainwin::ReadIniSettings(IniFile());
  QCOMPARE(s.fo, 2e9);
  QCOMPARE(s.lgnd, 100e-12);
  QCOMPARE(s.area, 1000.0);
  QCOMPARE(s.fMultiplier, 1e6);
  QCOMPARE(s.comment, QString());
}

void SettingsFileTest::NumbersReadWithUnitPrefixes() {
  const IniFile ini = IniFile::Parse("[Variablen]\nfo=  3.50G\nLgnd=250p\nArea=  1.20k\n");
  const IniSettings s = mainwin::ReadIniSettings(ini);
  QCOMPARE(s.fo, 3.5e9);
  QVERIFY(qAbs(s.lgnd - 250e-12) < 1e-24);
  QCOMPARE(s.area, 1200.0);
}

void SettingsFileTest::WrittenFileHasKeysInOrderAndGermanSwitches() {
  IniSettings s;
  s.withLgnd = true;
  s.comment = "Run 7";
  IniFile ini;
  mainwin::WriteIniSettings(s, ini);
  QStringList keys;
  for (const QString& line : ini.Text().split('\n', Qt::SkipEmptyParts)) keys.append(line.section('=', 0, 0));
  QCOMPARE(keys, QStringList({"[Variablen]", "fo", "Lgnd", "Area", "f Multiplier", "Comment", "[Options]",
                              "With Lgnd", "j Output", "Connect Points"}));
  QVERIFY(ini.Text().contains("\nWith Lgnd=Ja\nj Output=Nein\nConnect Points=Nein\n"));
  QVERIFY(ini.Text().contains("\nComment=Run 7\n"));
}

void SettingsFileTest::WrittenSettingsReadBackWithOptionsOff() {
  IniSettings written;
  written.fo = 5.8e9;
  written.lgnd = 47e-12;
  written.area = 640;
  written.fMultiplier = 1e9;
  written.withLgnd = written.jOutput = written.connectPoints = true;
  IniFile ini;
  mainwin::WriteIniSettings(written, ini);
  const IniSettings read = mainwin::ReadIniSettings(IniFile::Parse(ini.Text()));
  QCOMPARE(read.fo, 5.8e9);
  QVERIFY(qAbs(read.lgnd - 47e-12) < 1e-24);
  QCOMPARE(read.area, 640.0);
  QCOMPARE(read.fMultiplier, 1e9);
  QVERIFY(!read.withLgnd && !read.jOutput && !read.connectPoints);
}

void SettingsFileTest::CommentLinesSurviveOneLineStorage_data() {
  QTest::addColumn<QString>("comment");
  QTest::newRow("plain") << "BFP 420, Vce = 2 V";
  QTest::newRow("two lines") << "first\nsecond";
  QTest::newRow("backslash n typed") << "C:\\new\\data";
  QTest::newRow("trailing backslash") << "end\\";
}

void SettingsFileTest::CommentLinesSurviveOneLineStorage() {
  QFETCH(QString, comment);
  const QString stored = mainwin::EscapeLineEnds(comment);
  QVERIFY(!stored.contains('\n'));
  QCOMPARE(mainwin::UnescapeLineEnds(stored), comment);
}

void SettingsFileTest::SaveReportsAFolderThatDoesNotExist() {
  QTemporaryDir dir;
  QString error;
  QVERIFY(!mainwin::SaveIniFile(dir.filePath("missing/netrix.ini"), IniFile(), error));
  QVERIFY(!error.isEmpty());
  IniFile ini;
  ini.WriteString("Variablen", "fo", "1G");
  QVERIFY(mainwin::SaveIniFile(dir.filePath("netrix.ini"), ini, error));
  IniFile back;
  QVERIFY(mainwin::LoadIniFile(dir.filePath("netrix.ini"), back));
  QCOMPARE(back.ReadString("Variablen", "fo", ""), QStringLiteral("1G"));
}

int RunSettingsFileTests(int argc, char** argv) {
  SettingsFileTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "settings_file_test.moc"
