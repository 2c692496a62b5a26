#pragma once

#include <QString>

// The desktop programs of the tools menu, and the help and mail hand-offs. Each returns false when
// nothing could be started, so that the caller can beep or say so.
namespace mainwin {

bool StartProgram(const QString& program);
bool StartCalculator();
bool StartFileManager();
bool StartTwoPortCalculations();
bool StartClipboardViewer();
// Opens the file in the desktop's text editor; an empty name starts the editor alone.
bool StartTextEditor(const QString& fileName);
// The manual "vortop.hlp", else "vorto.hlp", beside the program or in the working folder.
bool OpenHelpFile();
bool OpenMailToAuthor();

}  // namespace mainwin
