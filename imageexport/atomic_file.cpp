#include "atomic_file.h"

#include <cerrno>
#include <cstring>

namespace imageexport {
namespace {

std::string PathOf(const QSaveFile& file) { return file.fileName().toStdString(); }

}  // namespace

std::string FailureReason(const QFileDevice& file, int systemError) {
  return systemError != 0 ? std::strerror(systemError) : file.errorString().toStdString();
}

std::string CannotWriteMessage(const std::string& path, const std::string& reason) {
  return "Cannot write the picture \"" + path + "\": " + reason +
         ". Check that the folder exists and that you may write to it.";
}

ExportResult OpenSaveFile(QSaveFile& file) {
  if (file.open(QIODevice::WriteOnly)) return {};
  return {CannotWriteMessage(PathOf(file), file.errorString().toStdString())};
}

ExportResult CommitSaveFile(QSaveFile& file) {
  errno = 0;
  if (file.commit()) return {};
  return {CannotWriteMessage(PathOf(file), FailureReason(file, errno))};
}

ExportResult WriteFileAtomically(const std::string& path, std::span<const unsigned char> bytes) {
  QSaveFile file(QString::fromStdString(path));
  if (ExportResult opened = OpenSaveFile(file); !opened.Ok()) return opened;
  const auto size = static_cast<qint64>(bytes.size());
  errno = 0;
  if (file.write(reinterpret_cast<const char*>(bytes.data()), size) != size) {
    const ExportResult failed{CannotWriteMessage(path, FailureReason(file, errno))};
    file.cancelWriting();
    return failed;
  }
  return CommitSaveFile(file);
}

}  // namespace imageexport
