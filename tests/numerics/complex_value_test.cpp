#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "numerics/complex_value.h"
#include "textbook.h"

namespace numerics {
namespace {

using textbook::C;
using textbook::ExpectNear;
using textbook::FromValue;
constexpr long double kDegree = 3.14159265358979323846L / 180;

TEST(ComplexValue, EdgeCasesOfTheProgram) {
  const ComplexValue quotient = Div(MakeCartesian(1, 0), MakeCartesian(0, 0));
  EXPECT_EQ(quotient.form, ComplexForm::Polar);
  EXPECT_DOUBLE_EQ(quotient.first, 1e20);
  EXPECT_DOUBLE_EQ(quotient.second, 0);

  EXPECT_DOUBLE_EQ(Mul(MakePolar(1, 200), MakePolar(1, 160)).second, 0);
  EXPECT_DOUBLE_EQ(Mul(MakePolar(1, -200), MakePolar(1, -170)).second, -10);
  EXPECT_DOUBLE_EQ(Mul(MakePolar(1, -200), MakePolar(1, -160)).second, -360);  // -360 is not folded

  const ComplexValue scaled = Scale(MakePolar(2, 30), -3);
  EXPECT_DOUBLE_EQ(scaled.first, 6);
  EXPECT_DOUBLE_EQ(scaled.second, 210);
  EXPECT_DOUBLE_EQ(Scale(MakePolar(2, 30), 0).second, 210);  // zero counts as not positive

  const ComplexValue logarithm = Ln(MakePolar(std::exp(1.0), 90));
  EXPECT_EQ(logarithm.form, ComplexForm::Cartesian);
  EXPECT_DOUBLE_EQ(logarithm.first, 1);
  EXPECT_DOUBLE_EQ(logarithm.second, 90);  // degrees, not radians

  EXPECT_DOUBLE_EQ(Inverse(MakePolar(0, 45)).first, 1e20);
  EXPECT_DOUBLE_EQ(Inverse(MakePolar(0, 45)).second, -45);
}

// The quadrant's angle, and back exactly at the axes.
TEST(ComplexValue, ToggleFormGivesTheQuadrantAngle) {
  const double root2 = std::sqrt(2.0);
  const double cases[][4] = {{0, 0, 0, 0},   {-1, 0, 1, 180}, {0, 2, 2, 90}, {0, -2, 2, -90},
                             {-1, 1, root2, 135}, {-1, -1, root2, -135}};
  for (const auto& [re, im, magnitude, angle] : cases) {
    ComplexValue z = MakeCartesian(re, im);
    ToggleForm(z);
    EXPECT_EQ(z.form, ComplexForm::Polar);
    EXPECT_DOUBLE_EQ(z.first, magnitude) << re << " " << im;
    EXPECT_DOUBLE_EQ(z.second, angle) << re << " " << im;
    ToggleForm(z);
    EXPECT_NEAR(z.first, re, 1e-15);
    EXPECT_NEAR(z.second, im, 1e-15);
  }
}

TEST(ComplexValue, PolarAxesAreExact) {
  EXPECT_EQ(Re(MakePolar(2, -270)), 0.0);
  EXPECT_EQ(Im(MakePolar(2, 180)), 0.0);
  EXPECT_EQ(Im(MakePolar(3, 270)), -3.0);
}

// Every operation agrees with std::complex whatever the forms of its operands.
TEST(ComplexValue, OperationsAgreeWithStdComplexInBothForms) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> part(-3, 3);
  for (int trial = 0; trial < 200; ++trial) {
    ComplexValue a = MakeCartesian(part(random), part(random));
    ComplexValue b = MakeCartesian(part(random), part(random));
    const C x = FromValue(a), y = FromValue(b);
    if (trial % 2) ToggleForm(a);
    if (trial % 3) ToggleForm(b);
    ExpectNear(Add(a, b), x + y);
    ExpectNear(Sub(a, b), x - y);
    ExpectNear(Mul(a, b), x * y);
    ExpectNear(Div(a, b), x / y);
    ExpectNear(Inverse(a), 1.0L / x);
    ExpectNear(Conj(a), std::conj(x));
    ExpectNear(Scale(a, -2.5), x * -2.5L);
    ExpectNear(AddReal(a, 1.5), x + 1.5L);
    ExpectNear(RealMinus(1.5, a), 1.5L - x);
    const C root = FromValue(Sqrt(a));
    EXPECT_NEAR(static_cast<double>(std::abs(root * root - x)), 0, 1e-12);
    const ComplexValue g = ACosh(a);  // its imaginary part is in degrees
    EXPECT_NEAR(static_cast<double>(std::abs(std::cosh(C(g.first, g.second * kDegree)) - x)), 0, 1e-12);
    EXPECT_NEAR(Abs(a), static_cast<double>(std::abs(x)), 1e-14);
    EXPECT_NEAR(AbsSqr(a), static_cast<double>(std::norm(x)), 1e-13);
  }
}

TEST(ComplexValue, GuardsActOnlyNearTheirThresholds) {
  ComplexValue tiny = MakePolar(5e-9, 90);
  LiftIfTiny(tiny);
  EXPECT_DOUBLE_EQ(Re(tiny), 1e-8);
  EXPECT_NEAR(Im(tiny), 5e-9, 1e-24);
  ComplexValue small = MakePolar(2e-8, 90);
  LiftIfTiny(small);
  EXPECT_EQ(small.form, ComplexForm::Polar);

  // Where ShrinkIfUnit acts is checked on the working matrix of the figures.
  ComplexValue nearUnit = MakeCartesian(0, 0.99999998);
  ShrinkIfUnit(nearUnit);
  EXPECT_DOUBLE_EQ(nearUnit.second, 0.99999998);
}

}  // namespace
}  // namespace numerics
