#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "numerics/rounding.h"

namespace numerics {
namespace {

TEST(Rounding, GivesOneSignificantDigit) {
  const struct {
    const char* name;
    double (*function)(double);
    double input, expected;
  } cases[] = {{"step of one", Step125, 1, 1}, {"step to two", Step125, 2, 2}, {"step to five", Step125, 4.9, 5},
               {"step to ten", Step125, 5.1, 10}, {"zero", NiceStep, 0, 0}, {"just above one", NiceStep, 1.0000001, 2},
               {"below one", NiceStep, 0.37, 0.5}, {"hundreds", NiceStep, 120, 200},
               {"negative", NiceStep, -0.012, -0.02}, {"up", RoundUpOneDigit, 2.3, 3},
               {"up tolerance", RoundUpOneDigit, 2.000005, 2}, {"up to ten", RoundUpOneDigit, 9.5, 10},
               {"up B", RoundUpOneDigitB, -2.3, -3}, {"down within 1e-4", RoundDownOneDigit, 3.00005, 2},
               {"down beyond 1e-4", RoundDownOneDigit, 3.0002, 3}, {"down one to zero", RoundDownOneDigit, 1.0, 0},
               {"tight just below", RoundDownOneDigitTight, 2.999995, 3},
               {"tight tie to even", RoundDownOneDigitTight, 2.99999, 2}};
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(c.function(c.input), c.expected) << c.name << " of " << c.input;
}

TEST(Rounding, NonFiniteValuesPassThrough) {
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(NiceStep(inf), inf);
  EXPECT_EQ(RoundUpOneDigit(-inf), -inf);
  EXPECT_TRUE(std::isnan(RoundDownOneDigit(std::nan(""))));
  EXPECT_GT(NiceStep(4e-320), 4e-320);  // subnormal: the loop still ends
}

}  // namespace
}  // namespace numerics
