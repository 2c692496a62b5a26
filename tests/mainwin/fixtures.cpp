#include "fixtures.h"

#include <QFile>
#include <QSettings>
#include <QTextStream>

#include "mainwin/settings_file.h"
#include "numerics/data_set.h"

namespace mainwin_test {

QString WriteTwoPortFile(const QTemporaryDir& dir, const QString& name, int points) {
  const QString path = dir.filePath(name);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write fixture %s", qPrintable(path));
  QTextStream out(&file);
  out << "Test device " << name << "\r\n";
  for (int i = 1; i <= points; ++i) {
    out << i * 100 << "M 0.5 -30 4.0 150 0.05 60 0.4 -20\r\n";
  }
  return path;
}

QString WriteBrokenFile(const QTemporaryDir& dir, const QString& name) {
  const QString path = dir.filePath(name);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write fixture %s", qPrintable(path));
  file.write("Broken\n100M 0.5 -30 4 150 0.05 60 0.4 -20\n200M 0.5 x -30 4 150 0.05 60 0.4 -20\n");
  return path;
}

void WriteSettingsFile(const QString& text) {
  QFile file(mainwin::SettingsFilePath());
  if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write the settings file");
  file.write(text.toUtf8());
}

QString ReadSettingsFile() {
  QFile file(mainwin::SettingsFilePath());
  if (!file.open(QIODevice::ReadOnly)) return QString();
  return QString::fromUtf8(file.readAll());
}

void ResetProgramState() {
  numerics::DataSets() = numerics::DataSetStore{};
  QFile::remove(mainwin::SettingsFilePath());
  QSettings().clear();
}

MessageLog::MessageLog() : interception_([this](const QString& text) { messages_.append(text); }) {}

}  // namespace mainwin_test
