// The plain parts of the reflection and transmission windows: read-outs, the constant-Q table,
// the printed bitmap's size and the stability circles, against values worked by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

#include "graphwin/plots/q_table.h"
#include "graphwin/plots/sparameter_readout.h"
#include "graphwin/plots/stability_circles.h"
#include "graphwin/window_rules.h"
#include "numerics/complex_value.h"

namespace graphwin::plots {
namespace {

struct ReadOutCase {
  SWindow window;
  SView view;
  double x, y;
  const char* text;
};
void PrintTo(const ReadOutCase& c, std::ostream* os) { *os << c.text; }

class ReadOutTest : public testing::TestWithParam<ReadOutCase> {};

TEST_P(ReadOutTest, SaysWhatLiesUnderTheMouse) {
  const ReadOutCase& c = GetParam();
  EXPECT_EQ(SParameterReadOut(c.window, c.view, c.x, c.y, 50), c.text);
}

// By hand at Z0 = 50: r = 0.5j is 50 (1 + 0.5j) / (1 - 0.5j) = 30 + 40j ohms, VSWR 1.5 / 0.5 = 3,
// Q = 40 / 30; r = j is 50j, on the rim; r = 2 is -150 ohms with a VSWR of 3 / -1.
INSTANTIATE_TEST_SUITE_P(
    Texts, ReadOutTest,
    testing::Values(
        ReadOutCase{SWindow::Reflection, SView::Smith, 0, 0, "Phi=0.0°, |r|=0.000, Re=50.0Ohm, Im=0.0Ohm, VSWR=1.00, Q=0.00"},
        ReadOutCase{SWindow::Reflection, SView::Smith, 0, 0.5,
                    "Phi=90.0°, |r|=0.500, Re=30.0Ohm, Im=40.0Ohm, VSWR=3.00, Q=1.33"},
        ReadOutCase{SWindow::Reflection, SView::Smith, 0, 1,
                    "Phi=90.0°, |r|=1.000, Re=0.0Ohm, Im=50.0Ohm, VSWR=undef., Q=undef."},
        ReadOutCase{SWindow::Reflection, SView::Smith, 2, 0, "Phi=0.0°, |r|=2.000, Re=-150.0Ohm, Im=0.0Ohm, VSWR=-3.00, Q=0.00"},
        ReadOutCase{SWindow::Reflection, SView::Polar, 0.3, -0.4, "Re(r)=0.30, Im(r)=-0.40, |r|=0.500, Phi=-53.1°"},
        ReadOutCase{SWindow::Reflection, SView::Magnitude, 1e9, 0.1, "Position : f=1.00GHz, |Sii|=0.100 (-20.00dB)"},
        ReadOutCase{SWindow::Transmission, SView::Polar, 0, 2, "Position : |Sij|=2.000 (corresponds to 6.02dB), Phi=90.0°"},
        ReadOutCase{SWindow::Transmission, SView::Cartesian, 1, -0.5, "Position : Re(Sij)=1.000, Im(Sij)=-0.500"},
        ReadOutCase{SWindow::Transmission, SView::Decibels, 2e9, -3, "Position : f=2.00GHz, 20log|Sij|=-3.00dB"},
        ReadOutCase{SWindow::Transmission, SView::Phase, 5e8, 45, "Position : f=500.00MHz, Phase=45.00"}));

TEST(ConstantQTable, KeepsSixLimitedValuesAtTheFront) {
  ConstantQTable table;
  for (const double q : {0.0, -5.0, 20000.0, 1.0, 2.0, 3.0}) table.Store(q);
  table.StoreText("2k");  // a seventh replaces the sixth
  EXPECT_EQ(table.Values(), (std::vector<double>{0.01, 0.01, 10000, 1, 2, 2000}));
  table.DeleteLast();
  table.StoreText("no digits");
  EXPECT_EQ(table.Values().back(), 0.01);
  table.Clear();
  table.DeleteLast();
  EXPECT_EQ(table.Count(), 0);
}

TEST(PrintedBitmapSize, AsWideAsThePageOrAnEmptyPage) {
  EXPECT_EQ(PrintedBitmapSize({768, 576}, 4000), (WindowSize{4000, 3000}));
  EXPECT_EQ(PrintedBitmapSize({400, 500}, 4000).height, 0);
}

numerics::SParameters PointOf(double s11, double a11, double s21, double a21, double s12, double a12, double s22,
                              double a22) {
  return {{{numerics::MakePolar(s11, a11), numerics::MakePolar(s12, a12)},
           {numerics::MakePolar(s21, a21), numerics::MakePolar(s22, a22)}}};
}

void ExpectCircle(const StabilityCircle& c, double magnitude, double degrees, double radius, bool unstableInside) {
  EXPECT_NEAR(std::hypot(c.centre.re, c.centre.im), magnitude, 0.005);
  if (magnitude > 0) EXPECT_NEAR(std::atan2(c.centre.im, c.centre.re) * 180 / M_PI, degrees, 0.5);
  EXPECT_NEAR(c.radius, radius, 0.005);
  EXPECT_EQ(c.unstableInside, unstableInside);
}

void ExpectPoint(const std::optional<diagram::PlanePoint>& p, double magnitude, double degrees) {
  ASSERT_TRUE(p.has_value());
  EXPECT_NEAR(std::hypot(p->re, p->im), magnitude, 0.001);
  EXPECT_NEAR(std::atan2(p->im, p->re) * 180 / M_PI, degrees, 0.5);
}

// Pozar, Microwave Engineering, the GaAs FET at 4 GHz of the stability-circle example (k = 0.61):
// output circle 1.36 at 47 degrees, radius 0.50; input circle 1.13 at 68 degrees, radius 0.20;
// the chart's centre is stable and outside both, so their insides are unstable; no match exists.
TEST(MatchCircles, PotentiallyUnstableTextbookDevice) {
  const MatchCircles c = MatchCirclesOf(PointOf(0.894, -60.6, 3.122, 123.6, 0.020, 62.4, 0.781, -27.6), 4e9);
  ExpectCircle(c.output, 1.36, 47, 0.50, true);
  ExpectCircle(c.input, 1.13, 68, 0.20, true);
  EXPECT_FALSE(c.sourceMatch.has_value());
  EXPECT_FALSE(c.loadMatch.has_value());
}

// Pozar's conjugately matched amplifier (k = 1.195): source 0.872 at 123 degrees, load 0.876 at
// 61 degrees.
TEST(MatchCircles, SimultaneousConjugateMatchOfTheTextbookAmplifier) {
  const MatchCircles c = MatchCirclesOf(PointOf(0.72, -116, 2.60, 76, 0.03, 57, 0.73, -54), 4e9);
  ExpectPoint(c.sourceMatch, 0.872, 123);
  ExpectPoint(c.loadMatch, 0.876, 61);
}

// S11 = S22 = 0, S21 = 2, S12 = 0.1: det S = -0.2, so both circles stand at the centre with the
// radius 0.2 / 0.04 = 5; the centre is stable and inside, so the outside is unstable.
TEST(MatchCircles, MatchedDeviceHasCentredCircles) {
  const MatchCircles c = MatchCirclesOf(PointOf(0, 0, 2, 0, 0.1, 0, 0, 0), 1e9);
  ExpectCircle(c.input, 0, 0, 5, false);
  ExpectCircle(c.output, 0, 0, 5, false);
  ASSERT_TRUE(c.sourceMatch.has_value());
  EXPECT_NEAR(std::hypot(c.sourceMatch->re, c.sourceMatch->im), 0, 1e-9);  // no matching needed
}

}  // namespace
}  // namespace graphwin::plots
