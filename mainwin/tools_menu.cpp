#include "tools_menu.h"

#include <QCoreApplication>
#include <QObject>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

namespace mainwin {
namespace {

// Desktops differ in which of these they ship; the first one found is started.
const QStringList kCalculators = {"gnome-calculator", "kcalc", "mate-calc", "galculator", "qalculate-gtk", "xcalc"};
const QStringList kTextEditors = {"gnome-text-editor", "gedit", "kate", "kwrite", "mousepad",
                                  "pluma", "xed", "featherpad", "leafpad"};
const QStringList kClipboardViewers = {"xclipboard", "diodon", "parcellite", "clipit"};

ProgramStart StartFirstFound(const QStringList& programs, const QStringList& arguments) {
  for (const QString& program : programs) {
    const QString path = QStandardPaths::findExecutable(program);
    if (!path.isEmpty() && QProcess::startDetached(path, arguments)) return {true, {}};
  }
  return {false, QObject::tr("none of %1 could be started").arg(programs.join(", "))};
}

// The desktop's opener for the address (xdg-open or the desktop's own).
ProgramStart OpenWithDesktop(const QUrl& address) {
  if (QDesktopServices::openUrl(address)) return {true, {}};
  return {false, QObject::tr("the desktop has no program that opens %1").arg(address.toString())};
}

}  // namespace

bool StartProgram(const QString& program) { return QProcess::startDetached(program, {}); }

ProgramStart StartCalculator() { return StartFirstFound(kCalculators, {}); }

ProgramStart StartFileManager() { return OpenWithDesktop(QUrl::fromLocalFile(QDir::homePath())); }

// The one beside the program first, then one on the search path.
ProgramStart StartTwoPortCalculations() {
  return StartFirstFound({QDir(QCoreApplication::applicationDirPath()).filePath("vierpol"), "vierpol"}, {});
}

ProgramStart StartClipboardViewer() { return StartFirstFound(kClipboardViewers, {}); }

ProgramStart StartTextEditor(const QString& fileName) {
  const QStringList arguments = fileName.isEmpty() ? QStringList() : QStringList{fileName};
  return StartFirstFound(kTextEditors, arguments);
}

bool OpenHelpFile() {
  const QStringList folders = {QCoreApplication::applicationDirPath(), QDir::currentPath()};
  for (const char* name : {"vortop.hlp", "vorto.hlp"}) {
    for (const QString& folder : folders) {
      const QString path = QDir(folder).filePath(QString::fromLatin1(name));
      if (QFileInfo::exists(path)) return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }
  }
  return false;
}

ProgramStart OpenMailToAuthor() {
  return OpenWithDesktop(QUrl(QStringLiteral("mailto:author@example.org?subject=S-Parameter%20Analysis")));
}

}  // namespace mainwin
