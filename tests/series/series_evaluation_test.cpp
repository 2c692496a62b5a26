#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "series/series_evaluation.h"
#include "tests/numerics/textbook.h"

namespace series {
namespace {

using textbook::M2;

constexpr long double kZ0 = 50;

// One point as a file holds it: magnitude and angle in degrees of S11, S21, S12, S22.
struct PolarPoint {
  double m11, a11, m21, a21, m12, a12, m22, a22;

  M2 Matrix() const {
    return {textbook::Polar(m11, a11), textbook::Polar(m12, a12), textbook::Polar(m21, a21),
            textbook::Polar(m22, a22)};
  }
};

std::string DataLine(const std::string& token, const PolarPoint& p) {
  char line[300];
  std::snprintf(line, sizeof line, "%s %.17g %.17g %.17g %.17g %.17g %.17g %.17g %.17g\n", token.c_str(), p.m11,
                p.a11, p.m21, p.a21, p.m12, p.a12, p.m22, p.a22);
  return line;
}

// CTest runs every test in a process of its own, in parallel: the test's name keeps the files apart.
std::string FixturePath(const std::string& name) {
  return testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + "." + name;
}

std::string WriteFixture(const std::string& name, const std::string& content) {
  const std::string path = FixturePath(name);
  std::ofstream(path, std::ios::binary) << content;
  return path;
}

// MAG where the device is unconditionally stable by k, else MSG.
long double BestGain(const M2& s) {
  const long double k = textbook::Rollett(s);
  const long double ratio = std::abs(s.a21 / s.a12);
  return k >= 1 ? ratio * (k - std::sqrt(k * k - 1)) : ratio;
}

// |h21| through the impedance matrix.
long double CurrentGain(const M2& s) { return std::abs(textbook::HybridFromZ(textbook::ImpedanceFromS(s, kZ0)).a21); }

long double MasonGain(const M2& s) { return textbook::MasonU(textbook::AdmittanceFromS(s, kZ0)); }

// Three transistor-like points; S12 S21* has a positive real part in each, where Mason's U of
// the program and of the textbook agree.
const PolarPoint kPoints[] = {{0.62, -110, 5.6, 105, 0.07, 42, 0.52, -28},
                              {0.58, -125, 4.9, 96, 0.08, 38, 0.48, -33},
                              {0.55, -138, 4.3, 88, 0.09, 35, 0.45, -37}};

// The three points at 1.8, 2.0 and 2.2 GHz.
const std::string kThreePoints = "! Ic=10m\n# GHz S MA R 50\n" + DataLine("1.8", kPoints[0]) +
                                 DataLine("2.0", kPoints[1]) + DataLine("2.2", kPoints[2]);

long double PointFrequency(int point) { return 1.8e9L + point * 0.2e9L; }

long double H21(int point) { return CurrentGain(kPoints[point].Matrix()); }

// The slope in dB per decade between the neighbours of a point, of a gain given per point.
long double NeighbourSlope(int point, long double (*gainDb)(int)) {
  const int below = std::max(point - 1, 0), above = std::min(point + 1, 2);
  return (gainDb(above) - gainDb(below)) / std::log10(PointFrequency(above) / PointFrequency(below));
}

SeriesSettings Settings(double fo, double multiplier) {
  SeriesSettings settings = DefaultSeriesSettings();
  settings.fo = fo;
  settings.multiplier = multiplier;
  return settings;
}

FileFigures Evaluate(const std::string& content, const SeriesSettings& settings) {
  const FileEvaluation file = EvaluateSeriesText(content, "fixture.s2p", settings);
  EXPECT_EQ(file.error, "");
  return file.figures;
}

// fo nearer to the next point, and at the first point.
TEST(SeriesEvaluation, KeepsTheLastPointAtOrBelowFo) {
  for (const auto& [fo, point] : {std::pair{2.19e9, 1}, std::pair{1.8e9, 0}}) {
    const FileFigures f = Evaluate(kThreePoints, Settings(fo, 1e9));
    const M2 s = kPoints[point].Matrix();
    EXPECT_NEAR(f.fT / (H21(point) * PointFrequency(point)), 1, 1e-12) << fo;
    EXPECT_NEAR(f.fmax / (std::sqrt(BestGain(s)) * PointFrequency(point)), 1, 1e-12) << fo;
    EXPECT_NEAR(f.magDb, 10 * std::log10(BestGain(s)), 1e-11) << fo;
    EXPECT_NEAR(f.k, textbook::Rollett(s), 1e-12) << fo;
    EXPECT_NEAR(f.s21, kPoints[point].m21, 1e-13) << fo;
    EXPECT_NEAR(*f.check.fT.slope, NeighbourSlope(point, [](int i) { return 20 * std::log10(H21(i)); }), 1e-9) << fo;
  }
}

// With U chosen, fmax and the gain the check follows are U.
TEST(SeriesEvaluation, TakesFmaxFromUWhenChosen) {
  SeriesSettings settings = Settings(2e9, 1e9);
  settings.fmaxFromU = true;
  const FileFigures f = Evaluate(kThreePoints, settings);
  const auto uDb = [](int i) { return 10 * std::log10(MasonGain(kPoints[i].Matrix())); };
  EXPECT_NEAR(f.fmax / (std::sqrt(MasonGain(kPoints[1].Matrix())) * 2e9L), 1, 1e-11);
  EXPECT_NEAR(*f.check.fmax.slope, NeighbourSlope(1, uDb), 1e-9);
  EXPECT_FALSE(f.check.fmaxFromMsg);
}

TEST(SeriesEvaluation, InsertsTheGroundInductanceIntoTheCommonLead) {
  const double f = 2e9, lgnd = 0.5e-9;
  // By hand: the inductance adds j w L to every element of Z; the 1e-12 (1 + j) S admittance
  // between input and output adds to Y as a two-terminal element; then |h21| = |y21 / y11|.
  const textbook::C zl(0, 2 * 3.14159265358979323846L * f * lgnd);
  const textbook::C yx(1e-12L, 1e-12L);
  const M2 z = textbook::ImpedanceFromS(kPoints[1].Matrix(), kZ0);
  const M2 y = textbook::Inverse({z.a11 + zl, z.a12 + zl, z.a21 + zl, z.a22 + zl});
  SeriesSettings settings = Settings(2e9, 1e6);
  settings.withLgnd = true;
  settings.lgnd = lgnd;
  const FileFigures with = Evaluate("! Ic=1m\n" + DataLine("2000", kPoints[1]), settings);
  EXPECT_NEAR(with.fT / (std::abs((y.a21 - yx) / (y.a11 + yx)) * f), 1, 1e-10);
}

// S11 for a wanted k when S12 = 0.1, S21 = 2, S22 = 0: k = (1.04 - |S11|^2) / 0.4.
PolarPoint PointWithK(double k) { return {std::sqrt(1.04 - 0.4 * k), 0, 2, 0, 0.1, 0, 0, 0}; }

TEST(SeriesEvaluation, TheStabilityLimitIsTheStartOfTheLastStableRun) {
  // k at 1, 2, 3 ... GHz and the limit: stable again after a dip, stable everywhere, ends unstable.
  const std::pair<std::vector<double>, double> cases[] = {
      {{0.8, 1.1, 1.2, 0.9, 1.05, 1.3}, 5e9}, {{1.1, 1.2, 1.5}, 1e9}, {{1.2, 1.3, 0.9}, 0}};
  for (const auto& [k, fk] : cases) {
    std::string content = "! Ic=1m\n";
    for (std::size_t i = 0; i < k.size(); ++i) content += DataLine(std::to_string(i + 1), PointWithK(k[i]));
    EXPECT_EQ(Evaluate(content, Settings(2e9, 1e9)).fk, fk) << content;
  }
}

// Comment, option, blank and word lines are skipped; text behind the eight numbers is ignored
// (a vendor file's gain column behind a "!"); a frequency that does not rise does not end the
// reading, and the last line needs no line break. A later current overwrites an earlier one.
TEST(SeriesEvaluation, ReadsEveryPointWithTheMultiplierAndSkipsOtherLines) {
  std::string first = DataLine("1000", kPoints[0]);
  first.insert(first.size() - 1, " !    43.2");
  std::string last = DataLine("3000", kPoints[2]);
  last.pop_back();
  const std::string content = "! Ic=1m\n# MHz S MA R 50\n! Ic=2m\n\n" + first + "Freq 1 2 3\n" +
                              DataLine("   2000", kPoints[1]) + DataLine("2000", kPoints[1]) + last;
  const FileFigures f = Evaluate(content, Settings(3.5e9, 1e6));
  EXPECT_EQ(f.current, 2e-3);
  EXPECT_NEAR(f.fT / (H21(2) * 3e9L), 1, 1e-12);
}

// The Touchstone reading leaves the noise block out and takes the unit of the option line only
// with the automatic multiplier.
TEST(SeriesEvaluation, TouchstoneReadingTakesTheUnitOfTheOptionLine) {
  const std::string content =
      "! Ic=3m\n# MHz\n" + DataLine("1", kPoints[0]) + DataLine("2", kPoints[1]) + "! Noise\n0.5 1 .4 30 .2\n";
  SeriesSettings settings = Settings(2.5e9, 1e9);
  settings.reading = numerics::FileReading::Touchstone;
  for (const bool automatic : {false, true}) {
    settings.automaticMultiplier = automatic;
    const FileFigures f = Evaluate(content, settings);
    EXPECT_EQ(f.current, 3e-3);
    EXPECT_NEAR(f.fT / (H21(1) * (automatic ? 2e6L : 2e9L)), 1, 1e-12) << automatic;
  }
}

// The reading cannot take lines that end with a carriage return alone, and says so.
TEST(SeriesEvaluation, TellsWhenLinesEndWithACarriageReturnAlone) {
  const FileEvaluation file = EvaluateSeriesText("! Ic=1m\r1000 1 0 1 0 1 0 1 0\r", "odd.s2p", Settings(2e9, 1e6));
  ASSERT_EQ(file.notes.size(), 1U);
  EXPECT_EQ(file.notes[0].rfind("File odd.s2p ends its lines with a carriage return alone", 0), 0U) << file.notes[0];
}

// Only the Ic choice reads a current.
TEST(SeriesEvaluation, ReadsTheCurrentOnlyForTheIcChoice) {
  SeriesSettings settings = Settings(2e9, 1e6);
  settings.xAxis = XAxisChoice::CurrentId;
  EXPECT_EQ(Evaluate("! Ic=1m\n" + DataLine("1000", kPoints[0]), settings).current, 0);
}

// A file that cannot be read ends the evaluation and leaves the arrays as they were; a file
// without a current is reported and keeps its values.
TEST(SeriesEvaluation, EndsAtAnUnreadableFileAndReportsOneWithoutCurrent) {
  const std::string first = WriteFixture("first.s2p", "! Ic=1m\n" + DataLine("1000", kPoints[0]));
  const std::string noCurrent = WriteFixture("no_ic.s2p", "! Vce=3V\n" + DataLine("1000", kPoints[0]));
  const std::string missing = FixturePath("missing.s2p");
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{first, missing, first}, "File " + missing + " cannot be read (No such file or directory)"},
      {{noCurrent}, "Possibly the file " + noCurrent + " might be errorness (e.g. no Ic specified)."}};
  for (const auto& [paths, message] : cases) {
    SeriesList list;
    list.Append(paths);
    SeriesArrays arrays(2);
    arrays[1].fT = 7;
    const SeriesEvaluation result = EvaluateSeries(list, Settings(2e9, 1e6), arrays);
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0].rfind(message, 0), 0U) << result.messages[0];
    EXPECT_EQ(result.completed, paths.size() == 1);
    EXPECT_EQ(arrays.size(), result.completed ? 1U : 2U);
    EXPECT_NEAR(arrays.back().fT / (result.completed ? H21(0) * 1e9L : 7), 1, 1e-12) << message;
  }
}

}  // namespace
}  // namespace series
