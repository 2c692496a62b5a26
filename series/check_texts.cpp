#include "check_texts.h"

#include <vector>

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace series {
namespace {

struct FigureWords {
  const char* figure;  // "fT" or "fmax"
  const char* curve;   // what the figure is extrapolated from
  const FigureCheck& check;
  double spot;
};

FigureWords WordsOf(const FileFigures& file, CheckedFigure figure) {
  if (figure == CheckedFigure::FT) return {"fT", "|h21|", file.check.fT, file.fT};
  return {"fmax", file.check.fmaxFromU ? "U" : "MAG/MSG", file.check.fmax, file.fmax};
}

std::string Hertz(double f) { return numerics::TrimLeftText(numerics::FormatPrefixed(2, f)) + "Hz"; }

std::string Joined(const std::vector<std::string>& parts, const char* separator) {
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : separator) + part;
  return text;
}

std::vector<std::string> Reasons(const FileFigures& file, CheckedFigure figure) {
  const FigureWords w = WordsOf(file, figure);
  std::vector<std::string> reasons;
  if (figure == CheckedFigure::Fmax && file.check.fmaxFromMsg) reasons.push_back("- taken from MSG (k < 1)");
  if (w.check.slopeOff) reasons.push_back("- " + std::string(w.curve) + " does not fall at 20 ± 3 dB per decade");
  if (w.check.crossingOff) reasons.push_back("- more than 10 % from where " + std::string(w.curve) + " crosses 1");
  return reasons;
}

std::string SlopeLine(const FigureWords& w) {
  const std::string value = w.check.slope ? numerics::FloatTextTrimmed(1, *w.check.slope) + " dB per decade"
                                          : "not known (the file has one point)";
  return "Slope of " + std::string(w.curve) + " at fo: " + value;
}

std::string CrossingLine(const FigureWords& w) {
  if (!w.check.crossing) return std::string(w.curve) + " does not fall through 1 in the sweep";
  return std::string(w.curve) + " = 1 at " + Hertz(*w.check.crossing) + " (" + w.figure + " at fo: " +
         Hertz(w.spot) + ")";
}

std::string Flags(const FileFigures& file) {
  std::vector<std::string> flags;
  const ExtractionCheck& c = file.check;
  if (c.fT.slopeOff) flags.emplace_back("fT:slope");
  if (c.fT.crossingOff) flags.emplace_back("fT:crossing");
  if (c.fmaxFromMsg) flags.emplace_back("fmax:MSG");
  if (c.fmax.slopeOff) flags.emplace_back("fmax:slope");
  if (c.fmax.crossingOff) flags.emplace_back("fmax:crossing");
  return flags.empty() ? "none" : Joined(flags, ",");
}

std::string SlopeField(const std::optional<double>& slope) {
  return slope ? numerics::FloatTextTrimmed(2, *slope) + "dB/decade" : "-";
}

std::string CrossingField(const std::optional<double>& crossing) { return crossing ? Hertz(*crossing) : "-"; }

}  // namespace

bool IsFlagged(const ExtractionCheck& check, CheckedFigure figure) {
  return figure == CheckedFigure::FT ? check.FtFlagged() : check.FmaxFlagged();
}

std::string CheckTipText(const FileFigures& file, CheckedFigure figure) {
  const FigureWords w = WordsOf(file, figure);
  if (!file.check.made) return std::string("No point at or below fo: no ") + w.figure + " to check";
  const std::vector<std::string> reasons = Reasons(file, figure);
  const std::string verdict = reasons.empty() ? std::string(w.figure) + " passes the checks at fo"
                                              : std::string(w.figure) + " doubtful at fo:\n" + Joined(reasons, "\n");
  return Joined({verdict, SlopeLine(w), CrossingLine(w), "k at fo: " + numerics::FloatTextTrimmed(3, file.check.k)},
                "\n");
}

std::string CheckLineText(const std::string& path, const FileFigures& file) {
  const ExtractionCheck& c = file.check;
  if (!c.made) return path + " no point at or below fo, nothing to check";
  return path + " h21_slope=" + SlopeField(c.fT.slope) + " gain_slope=" + SlopeField(c.fmax.slope) +
         " k=" + numerics::FloatTextTrimmed(4, c.k) + " fT_crossing=" + CrossingField(c.fT.crossing) +
         " fmax_crossing=" + CrossingField(c.fmax.crossing) + " flags=" + Flags(file);
}

}  // namespace series
