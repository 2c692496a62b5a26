#include "fonts.h"

#include <QString>
#include <mutex>

namespace diagram {

void InstallFontSubstitutions() {
  static std::once_flag installed;
  std::call_once(installed, [] { QFont::insertSubstitution(kDiagramFontName, kSubstituteFontName); });
}

QFont MakeQFont(const FontSpec& spec) {
  QFont font(QString::fromStdString(spec.name));
  font.setPointSize(spec.pointSize);
  font.setBold(spec.bold);
  return font;
}

}  // namespace diagram
