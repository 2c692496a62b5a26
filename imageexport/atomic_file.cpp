#include "atomic_file.h"

namespace imageexport {
namespace {

std::string PathOf(const QSaveFile& file) { return file.fileName().toStdString(); }

}  // namespace

std::string CannotWriteMessage(const std::string& path, const std::string& reason) {
  return "Cannot write the picture \"" + path + "\": " + reason +
         ". Check that the folder exists and that you may write to it.";
}

ExportResult OpenSaveFile(QSaveFile& file) {
  if (file.open(QIODevice::WriteOnly)) return {};
  return {CannotWriteMessage(PathOf(file), file.errorString().toStdString())};
}

ExportResult CommitSaveFile(QSaveFile& file) {
  if (file.commit()) return {};
  return {CannotWriteMessage(PathOf(file), file.errorString().toStdString())};
}

ExportResult WriteFileAtomically(const std::string& path, std::span<const unsigned char> bytes) {
  QSaveFile file(QString::fromStdString(path));
  if (ExportResult opened = OpenSaveFile(file); !opened.Ok()) return opened;
  const auto size = static_cast<qint64>(bytes.size());
  if (file.write(reinterpret_cast<const char*>(bytes.data()), size) != size) {
    const ExportResult failed{CannotWriteMessage(path, file.errorString().toStdString())};
    file.cancelWriting();
    return failed;
  }
  return CommitSaveFile(file);
}

}  // namespace imageexport
