#include <gtest/gtest.h>

#include <utility>

#include "series/series_messages.h"

namespace series {
namespace {

TEST(FileValuesText, RoundsEachValueToItsDecimals) {
  const std::pair<FileFigures, const char*> cases[] = {
      {{5e-3, 12.345e9, 20e9, 15.4321, 0, 0.56789, 0}, "fT=12.3GHz, Gain=15.43dB, k=0.568"},
      {{}, "fT=0.0Hz, Gain=0.00dB, k=0.000"}};  // a file never evaluated
  for (const auto& [file, text] : cases) EXPECT_EQ(FileValuesText(file), text);
}

}  // namespace
}  // namespace series
