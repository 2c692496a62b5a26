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

struct SelectionCase {
  const char* name;
  double fo;
  int point;  // index into kPoints of the point kept, -1 for none
};

class AnalysisPointTest : public testing::TestWithParam<SelectionCase> {};

TEST_P(AnalysisPointTest, KeepsTheLastPointAtOrBelowFo) {
  const SelectionCase& c = GetParam();
  const std::string content = "! Ic=10m\n# GHz S MA R 50\n" + DataLine("1.8", kPoints[0]) + DataLine("2.0", kPoints[1]) +
                              DataLine("2.2", kPoints[2]);
  const FileFigures f = Evaluate(content, Settings(c.fo, 1e9));
  if (c.point < 0) {
    for (const double value : {f.fT, f.fmax, f.magDb, f.k, f.s21}) EXPECT_EQ(value, 0);
    return;
  }
  const fixtures::M2 s = kPoints[c.point].Matrix();
  const long double freq = 1.8e9L + c.point * 0.2e9L;
  EXPECT_NEAR(f.fT / (fixtures::CurrentGain(s, kZ0) * freq), 1, 1e-12);
  EXPECT_NEAR(f.fmax / (std::sqrt(fixtures::BestGain(s)) * freq), 1, 1e-12);
  EXPECT_NEAR(f.magDb, 10 * std::log10(fixtures::BestGain(s)), 1e-11);
  EXPECT_NEAR(f.k, textbook::Rollett(s), 1e-12);
  EXPECT_NEAR(f.s21, kPoints[c.point].m21, 1e-13);
}

INSTANTIATE_TEST_SUITE_P(Fo, AnalysisPointTest,
                         testing::Values(SelectionCase{"NearerToTheNextPoint", 2.19e9, 1},
                                         SelectionCase{"AtTheFirstPoint", 1.8e9, 0},
                                         SelectionCase{"BelowTheFirstPoint", 1.7e9, -1}),
                         [](const testing::TestParamInfo<SelectionCase>& info) { return std::string(info.param.name); });

TEST(SeriesEvaluation, TakesFmaxFromTheBestGainOrFromU) {
  // k < 1 at the first point (MSG) and k > 1 at the second (MAG).
  const PolarPoint msgPoint{0.7, -60, 8, 120, 0.05, 60, 0.8, -25};
  const PolarPoint magPoint{0.3, -160, 1.5, 60, 0.1, 40, 0.3, -60};
  for (const PolarPoint& p : {msgPoint, magPoint}) {
    const fixtures::M2 s = p.Matrix();
    SeriesSettings settings = Settings(1e9, 1e6);
    const std::string content = "! Ic=1m\n" + DataLine("1000", p);
    const FileFigures fromGain = Evaluate(content, settings);
    settings.fmaxFromU = true;
    const FileFigures fromU = Evaluate(content, settings);
    EXPECT_NEAR(fromGain.fmax / (std::sqrt(fixtures::BestGain(s)) * 1e9L), 1, 1e-12);
    EXPECT_NEAR(fromU.fmax / (std::sqrt(std::fabs(fixtures::MasonU(s, kZ0))) * 1e9L), 1, 1e-11);
    EXPECT_EQ(fromU.magDb, fromGain.magDb);  // MAG/MSG stays the best gain
  }
  EXPECT_LT(textbook::Rollett(msgPoint.Matrix()), 1);
  EXPECT_GT(textbook::Rollett(magPoint.Matrix()), 1);
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
  const std::string content = "! Ic=1m\n" + DataLine("2000", p);
  const FileFigures with = Evaluate(content, settings);
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
// (a vendor file's gain column behind a "!"), and the last line needs no line break.
TEST(SeriesEvaluation, ReadsFrequenciesWithTheMultiplierAndSkipsOtherLines) {
  std::string first = DataLine("1000", kPoints[0]);
  first.insert(first.size() - 1, " !    43.2");
  std::string last = DataLine("3000", kPoints[2]);
  last.pop_back();
  const std::string content = "! Ic=2m\n# MHz S MA R 50\n! Freq S11 S21\n\n" + first + "Freq 1 2 3\n" +
                              DataLine("   2000", kPoints[1]) + last;
  const FileFigures f = Evaluate(content, Settings(3.5e9, 1e6));
  EXPECT_EQ(f.current, 2e-3);
  EXPECT_NEAR(f.fT / (fixtures::CurrentGain(kPoints[2].Matrix(), kZ0) * 3e9L), 1, 1e-12);
}

// A frequency that does not rise does not end the plain reading: the points after it count too.
TEST(SeriesEvaluation, PlainReadingReadsToTheEndOfTheFile) {
  const std::string content = "! Ic=3m\n" + DataLine("1000", kPoints[0]) + DataLine("2000", kPoints[1]) +
                              DataLine("2000", kPoints[2]) + DataLine("3000", kPoints[0]);
  const FileFigures f = Evaluate(content, Settings(2.5e9, 1e6));
  EXPECT_NEAR(f.fT / (fixtures::CurrentGain(kPoints[2].Matrix(), kZ0) * 2e9L), 1, 1e-12);
}

// The Touchstone reading leaves the noise block out and, with the automatic multiplier, takes
// each file's unit from its option line, or the multiplier where there is none.
TEST(SeriesEvaluation, TouchstoneReadingTakesTheUnitOfTheOptionLine) {
  const std::string data = DataLine("1", kPoints[0]) + DataLine("2", kPoints[1]) + "! Noise\n0.5 1 .4 30 .2\n";
  SeriesSettings settings = Settings(2.5e9, 1e9);
  settings.reading = numerics::FileReading::Touchstone;
  const FileFigures explicitUnit = Evaluate("! Ic=3m\n# MHz\n" + data, settings);
  EXPECT_NEAR(explicitUnit.fT / (fixtures::CurrentGain(kPoints[1].Matrix(), kZ0) * 2e9L), 1, 1e-12);
  settings.automaticMultiplier = true;
  const FileFigures fromOptionLine = Evaluate("! Ic=3m\n# MHz\n" + data, settings);
  EXPECT_EQ(fromOptionLine.current, 3e-3);
  EXPECT_NEAR(fromOptionLine.fT / (fixtures::CurrentGain(kPoints[1].Matrix(), kZ0) * 2e6L), 1, 1e-12);
  const FileEvaluation bare = EvaluateSeriesText("! Ic=3m\n" + data, "bare.s2p", settings);
  EXPECT_NEAR(bare.figures.fT / (fixtures::CurrentGain(kPoints[1].Matrix(), kZ0) * 2e9L), 1, 1e-12);
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

// Id is read only for the Ic choice, "#" lines count as comments, and a later line overwrites.
TEST(SeriesEvaluation, ReadsTheCurrentOnlyForTheIcChoice) {
  const std::tuple<const char*, XAxisChoice, double> cases[] = {{"! Id=2m\n", XAxisChoice::CurrentIc, 2e-3},
                                                                {"! Id=2m\n", XAxisChoice::CurrentId, 0},
                                                                {"# ic=1.5m\n", XAxisChoice::CurrentIc, 1.5e-3},
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
  EXPECT_NEAR(arrays[0].fT / (fixtures::CurrentGain(kPoints[0].Matrix(), kZ0) * 1e9L), 1, 1e-12);
}

TEST(SeriesEvaluation, AnEmptyListAsksForFiles) {
  SeriesArrays arrays(1);
  arrays[0].fT = 7;
  const SeriesEvaluation result = EvaluateSeries(SeriesList{}, DefaultSeriesSettings(), arrays);
  EXPECT_FALSE(result.completed);
  EXPECT_EQ(result.messages, std::vector<std::string>{"Please drag s2p file(s) to the program."});
  EXPECT_EQ(arrays.size(), 1U);
}

struct FailureCase {
  const char* name;
  const char* content;  // nullptr: the file does not exist
  const char* expected;  // what the last message says behind the file's path
};

class UnreadableFileTest : public testing::TestWithParam<FailureCase> {};

TEST_P(UnreadableFileTest, EndsTheEvaluationNamingTheFileAndKeepsTheArrays) {
  const std::string first = fixtures::WriteFixture("first.s2p", "! Vce=3V\n" + DataLine("1000", kPoints[0]));
  const std::string bad = GetParam().content ? fixtures::WriteFixture("bad.s2p", GetParam().content)
                                             : fixtures::FixturePath("missing.s2p");
  SeriesList list;
  list.Append({first, bad, first});
  SeriesArrays arrays(2);
  arrays[1].k = 3;
  const SeriesEvaluation result = EvaluateSeries(list, Settings(2e9, 1e6), arrays);
  EXPECT_FALSE(result.completed);
  ASSERT_EQ(result.messages.size(), 2U);  // the first file's missing current, then the failure
  EXPECT_NE(result.messages[1].find("File " + bad + GetParam().expected), std::string::npos) << result.messages[1];
  ASSERT_EQ(arrays.size(), 2U);
  EXPECT_EQ(arrays[1].k, 3);
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnreadableFileTest,
    testing::Values(FailureCase{"Missing", nullptr, " cannot be read (No such file or directory)"},
                    FailureCase{"NumberWithUnit", "! Ic=1m\n\n1000 0.5 -30 4 100deg 0.1 30 0.4 -20\n",
                                ", line 3: \"100deg\" is not a number"},
                    // The missing numbers are not read as zeros.
                    FailureCase{"CutWithinARecord", "! Ic=1m\n1000 0.5 -30 4 100 0.1\n",
                                ", line 2: the file ends within this record."}),
    [](const testing::TestParamInfo<FailureCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace series
