#include "series_evaluation.h"

#include <cmath>
#include <optional>

#include "numerics/reader_core.h"
#include "numerics/real_functions.h"
#include "numerics/text_cursor.h"
#include "numerics/touchstone_reader.h"
#include "extraction_checks.h"
#include "point_figures.h"
#include "series_file.h"
#include "series_line_reader.h"
#include "series_messages.h"

namespace series {
namespace {

// Below this a stability limit counts as not yet found.
constexpr double kNoLimit = 1e-6;

// A record the file ends in: ReadReal gives 0 at the end of the file, which must not be taken
// for a measured number.
bool EndedBeforeNumber(const numerics::TextCursor& in, std::size_t before) {
  return in.AtEndOfFile() &&
         in.Slice(before, in.Position()).find_first_not_of(" \t\r\n") == std::string_view::npos;
}

// The pairs follow in the file order S11, S21, S12, S22 as magnitude and angle in degrees.
void ReadPointParameters(numerics::TextCursor& in, std::string_view content, const std::string& path,
                         numerics::TwoPortState& st) {
  const std::size_t recordAt = in.Position();
  double numbers[8];
  for (double& number : numbers) {
    const std::size_t before = in.Position();
    number = numerics::ReadNumberOrFail(in, path, numerics::kPlainLineContent);
    if (EndedBeforeNumber(in, before)) {
      numerics::FailAtLine(path, numerics::LineNumberAt(content, recordAt),
                           std::string("the file ends within this record. ") + numerics::kPlainLineContent);
    }
  }
  numerics::ComplexValue* parameters[] = {&st.s.m11, &st.s.m21, &st.s.m12, &st.s.m22};
  for (int i = 0; i < 4; ++i) *parameters[i] = numerics::MakePolar(numbers[2 * i], numbers[2 * i + 1]);
}

// The figures of the last point at or below fo, with its guarded S-parameters and its place in
// the sweep.
struct AnalysisPoint {
  double f = 0;
  numerics::Matrix2 s;
  PointFigures figures;
  std::size_t index = 0;
};

// The gains are extrapolated to unity with -20 dB per decade. Every point at or below fo would
// overwrite these values, so they are taken once, from the last such point; its current gain
// is computed only then, from the same guarded S-parameters.
void TakeAnalysisValues(const AnalysisPoint& point, numerics::TwoPortState& st, bool fmaxFromU, FileFigures& out) {
  st.s = point.s;
  const CurrentGain current = ComputeCurrentGain(st);
  const PointFigures& p = point.figures;
  const double gain = fmaxFromU ? p.u : p.bestGain;
  out.fT = current.h21 * point.f;
  out.fmax = std::sqrt(std::fabs(gain)) * point.f;
  out.magDb = 10 * numerics::Log10(p.bestGain);
  out.s21 = current.s21;
  out.k = p.k;
}

// The limit ends as the first frequency of the last unbroken run with k >= 1 that reaches the
// file's last point.
void TrackStabilityLimit(double k, double f, double& fk) {
  if (k >= 1.0 && std::fabs(fk) < kNoLimit) fk = f;
  if (k < 1.0 && std::fabs(fk) > kNoLimit) fk = 0;
}

// The current gain is taken after the analysis point has kept its S-parameters, as the
// conversion may guard them once more.
void TakePoint(numerics::TwoPortState& st, double f, const SeriesSettings& settings,
               std::optional<AnalysisPoint>& analysis, std::vector<SweepPoint>& sweep, FileFigures& out) {
  if (settings.withLgnd) InsertGroundInductance(st, f, settings.lgnd);
  const PointFigures p = ComputePointFigures(st);
  if (f <= settings.fo) analysis = AnalysisPoint{f, st.s, p, sweep.size()};
  TrackStabilityLimit(p.k, f, out.fk);
  sweep.push_back({f, ComputeCurrentGain(st).h21, settings.fmaxFromU ? p.u : p.bestGain, p.k});
}

void TakeAnalysis(const std::optional<AnalysisPoint>& analysis, const std::vector<SweepPoint>& sweep,
                  numerics::TwoPortState& st, const SeriesSettings& settings, FileFigures& out) {
  if (!analysis) return;
  TakeAnalysisValues(*analysis, st, settings.fmaxFromU, out);
  out.check = CheckExtraction(sweep, analysis->index, settings.fmaxFromU, out.fT, out.fmax);
}

void TakeComment(std::string_view comment, const SeriesSettings& settings, FileFigures& out) {
  if (settings.xAxis != XAxisChoice::CurrentIc) return;
  if (const std::optional<double> current = BiasCurrentFromComment(comment)) out.current = *current;
}

// Every line to the end of the file: the lines of a noise block are read as points too.
FileFigures ScanSeriesText(std::string_view content, const std::string& path, const SeriesSettings& settings) {
  numerics::TextCursor in(content);
  numerics::TwoPortState st;
  st.z0 = settings.z0;
  FileFigures out;
  std::optional<AnalysisPoint> analysis;
  std::vector<SweepPoint> sweep;
  for (SeriesLine line = ReadSeriesLine(in); line.kind != SeriesLineKind::EndOfFile; line = ReadSeriesLine(in)) {
    if (line.kind == SeriesLineKind::Comment) TakeComment(line.comment, settings, out);
    if (line.kind != SeriesLineKind::Data) continue;
    ReadPointParameters(in, content, path, st);
    in.SkipLine();
    TakePoint(st, line.frequency * settings.multiplier, settings, analysis, sweep, out);
  }
  TakeAnalysis(analysis, sweep, st, settings, out);
  return out;
}

// Hz per unit of the file's frequency column: the option line's unit with the automatic
// multiplier, where the file has one.
double FrequencyMultiplier(const numerics::TouchstoneData& data, const std::string& path,
                           const SeriesSettings& settings, numerics::ReadNotes& notes) {
  if (!settings.automaticMultiplier) return settings.multiplier;
  if (data.hasOptionLine) return data.frequencyUnit;
  notes.push_back(NoOptionLineMessage(path, settings.multiplier));
  return settings.multiplier;
}

FileFigures ScanTouchstoneText(std::string_view content, const std::string& path, const SeriesSettings& settings,
                               numerics::ReadNotes& notes) {
  const numerics::TouchstoneData data = numerics::ReadTouchstone(content, path);
  numerics::TwoPortState st;
  st.z0 = settings.z0;
  FileFigures out;
  std::optional<AnalysisPoint> analysis;
  std::vector<SweepPoint> sweep;
  sweep.reserve(data.frequency.size());
  for (const std::string& comment : data.comments) TakeComment(comment, settings, out);
  const double multiplier = FrequencyMultiplier(data, path, settings, notes);
  for (std::size_t i = 0; i < data.frequency.size(); ++i) {
    numerics::CopyPointToState(numerics::TouchstoneScattering(data, i, settings.z0, path), st);
    TakePoint(st, data.frequency[i] * multiplier, settings, analysis, sweep, out);
  }
  TakeAnalysis(analysis, sweep, st, settings, out);
  return out;
}

FileEvaluation EvaluateSeriesFile(const std::string& path, const SeriesSettings& settings) {
  std::string error;
  const std::optional<std::string> content = ReadSeriesFile(path, error);
  if (!content) return {{}, error, {}};
  return EvaluateSeriesText(*content, path, settings);
}

}  // namespace

FileEvaluation EvaluateSeriesText(std::string_view content, const std::string& path, const SeriesSettings& settings) {
  FileEvaluation file;
  try {
    file.figures = settings.reading == numerics::FileReading::Touchstone
                       ? ScanTouchstoneText(content, path, settings, file.notes)
                       : ScanSeriesText(content, path, settings);
  } catch (const numerics::ReadFailure& failure) {
    file.error = failure.message;
    if (settings.reading == numerics::FileReading::Plain && numerics::HasTouchstoneLines(content)) {
      file.error += std::string(" ") + numerics::kTouchstoneSwitchHint;
    }
  }
  if (const std::optional<std::string> shape = numerics::TextShapeNote(content, path)) {
    if (file.error.empty()) {
      file.notes.insert(file.notes.begin(), *shape);
    } else {
      file.error += " " + *shape;
    }
  }
  return file;
}

SeriesEvaluation EvaluateSeries(const SeriesList& list, const SeriesSettings& settings, SeriesArrays& arrays) {
  SeriesEvaluation result;
  if (list.SeriesCount() == 0) {
    result.messages.emplace_back(kEmptySeriesMessage);
    return result;
  }
  SeriesArrays fresh;
  fresh.reserve(list.SeriesCount());
  for (const std::string& path : list.Paths()) {
    FileEvaluation file = EvaluateSeriesFile(path, settings);
    if (!file.error.empty()) {
      result.messages.push_back(std::move(file.error));
      return result;
    }
    for (std::string& note : file.notes) result.messages.push_back(std::move(note));
    if (file.figures.current == 0) result.messages.push_back(NoCurrentMessage(path));
    fresh.push_back(file.figures);
  }
  arrays = std::move(fresh);
  result.completed = true;
  return result;
}

}  // namespace series
