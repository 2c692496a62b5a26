#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "numerics/text_cursor.h"

namespace numerics {
namespace {

// Every well-formed number reads exactly as the C library converts it: awkward forms, then short
// random decimals.
TEST(ReadReal, AgreesWithStrtod) {
  std::vector<std::string> texts = {"+2.25", ".5", "5.", "1E+03", "123456789012345678901234", "9007199254740993",
                                    "1e400", "1e-400", "0.1234567890123456789012"};
  std::mt19937_64 random(3);
  for (int i = 0; i < 2000; ++i) {
    texts.push_back(std::to_string(random() % 100000000) + "." + std::to_string(random() % 1000000) + "e-" +
                    std::to_string(random() % 20));
  }
  for (const std::string& text : texts) {
    TextCursor in(text);
    EXPECT_EQ(in.ReadReal(), std::strtod(text.c_str(), nullptr)) << text;
    EXPECT_TRUE(in.AtEndOfFile()) << text;
  }
}

TEST(ReadReal, RefusesWhatIsNotANumberAndStaysOnIt) {
  for (const char* text : {"abc", "1.2.3", "inf", "nan", "0x10", "1e", "1e+", "-", ".", "5,5", "3dB"}) {
    const std::string content = text;
    TextCursor in(content);
    EXPECT_FALSE(in.ReadReal().has_value()) << text;
    EXPECT_EQ(in.TokenAtCursor(), content);
  }
}

TEST(ReadReal, SkipsBlanksTabsAndLineBreaksAndGivesZeroAtTheEnd) {
  const std::string content = "  1.5\t-2\r\n\n 3e2  \n";
  TextCursor in(content);
  EXPECT_EQ(in.ReadReal(), 1.5);
  EXPECT_EQ(in.ReadReal(), -2.0);
  EXPECT_EQ(in.LineNumber(), 1);
  EXPECT_EQ(in.ReadReal(), 300.0);
  EXPECT_EQ(in.LineNumber(), 3);
  EXPECT_EQ(in.ReadReal(), 0.0);
  EXPECT_TRUE(in.AtEndOfFile());
}

}  // namespace
}  // namespace numerics
