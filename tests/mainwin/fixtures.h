#pragma once

// The controls and files the window tests work with.
#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <memory>

#include "controls/dialog_hooks.h"
#include "mainwin/form_set.h"
#include "mainwin/main_window.h"
#include "controls/message_box.h"

// Small data files made for the tests, the window under test, and the messages it would have shown.
namespace mainwin_test {

// Forgets the data sets, netrix.ini and the per-user settings of the previous test case.
void ResetProgramState();

// Writes a two-port file with the given number of points (100 MHz apart, from 100 MHz).
QString WriteTwoPortFile(const QTemporaryDir& dir, const QString& name, int points);

// The window of a test case and its controls; Reset() belongs in each test class's init().
class WindowSession {
 protected:
  void Reset() {
    forms_.reset();
    ResetProgramState();
  }
  void Start(const QStringList& arguments = {}) { forms_ = std::make_unique<mainwin::FormSet>(arguments); }
  mainwin::TSDIAppForm& Window() { return *forms_->SDIAppForm(); }
  // A missing control ends the test run.
  template <typename T>
  T* Find(const char* name) {
    T* found = Window().findChild<T*>(name);
    if (!found) qFatal("no control %s", name);
    return found;
  }
  void ShowTab(int tab) { Find<QTabBar>("TabSet1")->setCurrentIndex(tab); }
  QString File(int i, int points = 5) { return WriteTwoPortFile(dir_, QStringLiteral("p%1.s2p").arg(i), points); }

  QTemporaryDir dir_;
  std::unique_ptr<mainwin::FormSet> forms_;
};

QString WriteTextFile(const QTemporaryDir& dir, const QString& name, const QString& text);
// A bias-series file: a comment line such as "! Ic=2m" (empty for none), "# MHz S MA R 50" and
// points from 500 MHz to 4 GHz of a device with k far above 1 at every point (its limit is 500 MHz).
QString WriteSeriesFile(const QTemporaryDir& dir, const QString& name, const QString& comment);
// Writes netrix.ini in the test's configuration folder.
void WriteSettingsFile(const QString& text);
QString ReadSettingsFile();

// Collects every message instead of showing a box.
class MessageLog {
 public:
  MessageLog();
  const QStringList& Messages() const { return messages_; }

 private:
  QStringList messages_;
  controls::MessageInterception interception_;
};

// Answers every Yes/No question with the same answer and keeps the questions.
class QuestionLog {
 public:
  explicit QuestionLog(bool answer);
  const QStringList& Questions() const { return questions_; }

 private:
  QStringList questions_;
  controls::QuestionInterception interception_;
};

// Answers the save dialogs with one path (empty: cancelled) and the print dialogs by printing to
// a PDF file; keeps the titles of the save dialogs it was shown.
class DialogAnswers {
 public:
  DialogAnswers(const QString& savePath, const QString& pdfPath);
  const QStringList& SaveTitles() const { return saveTitles_; }
  int PrintDialogs() const { return printDialogs_; }

 private:
  QStringList saveTitles_;
  int printDialogs_ = 0;
  controls::DialogInterception interception_;
};

// The number of pages of a PDF file that QPrinter wrote; -1 when the file is missing.
int PdfPageCount(const QString& path);

template <typename TestClass>
int RunTests(int argc, char** argv) {
  TestClass test;
  return QTest::qExec(&test, argc, argv);
}

}  // namespace mainwin_test
