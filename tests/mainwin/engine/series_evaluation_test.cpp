#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "mainwin/engine/series_evaluation.h"
#include "series_fixtures.h"

namespace mainwin {
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

std::string ThreePointFile() {
  return "! Ic=10m\n# GHz S MA R 50\n" + DataLine("1.8", kPoints[0]) + DataLine("2.0", kPoints[1]) +
         DataLine("2.2", kPoints[2]);
}

struct SelectionCase {
  const char* name;
  double fo;
  int point;  // index into kPoints of the point kept, -1 for none
};

void PrintTo(const SelectionCase& c, std::ostream* os) { *os << c.name; }

class AnalysisPointTest : public testing::TestWithParam<SelectionCase> {};

TEST_P(AnalysisPointTest, KeepsTheLastPointAtOrBelowFo) {
  const SelectionCase& c = GetParam();
  const FileFigures f = Evaluate(ThreePointFile(), Settings(c.fo, 1e9));
  if (c.point < 0) {
    EXPECT_EQ(f.fT, 0);
    EXPECT_EQ(f.fmax, 0);
    EXPECT_EQ(f.magDb, 0);
    EXPECT_EQ(f.k, 0);
    EXPECT_EQ(f.s21, 0);
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
                         testing::Values(SelectionCase{"ExactlyAtAPoint", 2.0e9, 1},
                                         SelectionCase{"BetweenPoints", 2.1e9, 1},
                                         SelectionCase{"AtTheFirstPoint", 1.8e9, 0},
                                         SelectionCase{"AboveAll", 20e9, 2},
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

  settings.withLgnd = false;
  const FileFigures without = Evaluate(content, settings);
  EXPECT_GT(std::fabs(with.fT - without.fT) / without.fT, 0.01);  // the inductance matters here
}

// S11 for a wanted k when S12 = 0.1, S21 = 2, S22 = 0: k = (1.04 - |S11|^2) / 0.4.
PolarPoint PointWithK(double k) { return {std::sqrt(1.04 - 0.4 * k), 0, 2, 0, 0.1, 0, 0, 0}; }

struct LimitCase {
  const char* name;
  std::vector<double> k;  // at 1, 2, 3 ... GHz
  double fk;
};

void PrintTo(const LimitCase& c, std::ostream* os) { *os << c.name; }

class StabilityLimitTest : public testing::TestWithParam<LimitCase> {};

TEST_P(StabilityLimitTest, IsTheStartOfTheLastStableRun) {
  std::string content = "! Ic=1m\n";
  for (std::size_t i = 0; i < GetParam().k.size(); ++i) content += DataLine(std::to_string(i + 1), PointWithK(GetParam().k[i]));
  EXPECT_EQ(Evaluate(content, Settings(2e9, 1e9)).fk, GetParam().fk);
}

INSTANTIATE_TEST_SUITE_P(
    KSequences, StabilityLimitTest,
    testing::Values(LimitCase{"StableAgainAfterADip", {0.8, 1.1, 1.2, 0.9, 1.05, 1.3}, 5e9},
                    LimitCase{"StableEverywhere", {1.1, 1.2, 1.5}, 1e9},
                    LimitCase{"EndsUnstable", {1.2, 1.3, 0.9}, 0},
                    LimitCase{"NeverStable", {0.5, 0.7}, 0},
                    LimitCase{"StableOnlyAtTheLastPoint", {0.9, 0.95, 1.01}, 3e9}),
    [](const testing::TestParamInfo<LimitCase>& info) { return std::string(info.param.name); });

TEST(SeriesEvaluation, ReadsFrequenciesWithTheMultiplierAndSkipsOtherLines) {
  const std::string content = "! Ic=2m\n# MHz S MA R 50\n! Freq S11 S21\n\n" + DataLine("1000", kPoints[0]) +
                              "! noise parameters follow in other files\n" + DataLine("   2000", kPoints[1]) +
                              "Freq 1 2 3\n" + DataLine("3000", kPoints[2]);
  const FileFigures f = Evaluate(content, Settings(2.5e9, 1e6));
  EXPECT_EQ(f.current, 2e-3);
  EXPECT_NEAR(f.fT / (fixtures::CurrentGain(kPoints[1].Matrix(), kZ0) * 2e9L), 1, 1e-12);
}

TEST(SeriesEvaluation, ReadsTheLastLineWithoutALineBreakAndIgnoresTextAfterTheNumbers) {
  std::string unstable = DataLine("1", PointWithK(0.9));
  unstable.insert(unstable.size() - 1, " !    43.2");  // a vendor file's gain column behind a "!"
  std::string lastLine = DataLine("2", PointWithK(1.2));
  lastLine.pop_back();
  const FileFigures f = Evaluate("! Ic=1m\n" + unstable + lastLine, Settings(5e9, 1e9));
  EXPECT_EQ(f.fk, 2e9);
  EXPECT_NEAR(f.k, 1.2, 1e-12);
}

TEST(SeriesEvaluation, StopsAtTheNoiseParameterBlock) {
  // Touchstone noise lines (f, NFmin, |Gopt|, angle Gopt, Rn/50) start again at a low frequency.
  const std::string content = "! Ic=3m\n# MHz S MA R 50\n" + DataLine("1000", kPoints[0]) +
                              DataLine("2000", kPoints[1]) + "! noise\n500 1.2 0.4 30 0.3\n900 1.3 0.38 35 0.28\n";
  const FileFigures f = Evaluate(content, Settings(2.5e9, 1e6));
  EXPECT_NEAR(f.fT / (fixtures::CurrentGain(kPoints[1].Matrix(), kZ0) * 2e9L), 1, 1e-12);
  EXPECT_NEAR(f.k, textbook::Rollett(kPoints[1].Matrix()), 1e-12);
}

struct CurrentChoiceCase {
  const char* name;
  const char* comments;
  XAxisChoice choice;
  double current;
};

void PrintTo(const CurrentChoiceCase& c, std::ostream* os) { *os << c.name; }

class CurrentChoiceTest : public testing::TestWithParam<CurrentChoiceCase> {};

TEST_P(CurrentChoiceTest, ReadsTheCurrentOnlyForTheIcChoice) {
  SeriesSettings settings = Settings(2e9, 1e6);
  settings.xAxis = GetParam().choice;
  EXPECT_EQ(Evaluate(std::string(GetParam().comments) + DataLine("1000", kPoints[0]), settings).current, GetParam().current);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, CurrentChoiceTest,
    testing::Values(CurrentChoiceCase{"IdWithIcChoice", "! Id=2m\n", XAxisChoice::CurrentIc, 2e-3},
                    CurrentChoiceCase{"IdWithIdChoice", "! Id=2m\n", XAxisChoice::CurrentId, 0},
                    CurrentChoiceCase{"IcWithFileNumber", "! Ic=2m\n", XAxisChoice::FileNumber, 0},
                    CurrentChoiceCase{"HashLine", "# ic=1.5m\n", XAxisChoice::CurrentIc, 1.5e-3},
                    CurrentChoiceCase{"LaterLineOverwrites", "! Ic=1m\n! Ic=3m\n", XAxisChoice::CurrentIc, 3e-3},
                    CurrentChoiceCase{"OptionLineKeepsIt", "! Ic=4m\n# MHz S MA R 50\n", XAxisChoice::CurrentIc, 4e-3}),
    [](const testing::TestParamInfo<CurrentChoiceCase>& info) { return std::string(info.param.name); });

TEST(SeriesEvaluation, ReportsAFileWithoutCurrentAndKeepsItsValues) {
  const std::string path = fixtures::WriteFixture("no_current.s2p", "! Vce=3V\n" + DataLine("1000", kPoints[0]));
  const std::string good = fixtures::WriteFixture("good.s2p", "! Ic=5m\n" + DataLine("1000", kPoints[0]));
  SeriesList list;
  list.Append({path, good});
  SeriesArrays arrays;
  const SeriesEvaluation result = EvaluateSeries(list, Settings(2e9, 1e6), arrays);
  EXPECT_TRUE(result.completed);
  EXPECT_EQ(result.messages,
            std::vector<std::string>{"Possibly the file " + path + " might be errorness (e.g. no Ic specified)."});
  ASSERT_EQ(arrays.size(), 2U);
  EXPECT_EQ(arrays[0].current, 0);
  EXPECT_GT(arrays[0].fT, 0);
  EXPECT_EQ(arrays[1].current, 5e-3);
  EXPECT_EQ(arrays[0].fT, arrays[1].fT);
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
  const char* content;  // nullptr: the file does not exist; empty: a folder
  const char* expected;  // a part of the last message
};

void PrintTo(const FailureCase& c, std::ostream* os) { *os << c.name; }

class UnreadableFileTest : public testing::TestWithParam<FailureCase> {};

TEST_P(UnreadableFileTest, EndsTheEvaluationNamingTheFileAndKeepsTheArrays) {
  const std::string first = fixtures::WriteFixture("first.s2p", "! Vce=3V\n" + DataLine("1000", kPoints[0]));
  const std::string bad = !GetParam().content        ? fixtures::FixturePath("missing.s2p")
                          : *GetParam().content == 0 ? testing::TempDir()
                                                     : fixtures::WriteFixture("bad.s2p", GetParam().content);
  SeriesList list;
  list.Append({first, bad, first});
  SeriesArrays arrays(2);
  arrays[1].k = 3;
  const SeriesEvaluation result = EvaluateSeries(list, Settings(2e9, 1e6), arrays);
  EXPECT_FALSE(result.completed);
  ASSERT_EQ(result.messages.size(), 2U);  // the first file's missing current, then the failure
  EXPECT_NE(result.messages[1].find("File " + bad), std::string::npos) << result.messages[1];
  EXPECT_NE(result.messages[1].find(GetParam().expected), std::string::npos) << result.messages[1];
  ASSERT_EQ(arrays.size(), 2U);
  EXPECT_EQ(arrays[1].k, 3);
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnreadableFileTest,
    testing::Values(FailureCase{"Missing", nullptr, "No such file or directory"},
                    FailureCase{"Folder", "", "Is a directory"},
                    FailureCase{"NotANumber", "! Ic=1m\n1000 0.5 -30 4 abc 0.1 30 0.4 -20\n", ", line 2: \"abc\" is not a number"},
                    FailureCase{"NumberWithUnit", "! Ic=1m\n\n1000 0.5 -30 4 100deg 0.1 30 0.4 -20\n", ", line 3: \"100deg\""}),
    [](const testing::TestParamInfo<FailureCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace mainwin
