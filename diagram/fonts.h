#pragma once

#include <QFont>

#include "canvas.h"

// The fonts the diagrams ask for by their historic names, mapped to fonts a Debian desktop has.
namespace diagram {

inline constexpr const char* kDiagramFontName = "MS Sans Serif";
inline constexpr const char* kSubstituteFontName = "DejaVu Sans";

// Makes "MS Sans Serif" resolve to DejaVu Sans; safe to call any number of times.
void InstallFontSubstitutions();

QFont MakeQFont(const DiagramFont& font);

}  // namespace diagram
