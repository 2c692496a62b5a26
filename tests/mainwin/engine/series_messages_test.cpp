#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "mainwin/engine/series_messages.h"

namespace mainwin {
namespace {

struct ValuesCase {
  const char* name;
  FileFigures file;
  const char* text;
};

void PrintTo(const ValuesCase& c, std::ostream* os) { *os << c.name; }

class FileValuesTextTest : public testing::TestWithParam<ValuesCase> {};

TEST_P(FileValuesTextTest, RoundsEachValueToItsDecimals) { EXPECT_EQ(FileValuesText(GetParam().file), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Files, FileValuesTextTest,
    testing::Values(ValuesCase{"Typical", {5e-3, 12.345e9, 20e9, 15.4321, 0, 0.56789, 0}, "fT=12.3GHz, Gain=15.43dB, k=0.568"},
                    ValuesCase{"NegativeGainBelowOneGigahertz",
                               {1e-3, 850e6, 1e9, -3.456, 0, 1.2, 0},
                               "fT=850.0MHz, Gain=-3.46dB, k=1.200"},
                    ValuesCase{"NeverEvaluated", {}, "fT=0.0Hz, Gain=0.00dB, k=0.000"}),
    [](const testing::TestParamInfo<ValuesCase>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace mainwin
