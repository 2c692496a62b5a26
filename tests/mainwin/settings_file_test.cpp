#include <QTemporaryDir>
#include <QTest>

#include "mainwin/ini_file.h"
#include "mainwin/settings_file.h"

using mainwin::FrequencyUnit;
using mainwin::IniFile;

Q_DECLARE_METATYPE(FrequencyUnit)

class SettingsFileTest : public QObject {
  Q_OBJECT

 private slots:
  void IniReadsCrlfAndMatchesNamesWithoutCase();
  void IniRewriteKeepsForeignLinesAndAppendsNewKeys();
  void MultiplierSelectsRadioButton_data();
  void MultiplierSelectsRadioButton();
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
  ini.WriteString("Variablen", "Lgnd", "  1n");  // the blanks of the entry are written as they are
  ini.WriteString("Options", "j Output", "Ja");
  QCOMPARE(ini.Text(), QStringLiteral("; hand-written note\n[Other]\nkeep=1\n[Variablen]\nfo=2G\nLgnd=  1n\n"
                                      "[Options]\nj Output=Ja\n"));
}

void SettingsFileTest::MultiplierSelectsRadioButton_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<FrequencyUnit>("unit");
  QTest::newRow("2 is still Hz") << "2" << FrequencyUnit::Hz;
  QTest::newRow("3") << "3" << FrequencyUnit::MHz;
  QTest::newRow("2e6 is still MHz") << "2e6" << FrequencyUnit::MHz;
  QTest::newRow("just above 2e6") << "2.01M" << FrequencyUnit::GHz;
  QTest::newRow("absent means 1e6") << QString() << FrequencyUnit::MHz;
}

void SettingsFileTest::MultiplierSelectsRadioButton() {
  QFETCH(QString, stored);
  QFETCH(FrequencyUnit, unit);
  IniFile ini;
  if (!stored.isNull()) ini.WriteString("Variablen", "f Multiplier", stored);
  QCOMPARE(mainwin::MultiplierUnit(mainwin::ReadIniSettings(ini).fMultiplier), unit);
}

void SettingsFileTest::CommentLinesSurviveOneLineStorage_data() {
  QTest::addColumn<QString>("comment");
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
}

int RunSettingsFileTests(int argc, char** argv) {
  SettingsFileTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "settings_file_test.moc"
