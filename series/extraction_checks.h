#pragma once

#include <cstddef>
#include <optional>
#include <span>

// How far the figures extracted at the analysis frequency fo can be trusted. fT = f |h21| and
// fmax = f sqrt(G) extrapolate |h21| and the gain G to unity at -20 dB per decade; that holds only
// where the curves do fall at that rate: not below the beta corner, not where parasitics bend
// them near the top of the sweep, and not for MSG (k < 1), which falls at about 10 dB per decade.
namespace series {

// Slopes in dB per decade: 20 log10 |h21| and 10 log10 G against log10 f.
inline constexpr double kExpectedSlope = -20;
inline constexpr double kSlopeTolerance = 3;
// Largest relative distance between the spot value and the frequency where the curve crosses 1.
inline constexpr double kCrossingTolerance = 0.10;

// What the checks take from one frequency point of a file.
struct SweepPoint {
  double f = 0;     // Hz
  double h21 = 0;   // |h21|
  double gain = 0;  // the power gain fmax is taken from: MAG/MSG, or Mason's U
  double k = 0;
};

// The check of fT (on |h21|) or of fmax (on its gain).
struct FigureCheck {
  std::optional<double> slope;     // dB per decade at the analysis point; none with a single point
  std::optional<double> crossing;  // Hz where the sweep falls through 1; none where it does not reach it
  bool slopeOff = false;           // the slope lies outside -20 +- 3 dB per decade
  bool crossingOff = false;        // the spot value and the crossing differ by more than 10 %
};

struct ExtractionCheck {
  bool made = false;  // false when no point lies at or below fo, so that nothing was extracted
  double k = 0;       // at the analysis point
  bool fmaxFromU = false;    // fmax comes from Mason's U, else from MAG/MSG
  bool fmaxFromMsg = false;  // fmax comes from MSG: the best gain at a point with k < 1
  FigureCheck fT;
  FigureCheck fmax;

  bool FtFlagged() const { return fT.slopeOff || fT.crossingOff; }
  bool FmaxFlagged() const { return fmaxFromMsg || fmax.slopeOff || fmax.crossingOff; }
};

// The checks of the values taken from sweep[analysis]; sweep holds every point of the file in
// file order, fT and fmax are the spot values the evaluation extracted there.
ExtractionCheck CheckExtraction(std::span<const SweepPoint> sweep, std::size_t analysis, bool fmaxFromU, double fT,
                                double fmax);

}  // namespace series
