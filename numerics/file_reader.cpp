#include "file_reader.h"

#include <filesystem>
#include <memory>
#include <optional>

#include "prefixed_number.h"
#include "real_functions.h"
#include "sweep_angles.h"
#include "text_file.h"
#include "touchstone_data_set.h"

namespace numerics {
namespace {

constexpr double kPresetFrequency = 1e9;
constexpr double kLowestFrequency = 1e-9;
constexpr double kHighestFrequency = 1e15;

// File order S11, S21, S12, S22: the column index runs outside the row index.
void ReadPointParameters(TextCursor& in, const std::string& fileName, SParameters& point) {
  for (int column = 0; column < 2; ++column) {
    for (int row = 0; row < 2; ++row) {
      const double magnitude = ReadNumberOrFail(in, fileName, kPlainLineContent);
      const double angle = ReadNumberOrFail(in, fileName, kPlainLineContent);
      point.s[row][column] = MakePolar(magnitude, FoldOnce(angle));
    }
  }
}

// Tells why the read ended before the file did, unless the record it dropped holds no data or
// is the last line without a line break, whose point has always been dropped.
void NoteEarlyStop(std::string_view content, const std::string& fileName, std::size_t lastRecordAt, bool rising,
                   bool storeFull, ReadNotes& notes) {
  const std::size_t data = content.find_first_not_of(" \t\r\n", lastRecordAt);
  if (data == std::string_view::npos || !(storeFull || !rising)) return;
  const std::string why = rising ? "the store holds " + std::to_string(kMaxPoints) + " points"
                                 : std::string("the frequency does not rise");
  notes.push_back(StoppedAtLineNote(content, fileName, data, why));
}

// Fills set from the file content; returns the highest frequency read (the dropped record's
// included, as the frequency maximum has always counted it).
double ParseDataSet(std::string_view content, const std::string& fileName, TwoPortDataSet& set, ReadNotes& notes) {
  TextCursor in(content);
  set.title = in.ReadLine();
  double highest = 0;
  bool rising = true;
  std::size_t recordAt = 0;
  int n = 1;
  for (; !in.AtEndOfFile() && n <= kReadCapacity && rising; ++n) {
    const int i = n - 1;
    recordAt = in.Position();
    set.frequency[i] = ReadFrequencyField(in);
    highest = Max(highest, set.frequency[i]);
    ReadPointParameters(in, fileName, set.points[i]);
    if (n > 1) {
      rising = set.frequency[i] > set.frequency[i - 1];
      UnwrapAgainst(set.points[i], set.points[i - 1]);
    }
  }
  set.pointCount = n - 2;
  if (n > 1) NoteEarlyStop(content, fileName, recordAt, rising, n > kReadCapacity, notes);
  return highest;
}

std::string PlainReadingNote(const std::string& fileName) {
  return "File " + fileName +
         " looks like a Touchstone file: lines after its first start with \"!\" or \"#\". The plain reading "
         "takes every line after the first as frequency in Hz and eight numbers in magnitude and angle, and "
         "applies no option line. " + kTouchstoneSwitchHint;
}

// The plain reading reads such files as it always has; the user is told once per load.
double ReadPlain(std::string_view content, const std::string& fileName, TwoPortDataSet& set, ReadNotes& notes) {
  try {
    const double highest = ParseDataSet(content, fileName, set, notes);
    if (HasTouchstoneLines(content)) notes.push_back(PlainReadingNote(fileName));
    return highest;
  } catch (ReadFailure& failure) {
    if (HasTouchstoneLines(content)) failure.message += std::string(" ") + kTouchstoneSwitchHint;
    throw;
  }
}

}  // namespace

double ReadFrequencyField(TextCursor& in) {
  const LineStart line = ReadLineStart(in);
  if (line.kind == LineStartKind::Marker) in.SkipLine();
  if (line.kind != LineStartKind::Field) return kPresetFrequency;
  // The character that ends the field is not part of it, also when it is the line's last.
  const std::string_view field = in.Slice(line.fieldStart, line.afterLastRead - 1);
  return ClampValue(kHighestFrequency, kLowestFrequency, ParseValueText(field).value);
}

LoadOutcome LoadTwoPortText(DataSetStore& store, std::string_view content, const std::string& fileName,
                            const ReadingChoice& choice) {
  if (store.openCount >= kMaxDataSets) {
    return {LoadStatus::StoreFull, 0, "No more than " + std::to_string(kMaxDataSets) + " files can be open!", {}};
  }
  auto set = std::make_unique<TwoPortDataSet>();
  ReadNotes notes;
  double highest = 0;
  try {
    highest = choice.reading == FileReading::Touchstone
                  ? FillDataSetFromTouchstone(content, fileName, choice.z0, *set, notes)
                  : ReadPlain(content, fileName, *set, notes);
  } catch (const ReadFailure& failure) {
    const std::optional<std::string> shape = TextShapeNote(content, fileName);
    return {LoadStatus::Unreadable, 0, shape ? failure.message + " " + *shape : failure.message, {}};
  }
  if (std::optional<std::string> shape = TextShapeNote(content, fileName)) notes.insert(notes.begin(), *shape);
  store.sets[static_cast<std::size_t>(store.openCount)] = std::move(*set);
  ++store.openCount;
  store.frequencyMaximum = Max(store.frequencyMaximum, highest);
  return {LoadStatus::Loaded, store.openCount, "", std::move(notes)};
}

LoadOutcome LoadTwoPortFile(DataSetStore& store, const std::string& fileName, const ReadingChoice& choice) {
  std::error_code ec;
  if (!std::filesystem::exists(fileName, ec)) {
    return {LoadStatus::Missing, 0, "File " + fileName + " is not present!", {}};
  }
  if (store.openCount >= kMaxDataSets) return LoadTwoPortText(store, {}, fileName, choice);
  std::string reason;
  const std::optional<std::string> content = ReadTextFile(fileName, reason);
  if (!content) {
    return {LoadStatus::Unreadable, 0,
            "File " + fileName + " cannot be read (" + reason + "). Choose an S-parameter data file.", {}};
  }
  return LoadTwoPortText(store, *content, fileName, choice);
}

LoadOutcome LoadTwoPortFile(const std::string& fileName, const ReadingChoice& choice) {
  return LoadTwoPortFile(DataSets(), fileName, choice);
}

}  // namespace numerics
