#include "fonts.h"

#include <QString>
#include <mutex>

namespace diagram {

void InstallFontSubstitutions() {
  static std::once_flag installed;
  std::call_once(installed, [] { QFont::insertSubstitution(kDiagramFontName, kSubstituteFontName); });
}

QFont MakeQFont(const DiagramFont& font) {
  QFont made(QString::fromStdString(font.name));
  made.setPointSize(font.pointSize);
  made.setBold(font.bold);
  return made;
}

}  // namespace diagram
