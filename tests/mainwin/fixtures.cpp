#include "fixtures.h"

#include <QPrinter>
#include <QRegularExpression>

#include "mainwin/settings_file.h"
#include "numerics/data_set.h"

namespace mainwin_test {

namespace {

QString WriteFixture(const QString& path, const QString& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) qFatal("cannot write %s", qPrintable(path));
  return path;
}

}  // namespace

QString WriteTextFile(const QTemporaryDir& dir, const QString& name, const QString& text) {
  return WriteFixture(dir.filePath(name), text);
}

QString WriteTwoPortFile(const QTemporaryDir& dir, const QString& name, int points) {
  QString text = "Test device " + name + "\r\n";
  for (int i = 1; i <= points; ++i) text += QString::number(i * 100) + "M 0.5 -30 4.0 150 0.05 60 0.4 -20\r\n";
  return WriteTextFile(dir, name, text);
}

QString WriteSeriesFile(const QTemporaryDir& dir, const QString& name, const QString& comment) {
  QString text = "! Bias point " + name + "\n" + comment + "\n# MHz S MA R 50\n";
  for (int f = 500; f <= 4000; f += 500) text += QString::number(f) + " 0.3 -30 2 150 0.01 60 0.3 -20\n";
  return WriteTextFile(dir, name, text);
}

void WriteSettingsFile(const QString& text) { WriteFixture(mainwin::SettingsFilePath(), text); }

QString ReadSettingsFile() {
  QFile file(mainwin::SettingsFilePath());
  if (!file.open(QIODevice::ReadOnly)) return QString();
  return QString::fromUtf8(file.readAll());
}

// A test may have made either settings file a folder.
void ResetProgramState() {
  numerics::DataSets() = numerics::DataSetStore{};
  for (const QString& path : {mainwin::SettingsFilePath(), QSettings().fileName()}) {
    QDir(path).removeRecursively();
    QFile::remove(path);
  }
  QSettings().clear();
}

MessageLog::MessageLog() : interception_([this](const QString& text) { messages_.append(text); }) {}

QuestionLog::QuestionLog(bool answer)
    : interception_([this, answer](const QString& text) {
        questions_.append(text);
        return answer;
      }) {}

DialogAnswers::DialogAnswers(const QString& savePath, const QString& pdfPath)
    : interception_(
          [this, savePath](const controls::SaveDialogSetup& setup) {
            saveTitles_.append(setup.title);
            return savePath;
          },
          [this, pdfPath](controls::PrinterDialog dialog, QPrinter& printer) {
            if (dialog == controls::PrinterDialog::Print) ++printDialogs_;
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(pdfPath);
            return !pdfPath.isEmpty();
          }) {}

int PdfPageCount(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return -1;
  return static_cast<int>(QString::fromLatin1(file.readAll()).count(QRegularExpression("/Type\\s*/Page\\b")));
}

}  // namespace mainwin_test
