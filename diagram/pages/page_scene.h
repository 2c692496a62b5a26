#pragma once

#include "series/series_arrays.h"
#include "series/series_settings.h"

// Everything an output page draws from: the results of a series evaluation and the choices of
// the series page and the "&Graphic" menu at the time the page is drawn.
namespace diagram::pages {

enum class OutputPage { FtFmax, KMag, StabilityLimit };

// The four check items of the "&Graphic" menu; at most one of each pair is set.
struct GraphicChoice {
  bool fTOnly = false;
  bool fmaxOnly = false;
  bool magMsgOnly = false;
  bool kOnly = false;
};

struct PageScene {
  series::SeriesArrays results;     // one entry per file of the series, in list order
  series::SeriesSettings settings;  // the x-axis choice, the density switch and the area
  bool connect = false;     // join consecutive points with lines
  GraphicChoice choice;
};

}  // namespace diagram::pages
