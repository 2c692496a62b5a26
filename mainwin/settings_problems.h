#pragma once

#include <QString>

class QSettings;

// What the user is told when the settings file or the per-user store of the recent files cannot
// be read or written: the reason as the system gives it ("Is a directory", "Not a directory").
namespace mainwin {

// Why path cannot be read, or written in its folder; empty when nothing stands in the way.
QString ReadProblem(const QString& path);
QString WriteProblem(const QString& path);

// netrix.ini exists but cannot be read: writing it would replace what it holds, so it is left.
QString IniNotSavedMessage(const QString& path, const QString& reason);
QString IniSaveFailedMessage(const QString& path, const QString& reason);

// The store of the recent files and the window's place, after reading it (empty when it was read)
// and after writing it (empty when it was written).
QString StoreReadMessage(const QSettings& settings);
QString StoreWriteMessage(QSettings& settings);

}  // namespace mainwin
