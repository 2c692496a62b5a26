// The gain window's plain functions and the common window's rules, without a window.
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <sstream>

#include "gain_fixture.h"
#include "graphwin/axis_value_entry.h"
#include "graphwin/plots/curve_table.h"
#include "graphwin/plots/gain_plot.h"
#include "graphwin/plots/impedance_plot.h"
#include "graphwin/plots/stability_plot.h"
#include "numerics/file_reader.h"
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

// S11 = S22 = 0.5, S21 = 2, S12 = 0.1 at 0 degrees. By hand: Delta = 0.25 - 0.2 = 0.05, so
// k = (0.0025 + 1 - 0.25 - 0.25) / 0.4 = 1.25625; C1 = 0.5 - 0.05 * 0.5 = 0.475, so
// mu = 0.75 / (0.475 + 0.2); u = 0.5 * 0.1 * 2 * 0.5 / (0.75 * 0.75).
TEST(StabilityPlot, HandWorkedFiguresAndTitles) {
  const auto set = graphwin_test::MakeDataSet(2, 1e9, 1e9);
  set->points[1] = {{{numerics::MakePolar(0.5, 0), numerics::MakePolar(0.1, 0)},
                     {numerics::MakePolar(2, 0), numerics::MakePolar(0.5, 0)}}};
  plots::GraphInputs inputs;
  inputs.files = {{set.get(), "/data/dut.s2p", true}};
  const plots::FrequencyPlot plot = plots::BuildStabilityPlot(inputs, {true, true, true});
  ASSERT_EQ(plot.curves.size(), 3u);
  EXPECT_EQ(plot.curves[2].name, "dut.s2p, µ");
  EXPECT_EQ(plot.curves[2].column, "mu (dut.s2p)");
  EXPECT_NEAR(plot.curves[0].value[1], 1.25625, 1e-12);
  EXPECT_NEAR(plot.curves[1].value[1], 0.05 / 0.5625, 1e-12);
  EXPECT_NEAR(plot.curves[2].value[1], 0.75 / 0.675, 1e-12);
  EXPECT_EQ(plot.title, "k(f), u(f) and µ(f)");
  EXPECT_TRUE(plots::AfterStabilityClick({false, false, false}).k);
  EXPECT_EQ(plots::StabilityTitle({true, false, true}), "k(f) and µ(f)");
  EXPECT_EQ(plots::StabilityReadOut(2.5e9, 1.5), "Position : f=2.50GHz, y=1.50");
  EXPECT_TRUE(plots::StabilityTableText(1e9).starts_with(
      "Calculated values by NETRIX : f/Hz MAG/dB MSG/dB MUG/dB Mason/dB   k   µ   u\n"));
}

class ImpedancePlotTest : public testing::Test {
 protected:
  // Reads a fixture file's text into the test's own store.
  plots::GraphInputs Load(const std::string& text) {
    const numerics::LoadOutcome loaded = numerics::LoadTwoPortText(store_, text, "net.spm");
    EXPECT_EQ(loaded.status, numerics::LoadStatus::Loaded) << loaded.message;
    return {{{&store_.sets[static_cast<std::size_t>(loaded.dataSetNumber - 1)], "net.spm", true}}, 0, 50, {}, {}};
  }
  // The first value of each curve.
  std::vector<double> Values(const plots::GraphInputs& inputs, plots::ImpedanceMode mode, std::size_t point = 0) {
    std::vector<double> values;
    for (const plots::FrequencyCurve& c : plots::BuildImpedancePlot(inputs, kAll, mode).curves) {
      values.push_back(c.value[point]);
    }
    return values;
  }
  static constexpr plots::ImpedanceChoice kAll{true, true, true, true, true};  // curves port1, port2, cross, image, sym
  numerics::DataSetStore store_;
};

// Solved by hand at Z0 = 50 Ohm: at 1 GHz a series resistor of 25 Ohm (S11 = 25 / 125,
// S21 = 100 / 125); at 2 GHz a series impedance of 50 + j50 Ohm (S11 = Z / (Z + 100) = 0.4 + j0.2
// = 0.4472136 at 26.56505 degrees, S21 = 100 / (Z + 100) = 0.6 - j0.2 = 0.6324555 at -18.43495
// degrees). Either port sees Z with the other one shorted, and Z is the pi model's series element.
TEST_F(ImpedancePlotTest, SeriesElementAtEitherPortAndAcross) {
  const plots::GraphInputs inputs =
      Load("series element\n1G 0.2 0 0.8 0 0.8 0 0.2 0\n2G 0.4472135955 26.5650511771 0.6324555320 -18.4349488229 "
           "0.6324555320 -18.4349488229 0.4472135955 26.5650511771\n");
  const std::vector<double> resistor = Values(inputs, plots::ImpedanceMode::Magnitude);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(resistor[i], 25, 1e-9) << i;
  using plots::ImpedanceMode;
  for (const auto& [mode, expected] : {std::pair{ImpedanceMode::Magnitude, std::sqrt(5000.0)},
                                       std::pair{ImpedanceMode::Real, 50.0}, std::pair{ImpedanceMode::Q, 1.0}}) {
    const std::vector<double> z = Values(inputs, mode, 1);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(z[i], expected, 1e-7) << i;
  }
}

// A matched 6 dB pi attenuator: shunts of 150 Ohm, series 37.5 Ohm; loaded with 50 Ohm it shows
// 150 || (37.5 + 150 || 50) = 50 Ohm and halves the voltage, so S11 = S22 = 0 and S21 = S12 = 0.5.
// Shorted at the far port each port sees 150 || 37.5 = 30 Ohm; its image impedance is 50 Ohm;
// driven push-pull across both ports it is 37.5 || (150 + 150) = 33.33 Ohm.
TEST_F(ImpedancePlotTest, PiAttenuator) {
  const plots::GraphInputs inputs = Load("pi attenuator\n1G 0 0 0.5 0 0.5 0 0 0\n");
  const std::vector<double> expected = {30, 30, 37.5, 50, 37.5 * 300 / 337.5};
  const std::vector<double> z = Values(inputs, plots::ImpedanceMode::Real);
  ASSERT_EQ(z.size(), expected.size());
  for (std::size_t i = 0; i < z.size(); ++i) EXPECT_NEAR(z[i], expected[i], 1e-9) << i;
  const plots::FrequencyPlot plot =
      plots::BuildImpedancePlot(inputs, {false, false, false, true, false}, plots::ImpedanceMode::Q);
  EXPECT_EQ(plot.curves[0].column, "pi_q (net.spm)");
  EXPECT_EQ(plot.title, "Quality Factor Q(f)");
  EXPECT_TRUE(plots::AfterImpedanceClick({false, false, false, false, false}).port1);
  EXPECT_EQ(plots::ImpedanceReadOut(1e9, 50, plots::ImpedanceMode::Magnitude), "Position : f=1.00GHz, |Z|= 50.00");
  EXPECT_EQ(plots::ImpedanceReadOut(1e9, 0.5, plots::ImpedanceMode::Q), "Position : f=1.00GHz, Re(Z)=  0.50");
}

TEST(FrequencyDefaults, EachWindowStartsAtItsOwnScale) {
  diagram::Diagram d;
  plots::SetGainDefaults(d, 7.3e9);
  EXPECT_EQ(d.x.min, 1e8);
  EXPECT_EQ(d.x.step, 2e8);  // NiceStep(1e10 / 50)
  EXPECT_EQ(d.y.min, -20);
  EXPECT_EQ(d.y.max, 40);
  plots::SetImpedanceDefaults(d, 7.3e9);
  EXPECT_EQ(d.x.max, 1e10);  // NiceStep(7.3e9)
  EXPECT_EQ(d.x.min, 1e7);
  EXPECT_EQ(d.x.step, 2e8);  // NiceStep(9.99e9 / 50)
  EXPECT_EQ(d.y.max, 1000);
  EXPECT_EQ(d.y.step, 20);
  EXPECT_EQ(d.x.labelEvery, 5);
  plots::SetStabilityDefaults(d, 7.3e9);
  EXPECT_EQ(d.x.min, 1e8);
  EXPECT_EQ(d.y.max, 2);
  EXPECT_EQ(d.y.step, 0.05);
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
