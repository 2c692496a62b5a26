#include <gtest/gtest.h>

#include <ostream>

#include <cmath>
#include <limits>

#include "numerics/rounding.h"

namespace numerics {
namespace {

struct RoundCase {
  const char* name;
  double (*function)(double);
  double input;
  double expected;
};

void PrintTo(const RoundCase& c, std::ostream* os) { *os << c.name; }

class RoundingTest : public testing::TestWithParam<RoundCase> {};

TEST_P(RoundingTest, GivesOneSignificantDigit) {
  const RoundCase& c = GetParam();
  EXPECT_DOUBLE_EQ(c.function(c.input), c.expected) << c.name << " of " << c.input;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RoundingTest,
    testing::Values(
        RoundCase{"step of one", Step125, 1, 1}, RoundCase{"step to two", Step125, 2, 2},
        RoundCase{"step to five", Step125, 4.9, 5}, RoundCase{"step to ten", Step125, 5.1, 10},
        RoundCase{"zero", NiceStep, 0, 0}, RoundCase{"exact one", NiceStep, 1, 1},
        RoundCase{"just above one", NiceStep, 1.0000001, 2}, RoundCase{"below one", NiceStep, 0.37, 0.5},
        RoundCase{"hundreds", NiceStep, 120, 200}, RoundCase{"negative", NiceStep, -0.012, -0.02},
        RoundCase{"up", RoundUpOneDigit, 2.3, 3}, RoundCase{"up whole", RoundUpOneDigit, 2.0, 2},
        RoundCase{"up tolerance", RoundUpOneDigit, 2.000005, 2}, RoundCase{"up to ten", RoundUpOneDigit, 9.5, 10},
        RoundCase{"up B", RoundUpOneDigitB, -2.3, -3}, RoundCase{"down", RoundDownOneDigit, 3.7, 3},
        RoundCase{"down within 1e-4", RoundDownOneDigit, 3.00005, 2},
        RoundCase{"down beyond 1e-4", RoundDownOneDigit, 3.0002, 3},
        RoundCase{"down one to zero", RoundDownOneDigit, 1.0, 0},
        RoundCase{"tight whole", RoundDownOneDigitTight, 3.0, 3},
        RoundCase{"tight just below", RoundDownOneDigitTight, 2.999995, 3},
        RoundCase{"tight tie to even", RoundDownOneDigitTight, 2.99999, 2}));

TEST(Rounding, NonFiniteValuesPassThrough) {
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(NiceStep(inf), inf);
  EXPECT_EQ(RoundUpOneDigit(-inf), -inf);
  EXPECT_TRUE(std::isnan(RoundDownOneDigit(std::nan(""))));
  EXPECT_GT(NiceStep(4e-320), 4e-320);  // subnormal: the loop still ends
}

}  // namespace
}  // namespace numerics
