#pragma once

#include <string>

#include "numerics/file_reader.h"

// What the evaluation of a bias series is asked for: the entries of the series page.
namespace series {

// The x-axis choice of the series page. The bias current is read from the files' comment
// lines only with CurrentIc.
enum class XAxisChoice { CurrentIc, CurrentId, FileNumber };

// Frequency multipliers of the page's radio buttons: the files' frequency column is in Hz,
// MHz or GHz, the same for every file of a series.
inline constexpr double kMultiplierHz = 1;
inline constexpr double kMultiplierMHz = 1e6;
inline constexpr double kMultiplierGHz = 1e9;

// The page's entries as the user first sees them; numbers are read from these texts.
inline constexpr const char* kDefaultFoText = "  2.0G";
inline constexpr const char* kDefaultLgndText = "  100p";
inline constexpr const char* kDefaultAreaText = "  1000";

struct SeriesSettings {
  double fo = 0;                        // analysis frequency in Hz
  double multiplier = kMultiplierMHz;   // Hz per unit of the files' frequency column
  numerics::FileReading reading = numerics::FileReading::Plain;
  bool automaticMultiplier = false;     // Touchstone reading: the unit of each file's option line
  double lgnd = 0;                      // ground inductance in H
  bool withLgnd = false;                // insert lgnd into the common lead
  bool fmaxFromU = false;               // fmax from Mason's U instead of the best gain
  XAxisChoice xAxis = XAxisChoice::CurrentIc;
  double area = 0;                      // transistor area in square micrometres
  bool density = false;                 // add the current density j to the outputs
  std::string comment;                  // the text after "Data derived by lioraira: "
  double z0 = 50;                       // reference impedance of the files, ohms
};

// The settings with fo, Lgnd and the area read from the page's default texts.
SeriesSettings DefaultSeriesSettings();

}  // namespace series
