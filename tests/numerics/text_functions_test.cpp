#include <gtest/gtest.h>

#include <string>

#include "numerics/text_functions.h"

namespace numerics {
namespace {

TEST(TextFunctions, WriteWhatTheWindowsAndFilesShow) {
  EXPECT_EQ(TrimLeftText("\t \x01 x y "), "x y ");
  EXPECT_EQ(FloatText(7, 3, 1.23456), "  1.235");
  EXPECT_EQ(FloatText(7, 4, -0.5), "-0.5000");
  EXPECT_EQ(FloatText(2, 1, 123.25), "123.2");  // a minimum width, never a cut
  EXPECT_EQ(FloatTextTrimmed(2, 3.14159), "3.14");
  EXPECT_EQ(FloatTextTrimmed(3, -12.5), "-12.500");
  EXPECT_EQ(IntText(-42), "-42");
  EXPECT_EQ(UpperCaseText("ic=1.5m \x81\x84\x94"), "IC=1.5M \x9A\x8E\x99");
}

}  // namespace
}  // namespace numerics
