#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "mainwin/message_box.h"

// Small data files made for the tests, and the messages the window would have shown.
namespace mainwin_test {

// Writes a two-port file with the given number of points (100 MHz apart, from 100 MHz).
QString WriteTwoPortFile(const QTemporaryDir& dir, const QString& name, int points);
// A file whose second data line holds a letter where a number must be.
QString WriteBrokenFile(const QTemporaryDir& dir, const QString& name);
// Writes netrix.ini in the test's configuration folder.
void WriteSettingsFile(const QString& text);
QString ReadSettingsFile();
// Forgets the data sets, netrix.ini and the per-user settings of the previous test case.
void ResetProgramState();

// Collects every message instead of showing a box.
class MessageLog {
 public:
  MessageLog();
  const QStringList& Messages() const { return messages_; }

 private:
  QStringList messages_;
  mainwin::MessageInterception interception_;
};

}  // namespace mainwin_test
