#include "extraction_checks.h"

#include <cassert>
#include <cmath>

#include "numerics/real_functions.h"

namespace series {
namespace {

double H21Db(const SweepPoint& p) { return 20 * numerics::Log10(p.h21); }
double GainDb(const SweepPoint& p) { return 10 * numerics::Log10(p.gain); }

using Decibels = double (*)(const SweepPoint&);

// The slope at the analysis point is the difference over its two neighbours: the pair straddles
// fo (the next point already lies above it) and is centred on the point the spot value comes
// from. Wider spans would average over the very bends the check looks for. At either end of the
// sweep the one neighbour there is and the point itself serve.
std::optional<double> SlopeAt(std::span<const SweepPoint> sweep, std::size_t i, Decibels db) {
  const SweepPoint& below = sweep[i > 0 ? i - 1 : i];
  const SweepPoint& above = sweep[i + 1 < sweep.size() ? i + 1 : i];
  if (!(below.f > 0 && above.f > 0) || below.f == above.f) return std::nullopt;
  return (db(above) - db(below)) / std::log10(above.f / below.f);
}

// The first fall through 0 dB between neighbours of rising frequency, interpolated linearly in
// dB against log f.
std::optional<double> CrossingOf(std::span<const SweepPoint> sweep, Decibels db) {
  for (std::size_t i = 0; i + 1 < sweep.size(); ++i) {
    const SweepPoint& a = sweep[i];
    const SweepPoint& b = sweep[i + 1];
    const double da = db(a), dbB = db(b);
    if (a.f > 0 && b.f > a.f && da > 0 && dbB <= 0) return a.f * std::pow(b.f / a.f, da / (da - dbB));
  }
  return std::nullopt;
}

FigureCheck CheckFigure(std::span<const SweepPoint> sweep, std::size_t analysis, Decibels db, double spot) {
  FigureCheck check;
  check.slope = SlopeAt(sweep, analysis, db);
  check.crossing = CrossingOf(sweep, db);
  // A NaN slope counts as outside the band.
  check.slopeOff = check.slope && !(std::fabs(*check.slope - kExpectedSlope) <= kSlopeTolerance);
  check.crossingOff = check.crossing && !(std::fabs(spot / *check.crossing - 1) <= kCrossingTolerance);
  return check;
}

}  // namespace

ExtractionCheck CheckExtraction(std::span<const SweepPoint> sweep, std::size_t analysis, bool fmaxFromU, double fT,
                                double fmax) {
  assert(analysis < sweep.size());
  ExtractionCheck check;
  check.made = true;
  check.k = sweep[analysis].k;
  check.fmaxFromU = fmaxFromU;
  check.fmaxFromMsg = !fmaxFromU && check.k < 1;
  check.fT = CheckFigure(sweep, analysis, H21Db, fT);
  check.fmax = CheckFigure(sweep, analysis, GainDb, fmax);
  return check;
}

}  // namespace series
