#include "file_reader.h"

#include <cmath>
#include <filesystem>
#include <memory>
#include <optional>

#include "prefixed_number.h"
#include "real_functions.h"
#include "text_file.h"

namespace numerics {
namespace {

constexpr double kPresetFrequency = 1e9;
constexpr double kLowestFrequency = 1e-9;
constexpr double kHighestFrequency = 1e15;
constexpr int kMostLeadingBlankReads = 20;
constexpr int kMostFieldReads = 199;
struct ReadFailure {
  std::string message;
};

double FoldOnce(double angle) {
  if (angle > 180) return angle - 360;
  if (angle < -180) return angle + 360;
  return angle;
}

// Brings the folded angle a next to prev, so that curves do not jump by 360 degrees.
double Unwrap(double a, double prev) {
  const double d = std::fabs(a - prev);
  const double dp = std::fabs(a - prev + 360);
  const double dm = std::fabs(a - prev - 360);
  if (dp < d) a += 360;
  if (dm < d) a -= 360;
  return a;
}

double ReadNumberOrFail(TextCursor& in, const std::string& fileName) {
  const std::optional<double> value = in.ReadReal();
  if (value) return *value;
  throw ReadFailure{"File " + fileName + ", line " + std::to_string(in.LineNumber()) + ": \"" +
                    in.TokenAtCursor() +
                    "\" is not a number. Every data line needs a frequency and eight numbers "
                    "(magnitude and angle of S11, S21, S12, S22)."};
}

// File order S11, S21, S12, S22: the column index runs outside the row index.
void ReadPointParameters(TextCursor& in, const std::string& fileName, SParameters& point) {
  for (int column = 0; column < 2; ++column) {
    for (int row = 0; row < 2; ++row) {
      const double magnitude = ReadNumberOrFail(in, fileName);
      const double angle = ReadNumberOrFail(in, fileName);
      point.s[row][column] = MakePolar(magnitude, FoldOnce(angle));
    }
  }
}

void UnwrapAgainst(SParameters& point, const SParameters& previous) {
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 2; ++column) {
      double& angle = point.s[row][column].second;
      angle = Unwrap(angle, previous.s[row][column].second);
    }
  }
}

// Fills set from the file content; returns the highest frequency read (the dropped record's
// included, as the frequency maximum has always counted it).
double ParseDataSet(std::string_view content, const std::string& fileName, TwoPortDataSet& set) {
  TextCursor in(content);
  set.title = in.ReadLine();
  double highest = 0;
  bool rising = true;
  int n = 1;
  for (; !in.AtEndOfFile() && n <= kReadCapacity && rising; ++n) {
    const int i = n - 1;
    set.frequency[i] = ReadFrequencyField(in);
    highest = Max(highest, set.frequency[i]);
    ReadPointParameters(in, fileName, set.points[i]);
    if (n > 1) {
      rising = set.frequency[i] > set.frequency[i - 1];
      UnwrapAgainst(set.points[i], set.points[i - 1]);
    }
  }
  set.pointCount = n - 2;
  return highest;
}

}  // namespace

double ReadFrequencyField(TextCursor& in) {
  for (;;) {
    std::optional<char> c = in.ReadChar();
    if (c == '!' || c == '#') {
      in.SkipLine();
      return kPresetFrequency;
    }
    int reads = 1;
    while (c == ' ' && reads < kMostLeadingBlankReads) {
      c = in.ReadChar();
      ++reads;
    }
    if (!c) {
      in.ConsumeLineBreak();
      if (in.AtEndOfFile()) return kPresetFrequency;
      continue;
    }
    // The character that ends the field is not part of it, also when it is the line's last.
    const std::size_t start = in.Position() - 1;
    std::size_t end = start;
    while (*c != ' ' && !in.AtEndOfLine() && reads < kMostFieldReads) {
      end = in.Position();
      c = in.ReadChar();
      ++reads;
    }
    return ClampValue(kHighestFrequency, kLowestFrequency, ParseValueText(in.Slice(start, end)).value);
  }
}

LoadOutcome LoadTwoPortText(DataSetStore& store, std::string_view content, const std::string& fileName) {
  if (store.openCount >= kMaxDataSets) {
    return {LoadStatus::StoreFull, 0, "No more than " + std::to_string(kMaxDataSets) + " files can be open!"};
  }
  auto set = std::make_unique<TwoPortDataSet>();
  double highest = 0;
  try {
    highest = ParseDataSet(content, fileName, *set);
  } catch (const ReadFailure& failure) {
    return {LoadStatus::Unreadable, 0, failure.message};
  }
  store.sets[static_cast<std::size_t>(store.openCount)] = std::move(*set);
  ++store.openCount;
  store.frequencyMaximum = Max(store.frequencyMaximum, highest);
  return {LoadStatus::Loaded, store.openCount, ""};
}

LoadOutcome LoadTwoPortFile(DataSetStore& store, const std::string& fileName) {
  std::error_code ec;
  if (!std::filesystem::exists(fileName, ec)) {
    return {LoadStatus::Missing, 0, "File " + fileName + " is not present!"};
  }
  if (store.openCount >= kMaxDataSets) return LoadTwoPortText(store, {}, fileName);
  std::string reason;
  const std::optional<std::string> content = ReadTextFile(fileName, reason);
  if (!content) {
    return {LoadStatus::Unreadable, 0, "File " + fileName + " cannot be read (" + reason + "). Choose an S-parameter data file."};
  }
  return LoadTwoPortText(store, *content, fileName);
}

LoadOutcome LoadTwoPortFile(const std::string& fileName) { return LoadTwoPortFile(DataSets(), fileName); }

}  // namespace numerics
