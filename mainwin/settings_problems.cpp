#include "settings_problems.h"

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSettings>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace mainwin {
namespace {

QString ErrorText(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

bool IsFolder(const QByteArray& path) {
  struct stat status {};
  return stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Why no file can be made in the folder: it is missing, not a folder, or may not be written.
QString FolderProblem(const QByteArray& folder) {
  struct stat status {};
  if (stat(folder.constData(), &status) != 0) return ErrorText(errno);
  if (!S_ISDIR(status.st_mode)) return ErrorText(ENOTDIR);
  return access(folder.constData(), W_OK | X_OK) == 0 ? QString() : ErrorText(errno);
}

}  // namespace

QString ReadProblem(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  if (IsFolder(name)) return ErrorText(EISDIR);
  const int fd = open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (fd < 0) return ErrorText(errno);
  close(fd);
  return {};
}

QString WriteProblem(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  if (IsFolder(name)) return ErrorText(EISDIR);
  if (access(name.constData(), F_OK) == 0 && access(name.constData(), W_OK) != 0) return ErrorText(errno);
  return FolderProblem(QFile::encodeName(QFileInfo(path).absolutePath()));
}

QString IniNotSavedMessage(const QString& path, const QString& reason) {
  return QObject::tr("The settings were not saved: %1 cannot be read (%2), and saving would replace what it holds. "
                     "Move it out of the way to keep the settings next time!")
      .arg(path, reason);
}

QString IniSaveFailedMessage(const QString& path, const QString& reason) {
  return QObject::tr("The settings could not be saved to %1 (%2). Check that file and its folder to keep them next "
                     "time!")
      .arg(path, reason);
}

QString StoreReadMessage(const QSettings& settings) {
  if (settings.status() == QSettings::NoError) return {};
  const QString reason = settings.status() == QSettings::FormatError ? QObject::tr("its content is not understood")
                                                                      : ReadProblem(settings.fileName());
  return QObject::tr("The recent files and the window's place could not be read from %1 (%2); the program starts "
                     "without them.")
      .arg(settings.fileName(), reason);
}

// A store that could not be read at the start reports that error again; only a reason that
// stands in the way of writing is told here.
QString StoreWriteMessage(QSettings& settings) {
  settings.sync();
  if (settings.status() == QSettings::NoError) return {};
  const QString reason = WriteProblem(settings.fileName());
  if (reason.isEmpty()) return {};
  return QObject::tr("The recent files and the window's place could not be saved to %1 (%2). Check that file and "
                     "its folder to keep them next time!")
      .arg(settings.fileName(), reason);
}

}  // namespace mainwin
