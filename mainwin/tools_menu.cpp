#include "tools_menu.h"

#include <QCoreApplication>
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

bool StartFirstFound(const QStringList& programs, const QStringList& arguments) {
  for (const QString& program : programs) {
    const QString path = QStandardPaths::findExecutable(program);
    if (!path.isEmpty()) return QProcess::startDetached(path, arguments);
  }
  return false;
}

}  // namespace

bool StartProgram(const QString& program) { return QProcess::startDetached(program, {}); }

bool StartCalculator() { return StartFirstFound(kCalculators, {}); }

bool StartFileManager() { return QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::homePath())); }

bool StartTwoPortCalculations() {
  const QString beside = QDir(QCoreApplication::applicationDirPath()).filePath("vierpol");
  if (QFileInfo(beside).isExecutable()) return StartProgram(beside);
  return StartFirstFound({"vierpol"}, {});
}

bool StartClipboardViewer() { return StartFirstFound(kClipboardViewers, {}); }

bool StartTextEditor(const QString& fileName) {
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

bool OpenMailToAuthor() {
  return QDesktopServices::openUrl(QUrl(QStringLiteral("mailto:author@example.org?subject=S-Parameter%20Analysis")));
}

}  // namespace mainwin
