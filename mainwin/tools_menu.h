#pragma once

#include <QString>

// The desktop programs of the tools menu, and the help and mail hand-offs.
namespace mainwin {

// Whether a program was started and, when none was, what was tried, for the message that says so.
struct ProgramStart {
  bool started = false;
  QString tried;
};

bool StartProgram(const QString& program);
ProgramStart StartCalculator();
ProgramStart StartFileManager();
ProgramStart StartTwoPortCalculations();
ProgramStart StartClipboardViewer();
// Opens the file in the desktop's text editor; an empty name starts the editor alone.
ProgramStart StartTextEditor(const QString& fileName);
// The manual "vortop.hlp", else "vorto.hlp", beside the program or in the working folder.
bool OpenHelpFile();
ProgramStart OpenMailToAuthor();

}  // namespace mainwin
