#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "series/series_evaluation.h"
#include "series_fixtures.h"

namespace series {
namespace {

using fixtures::DataLine;
using fixtures::PolarPoint;

constexpr long double kZ0 = 50;

// Three transistor-like points; S12 S21* has a positive real part in each, where Mason's U of
// the program and of the textbook agree.
const PolarPoint kPoints[] = {{0.62, -110, 5.6, 105, 0.07, 42, 0.52, -28},
                              {0.58, -125, 4.9, 96, 0.08, 38, 0.48, -33},
                              {0.55, -138, 4.3, 88, 0.09, 35, 0.45, -37}};

// The three points at 1.8, 2.0 and 2.2 GHz.
const std::string kThreePoints =
    "! Ic=10m\n# GHz S MA R 50\n" + DataLine("1.8", kPoints[0]) + DataLine("2.0", kPoints[1]) + DataLine("2.2", kPoints[2]);

long double PointFrequency(int point) { return 1.8e9L + point * 0.2e9L; }

long double H21(int point) { return fixtures::CurrentGain(kPoints[point].Matrix(), kZ0); }

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

// fo nearer to the next point, at the first point, and below it (nothing kept).
TEST(SeriesEvaluation, KeepsTheLastPointAtOrBelowFo) {
  for (const auto& [fo, point] : {std::pair{2.19e9, 1}, std::pair{1.8e9, 0}, std::pair{1.7e9, -1}}) {
    const FileFigures f = Evaluate(kThreePoints, Settings(fo, 1e9));
    if (point < 0) {
      for (const double value : {f.fT, f.fmax, f.magDb, f.k, f.s21}) EXPECT_EQ(value, 0);
      continue;
    }
    const fixtures::M2 s = kPoints[point].Matrix();
    EXPECT_NEAR(f.fT / (H21(point) * PointFrequency(point)), 1, 1e-12) << fo;
    EXPECT_NEAR(f.fmax / (std::sqrt(fixtures::BestGain(s)) * PointFrequency(point)), 1, 1e-12) << fo;
    EXPECT_NEAR(f.magDb, 10 * std::log10(fixtures::BestGain(s)), 1e-11) << fo;
    EXPECT_NEAR(f.k, textbook::Rollett(s), 1e-12) << fo;
    EXPECT_NEAR(f.s21, kPoints[point].m21, 1e-13) << fo;
    EXPECT_NEAR(*f.check.fT.slope, NeighbourSlope(point, [](int i) { return 20 * std::log10(H21(i)); }), 1e-9) << fo;
  }
}

// With U chosen, fmax and the gain the check follows are U; MAG/MSG stays the best gain.
TEST(SeriesEvaluation, TakesFmaxFromUWhenChosen) {
  SeriesSettings settings = Settings(2e9, 1e9);
  const FileFigures fromGain = Evaluate(kThreePoints, settings);
  settings.fmaxFromU = true;
  const FileFigures fromU = Evaluate(kThreePoints, settings);
  const auto uDb = [](int i) { return 10 * std::log10(fixtures::MasonU(kPoints[i].Matrix(), kZ0)); };
  EXPECT_NEAR(fromU.fmax / (std::sqrt(fixtures::MasonU(kPoints[1].Matrix(), kZ0)) * 2e9L), 1, 1e-11);
  EXPECT_NEAR(*fromU.check.fmax.slope, NeighbourSlope(1, uDb), 1e-9);
  EXPECT_FALSE(fromU.check.fmaxFromMsg);
  EXPECT_EQ(fromU.magDb, fromGain.magDb);
}

TEST(SeriesEvaluation, InsertsTheGroundInductanceIntoTheCommonLead) {
  const PolarPoint p = kPoints[1];
  const double f = 2e9, lgnd = 0.5e-9;
  // By hand: the inductance adds j w L to every element of Z; the 1e-12 (1 + j) S admittance
  // between input and output adds to Y as a two-terminal element.
  const textbook::C zl(0, 2 * 3.14159265358979323846L * f * lgnd);
  const textbook::C yx(1e-12L, 1e-12L);
  fixtures::M2 z = textbook::ImpedanceFromS(p.Matrix(), kZ0);
  z = {z.a11 + zl, z.a12 + zl, z.a21 + zl, z.a22 + zl};
  fixtures::M2 y = textbook::Inverse(z);
  y = {y.a11 + yx, y.a12 - yx, y.a21 - yx, y.a22 + yx};
  const fixtures::M2 yn = textbook::Times(y, kZ0);
  const fixtures::M2 s = textbook::Multiply(textbook::Plus(textbook::Times(yn, -1), 1), textbook::Inverse(textbook::Plus(yn, 1)));

  SeriesSettings settings = Settings(2e9, 1e6);
  settings.withLgnd = true;
  settings.lgnd = lgnd;
  const FileFigures with = Evaluate("! Ic=1m\n" + DataLine("2000", p), settings);
  EXPECT_NEAR(with.fT / (fixtures::CurrentGain(s, kZ0) * f), 1, 1e-10);
  EXPECT_NEAR(with.k, textbook::Rollett(s), 1e-10);
  EXPECT_NEAR(with.magDb, 10 * std::log10(fixtures::BestGain(s)), 1e-9);
  EXPECT_NEAR(with.s21, std::abs(s.a21), 1e-10);
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
// reading, and the last line needs no line break.
TEST(SeriesEvaluation, ReadsEveryPointWithTheMultiplierAndSkipsOtherLines) {
  std::string first = DataLine("1000", kPoints[0]);
  first.insert(first.size() - 1, " !    43.2");
  std::string last = DataLine("3000", kPoints[2]);
  last.pop_back();
  const std::string content = "! Ic=2m\n# MHz S MA R 50\n! Freq S11 S21\n\n" + first + "Freq 1 2 3\n" +
                              DataLine("   2000", kPoints[1]) + DataLine("2000", kPoints[1]) + last;
  const FileFigures f = Evaluate(content, Settings(3.5e9, 1e6));
  EXPECT_EQ(f.current, 2e-3);
  EXPECT_NEAR(f.fT / (H21(2) * 3e9L), 1, 1e-12);
}

// The Touchstone reading leaves the noise block out and, with the automatic multiplier, takes
// each file's unit from its option line, or the multiplier where there is none.
TEST(SeriesEvaluation, TouchstoneReadingTakesTheUnitOfTheOptionLine) {
  const std::string data = DataLine("1", kPoints[0]) + DataLine("2", kPoints[1]) + "! Noise\n0.5 1 .4 30 .2\n";
  SeriesSettings settings = Settings(2.5e9, 1e9);
  settings.reading = numerics::FileReading::Touchstone;
  const FileFigures explicitUnit = Evaluate("! Ic=3m\n# MHz\n" + data, settings);
  EXPECT_NEAR(explicitUnit.fT / (H21(1) * 2e9L), 1, 1e-12);
  settings.automaticMultiplier = true;
  const FileFigures fromOptionLine = Evaluate("! Ic=3m\n# MHz\n" + data, settings);
  EXPECT_EQ(fromOptionLine.current, 3e-3);
  EXPECT_NEAR(fromOptionLine.fT / (H21(1) * 2e6L), 1, 1e-12);
  const FileEvaluation bare = EvaluateSeriesText("! Ic=3m\n" + data, "bare.s2p", settings);
  EXPECT_NEAR(bare.figures.fT / (H21(1) * 2e9L), 1, 1e-12);
  EXPECT_EQ(bare.notes, std::vector<std::string>{"File bare.s2p has no \"#\" option line to take its frequency unit "
                                                 "from; its frequencies are taken in GHz, the multiplier selected."});
}

// What the reading cannot take is told; the figures stay what the reading gives.
TEST(SeriesEvaluation, TellsWhenTheTextIsNotLinesOfAsciiOrUtf8) {
  std::string content = "! Ic=1m\n" + DataLine("1000", kPoints[0]);
  std::replace(content.begin(), content.end(), '\n', '\r');
  const FileEvaluation file = EvaluateSeriesText(content, "odd.s2p", Settings(2e9, 1e6));
  EXPECT_EQ(file.error, "");
  EXPECT_EQ(file.figures.fT, 0);
  ASSERT_EQ(file.notes.size(), 1U);
  EXPECT_EQ(file.notes[0].rfind("File odd.s2p ends its lines with a carriage return alone", 0), 0U) << file.notes[0];
}

// Id is read only for the Ic choice, and a later line overwrites.
TEST(SeriesEvaluation, ReadsTheCurrentOnlyForTheIcChoice) {
  const std::tuple<const char*, XAxisChoice, double> cases[] = {{"! Id=2m\n", XAxisChoice::CurrentIc, 2e-3},
                                                                {"! Id=2m\n", XAxisChoice::CurrentId, 0},
                                                                {"! Ic=1m\n! Ic=3m\n", XAxisChoice::CurrentIc, 3e-3}};
  for (const auto& [comments, choice, current] : cases) {
    SeriesSettings settings = Settings(2e9, 1e6);
    settings.xAxis = choice;
    EXPECT_EQ(Evaluate(comments + DataLine("1000", kPoints[0]), settings).current, current) << comments;
  }
}

TEST(SeriesEvaluation, ReportsAFileWithoutCurrentAndKeepsItsValues) {
  const std::string path = fixtures::WriteFixture("no_current.s2p", "! Vce=3V\n" + DataLine("1000", kPoints[0]));
  SeriesList list;
  list.Append({path});
  SeriesArrays arrays;
  const SeriesEvaluation result = EvaluateSeries(list, Settings(2e9, 1e6), arrays);
  EXPECT_TRUE(result.completed);
  EXPECT_EQ(result.messages,
            std::vector<std::string>{"Possibly the file " + path + " might be errorness (e.g. no Ic specified)."});
  ASSERT_EQ(arrays.size(), 1U);
  EXPECT_EQ(arrays[0].current, 0);
  EXPECT_NEAR(arrays[0].fT / (H21(0) * 1e9L), 1, 1e-12);
}

// An empty list and a file that cannot be read end the evaluation; the arrays stay as they were.
TEST(SeriesEvaluation, EndsWithoutFilesOrAtAnUnreadableOne) {
  const std::string first = fixtures::WriteFixture("first.s2p", "! Ic=1m\n" + DataLine("1000", kPoints[0]));
  // The missing numbers of a cut record are not read as zeros.
  const std::string cut = fixtures::WriteFixture("cut.s2p", "! Ic=1m\n1000 0.5 -30 4 100 0.1\n");
  const std::string missing = fixtures::FixturePath("missing.s2p");
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{}, "Please drag s2p file(s) to the program."},
      {{first, missing, first}, "File " + missing + " cannot be read (No such file or directory)"},
      {{first, cut, first}, "File " + cut + ", line 2: the file ends within this record."}};
  for (const auto& [paths, message] : cases) {
    SeriesList list;
    list.Append(paths);
    SeriesArrays arrays(2);
    arrays[1].k = 3;
    const SeriesEvaluation result = EvaluateSeries(list, Settings(2e9, 1e6), arrays);
    EXPECT_FALSE(result.completed);
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0].rfind(message, 0), 0U) << result.messages[0];
    EXPECT_EQ(arrays.size(), 2U);
    EXPECT_EQ(arrays[1].k, 3);
  }
}

}  // namespace
}  // namespace series
