// The gain window's plain functions and the common window's rules, without a window.
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <sstream>

#include "gain_fixture.h"
#include "graphwin/axis_value_entry.h"
#include "graphwin/plots/curve_table.h"
#include "graphwin/plots/gain_plot.h"
#include "graphwin/window_rules.h"

namespace graphwin {
namespace {

using plots::GainBox;
using plots::GainChoice;

struct ClickCase {
  const char* name;
  GainChoice after;  // the boxes once the click has changed one of them
  GainBox clicked;
  bool magChecked;
  const char* title;
};
void PrintTo(const ClickCase& c, std::ostream* os) { *os << c.name; }

class GainClickTest : public testing::TestWithParam<ClickCase> {};

TEST_P(GainClickTest, ChecksMagAgainOnlyWhenTheRuleSaysSo) {
  const ClickCase& c = GetParam();
  const GainChoice choice = plots::AfterGainClick(c.after, c.clicked);
  EXPECT_EQ(choice.mag, c.magChecked);
  EXPECT_EQ(plots::GainTitle(choice), c.title);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, GainClickTest,
    testing::Values(
        ClickCase{"the only box unchecked", {false, false, false, false}, GainBox::Mag, true, "MAG(f) or MSG(f)"},
        ClickCase{"MAG off beside |S21|^2", {false, false, false, true}, GainBox::Mag, false, ""},
        // The asymmetry: a click on |S21|^2 or MUG looks at the first three boxes only.
        ClickCase{"|S21|^2 off, the last", {false, false, false, false}, GainBox::S21, true, "MAG(f) or MSG(f)"},
        ClickCase{"MUG off beside |S21|^2", {false, false, false, true}, GainBox::Mug, true, "MAG(f) or MSG(f)"},
        ClickCase{"Mason on", {true, true, false, false}, GainBox::Mason, true, "Mason Gain(f), MAG(f) or MSG(f)"},
        ClickCase{"all three", {true, true, true, false}, GainBox::Mug, true,
                  "Mason Gain(f), MAG(f) or MSG(f) and MUG(f)"},
        ClickCase{"Mason and MUG", {false, true, true, false}, GainBox::Mag, false, ""},
        ClickCase{"Mason alone", {false, true, false, false}, GainBox::Mag, false, "Mason Gain(f)"}));

TEST(GainPlot, CurvesInDecibelsOfEveryActiveFileWithTheirNames) {
  const auto first = graphwin_test::MakeDataSet(3, 1e9, 1e9);
  const auto second = graphwin_test::MakeDataSet(2, 5e8, 1e9);
  plots::GraphInputs inputs;
  inputs.files = {{first.get(), "/data/a.s2p", true}, {second.get(), "/data/b,1.s2p", true},
                  {first.get(), "/data/off.s2p", false}};
  inputs.options.comment = true;
  const plots::FrequencyPlot plot = plots::BuildGainPlot(inputs, {true, true, false, false});
  ASSERT_EQ(plot.curves.size(), 4u);
  EXPECT_EQ(plot.curves[0].name, "a.s2p, MAG/MSG");
  EXPECT_EQ(plot.curves[1].column, "U_dB (a.s2p)");
  EXPECT_EQ(plot.curves[2].frequency, (std::vector<double>{5e8, 1.5e9}));
  EXPECT_NEAR(plot.curves[0].value[2], 10 * std::log10(graphwin_test::kMag), 1e-12);
  EXPECT_NEAR(plot.curves[3].value[1], 10 * std::log10(graphwin_test::kMasonU), 1e-12);
  EXPECT_NE(plot.curves[0].colour, plot.curves[2].colour);  // the same figure of two files
  EXPECT_EQ(plot.comment, "fixture device");
  EXPECT_EQ(plots::HighestFrequency(plot), 3e9);

  inputs.files.resize(1);
  inputs.displayCount = 2;
  inputs.options.fileNames = false;
  const plots::FrequencyPlot shown = plots::BuildGainPlot(inputs, {false, false, true, true});
  EXPECT_EQ(shown.curves[1].name, "|S21|²");
  EXPECT_EQ(shown.curves[1].value.size(), 2u);
  EXPECT_NEAR(shown.curves[0].value[0], 10 * std::log10(4.0), 1e-12);  // MUG = |S21|^2 when S11 = S22 = 0

  // One row per frequency of any curve; a name with a comma is quoted.
  std::istringstream csv(plots::CurveTableCsv(plots::BuildGainPlot(
      {{{first.get(), "a.s2p", true}, {second.get(), "b,1.s2p", true}}, 0, 50, {}, {}}, {})));
  std::string header, row;
  std::getline(csv, header);
  EXPECT_EQ(header, "f_Hz,MSG_or_MAG_dB (a.s2p),\"MSG_or_MAG_dB (b,1.s2p)\"");
  std::getline(csv, row);
  EXPECT_EQ(row, "500000000,,6.020599913");
  std::getline(csv, row);
  EXPECT_EQ(row, "1000000000,6.020599913,");
}

TEST(GainPlot, StartsAtAHundredthOfTheRoundedHighestFrequency) {
  diagram::Diagram d;
  plots::SetGainDefaults(d, 7.3e9);
  EXPECT_EQ(d.xMax, 1e10);  // NiceStep(7.3e9)
  EXPECT_EQ(d.xMin, 1e8);
  EXPECT_EQ(d.xStep, 2e8);  // NiceStep(1e10 / 50)
  EXPECT_EQ(d.yMin, -20);
  EXPECT_EQ(d.yMax, 40);
  EXPECT_EQ(d.yStep, 1);
  EXPECT_EQ(d.xLabelEvery, 10);
  EXPECT_EQ(d.yLabelEvery, 10);
}

TEST(GainPlot, ReadOutAndTableText) {
  EXPECT_EQ(plots::GainReadOut(1e9, 0), "Position : f=1.00GHz, Gain=0.00dB (1.00)");
  EXPECT_EQ(plots::GainReadOut(2.5e6, -3), "Position : f=2.50MHz, Gain=-3.00dB (0.50)");  // 10^-0.3
  // f0 = 1 GHz: from NiceStep(10 MHz) in steps of NiceStep(3.3 MHz) = 5 MHz up to 2 GHz.
  std::istringstream table(plots::GainTableText(1e9));
  std::string line;
  std::getline(table, line);
  EXPECT_EQ(line, "Calculated Values by NETRIX : f/Hz MAG/dB MSG/dB MUG/dB Mason/dB   k");
  int lines = 0;
  while (std::getline(table, line)) ++lines;
  EXPECT_EQ(lines, 399);
}

TEST(WindowRules, SizesAndTheDotCycle) {
  EXPECT_EQ(EnlargedSize({640, 480}), (WindowSize{853, 640}));
  EXPECT_EQ(ShrunkSize({853, 640}), (WindowSize{640, 480}));
  EXPECT_EQ(ShrunkSize(EnlargedSize({533, 400})), (WindowSize{533, 400}));  // by way of 711 x 533
  EXPECT_EQ(StandardSize(1024), (WindowSize{768, 576}));
  EXPECT_EQ(StandardSize(800), (WindowSize{640, 480}));
  EXPECT_EQ(StandardSize(640), (WindowSize{533, 400}));
  DotState s;
  s = NextDotState(s);
  EXPECT_TRUE(s.dots && !s.second);
  s = NextDotState(s);
  EXPECT_TRUE(!s.dots && s.second);
  s = NextDotState(s);
  EXPECT_TRUE(!s.dots && !s.second);
  EXPECT_TRUE(NextDotState(s).dots);
}

TEST(AxisValueEntry, LimitsTypedValuesAndStepsByOnePercentRounded) {
  AxisValueEntry entry;
  entry.SetBounds(0, 1e10);
  entry.SetValue(0);
  EXPECT_EQ(entry.SpinUp(), "   10.0M");  // RoundUpOneDigit(1e10 / 1000)
  entry.SetValue(5);
  entry.SpinUp();
  EXPECT_EQ(entry.Value(), 6);  // RoundUpOneDigit(5.05)
  entry.SpinDown();
  entry.SpinDown();
  EXPECT_EQ(entry.Value(), 4);  // 6 / 1.01 = 5.94 gives 5, then 4.95 gives 4
  entry.SetValue(2e9);
  EXPECT_EQ(entry.Show(), "    2.00G");
  EXPECT_TRUE(entry.Change("20G"));  // beyond the upper bound: a beep
  EXPECT_EQ(entry.Value(), 1e10);
  EXPECT_FALSE(entry.Change("3G"));
  EXPECT_EQ(entry.Cancel(), "    2.00G");
  EXPECT_EQ(entry.Value(), 2e9);
  entry.Ok("-5");
  EXPECT_EQ(entry.Value(), 0);
  entry.SetBounds(-1000, 1000);
  entry.SetValue(0);
  entry.SpinDown();
  EXPECT_EQ(entry.Value(), -1);  // from 0 downwards below a negative bound
}

}  // namespace
}  // namespace graphwin
