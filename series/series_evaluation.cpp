#include "series_evaluation.h"

#include <cmath>
#include <optional>

#include "numerics/extended.h"
#include "numerics/reader_core.h"
#include "numerics/real_functions.h"
#include "numerics/text_cursor.h"
#include "numerics/touchstone_reader.h"
#include "point_figures.h"
#include "series_file.h"
#include "series_line_reader.h"
#include "series_messages.h"

namespace series {
namespace {

// Below this a stability limit counts as not yet found.
constexpr double kNoLimit = 1e-6;

// The pairs follow in the file order S11, S21, S12, S22 as magnitude and angle in degrees.
void ReadPointParameters(numerics::TextCursor& in, const std::string& path, numerics::TwoPortState& st) {
  for (numerics::ComplexValue* z : {&st.s.m11, &st.s.m21, &st.s.m12, &st.s.m22}) {
    const double magnitude = numerics::ReadNumberOrFail(in, path, numerics::kPlainLineContent);
    *z = numerics::MakePolar(magnitude, numerics::ReadNumberOrFail(in, path, numerics::kPlainLineContent));
  }
}

// The figures of the last point at or below fo, with its guarded S-parameters.
struct AnalysisPoint {
  double f = 0;
  numerics::Matrix2 s;
  PointFigures figures;
};

// The limit ends as the first frequency of the last unbroken run with k >= 1 that reaches the
// file's last point.
void TrackStabilityLimit(double k, double f, double& fk) {
  if (k >= 1.0 && std::fabs(fk) < kNoLimit) fk = f;
  if (k < 1.0 && std::fabs(fk) > kNoLimit) fk = 0;
}

// One file's points in file order, and the figures they leave.
class FileScan {
 public:
  explicit FileScan(const SeriesSettings& settings) : settings_(settings) { st_.z0 = settings.z0; }

  // The S-parameters of the next point go here before TakePoint.
  numerics::TwoPortState& State() { return st_; }

  void TakeComment(std::string_view comment) {
    if (settings_.xAxis != XAxisChoice::CurrentIc) return;
    if (const std::optional<double> current = BiasCurrentFromComment(comment)) out_.current = *current;
  }

  void TakePoint(double f) {
    if (settings_.withLgnd) InsertGroundInductance(st_, f, settings_.lgnd);
    const PointFigures p = ComputePointFigures(st_);
    if (f <= settings_.fo) analysis_ = AnalysisPoint{f, st_.s, p};
    TrackStabilityLimit(p.k, f, out_.fk);
  }

  FileFigures Finish() {
    if (analysis_) TakeAnalysisValues(*analysis_);
    return out_;
  }

 private:
  // The gains are extrapolated to unity with -20 dB per decade. Every point at or below fo would
  // overwrite these values, so they are taken once, from the last such point; its current gain
  // is computed only then, from the same guarded S-parameters.
  void TakeAnalysisValues(const AnalysisPoint& point) {
    st_.s = point.s;
    const CurrentGain current = ComputeCurrentGain(st_);
    const PointFigures& p = point.figures;
    const numerics::Extended gain = settings_.fmaxFromU ? p.u : p.bestGain;
    out_.fT = static_cast<double>(numerics::Extended{current.h21} * point.f);
    out_.fmax = static_cast<double>(std::sqrt(std::fabs(gain)) * point.f);
    out_.magDb = 10 * numerics::Log10(p.bestGain);
    out_.s21 = current.s21;
    out_.k = p.k;
  }

  const SeriesSettings& settings_;
  numerics::TwoPortState st_;
  FileFigures out_;
  std::optional<AnalysisPoint> analysis_;
};

// Every line to the end of the file: a noise block's lines are read as points too, as this
// reading always has.
FileFigures ScanPlainText(std::string_view content, const std::string& path, const SeriesSettings& settings) {
  numerics::TextCursor in(content);
  FileScan scan(settings);
  for (SeriesLine line = ReadSeriesLine(in); line.kind != SeriesLineKind::EndOfFile; line = ReadSeriesLine(in)) {
    if (line.kind == SeriesLineKind::Comment) scan.TakeComment(line.comment);
    if (line.kind != SeriesLineKind::Data) continue;
    ReadPointParameters(in, path, scan.State());
    in.SkipLine();
    scan.TakePoint(line.frequency * settings.multiplier);
  }
  return scan.Finish();
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
  FileScan scan(settings);
  for (const std::string& comment : data.comments) scan.TakeComment(comment);
  const double multiplier = FrequencyMultiplier(data, path, settings, notes);
  for (std::size_t i = 0; i < data.frequency.size(); ++i) {
    numerics::CopyPointToState(numerics::TouchstoneScattering(data, i, settings.z0, path), scan.State());
    scan.TakePoint(data.frequency[i] * multiplier);
  }
  return scan.Finish();
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
                       : ScanPlainText(content, path, settings);
  } catch (const numerics::ReadFailure& failure) {
    file.error = failure.message;
    if (settings.reading == numerics::FileReading::Plain && numerics::HasTouchstoneLines(content)) {
      file.error += std::string(" ") + numerics::kTouchstoneSwitchHint;
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
