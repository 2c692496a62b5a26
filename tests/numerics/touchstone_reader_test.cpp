#include "numerics/touchstone_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "numerics/reader_core.h"
#include "textbook.h"

namespace numerics {
namespace {

using textbook::C;
using textbook::M2;

// Record i of data at z0 against s.
void ExpectPoint(const TouchstoneData& data, std::size_t i, double z0, const M2& s) {
  const SParameters p = TouchstoneScattering(data, i, z0, "t.s2p");
  textbook::ExpectMatrixNear({p.s[0][0], p.s[0][1], p.s[1][0], p.s[1][1]}, s);
}

// One network in the three formats: S11 = -0.5j, S21 = 2j, S12 = 0.1, S22 = -0.4. Then a shunt
// 50 ohm resistor (S11 = -1/3, S21 = 2/3), a series one (1/3, 2/3), an amplifier with h21 = 10
// (S21 = -h21) and a voltage amplifier with g21 = 10 (open input, shorted output, S21 = 2 g21).
TEST(TouchstoneReader, GivesSAtTheReferenceImpedance) {
  const M2 network{C(0, -0.5L), 0.1L, C(0, 2), -0.4L}, shunt{-1 / 3.0L, 2 / 3.0L, 2 / 3.0L, -1 / 3.0L};
  const struct {
    std::string header;  // option line, or the lines of a version 2.0 file before its data
    const char* record;  // one record without its frequency
    M2 s;                // worked out by hand at 50 ohms
  } cases[] = {
      {"# GHz S MA R 50", "0.5 -90 2 90 0.1 0 0.4 180", network},
      {"# db", "-6.020599913279624 270 6.020599913279624 90 -20 0 -7.958800173440752 -180", network},
      {"#RI", "0 -0.5 0 2 0.1 0 -0.4 0", network},
      {"# Z RI", "1 0 1 0 1 0 1 0", shunt},
      {"# Y RI", "1 0 -1 0 -1 0 1 0", {1 / 3.0L, 2 / 3.0L, 2 / 3.0L, 1 / 3.0L}},
      {"# H RI", "1 0 10 0 0 0 0 0", {0, 0, -10, 1}},
      {"# G RI", "0 0 10 0 0 0 0 0", {1, 0, 20, -1}},
      // Version 1 data are normalised to R: a shunt of 25 ohms, which is -0.5 and 0.5 at 50 ohms.
      {"# Z RI R 25", "1 0 1 0 1 0 1 0", {-0.5L, 0.5L, 0.5L, -0.5L}},
      // Version 2.0 data are in ohms: the shunt of 50 ohms again, whatever R says.
      {"[Version] 2.0\n# GHz Z RI R 25\n[Number of Ports] 2\n[Network Data]", "50 0 50 0 50 0 50 0", shunt}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.header);
    const std::string content = "! hand-made\n" + c.header + "\n1 " + c.record + "\n";
    const TouchstoneData data = ReadTouchstone(content, "t.s2p");
    ASSERT_EQ(data.frequency.size(), 1U);
    ExpectPoint(data, 0, 50, c.s);
  }
}

// S at the references r1, r2 through the impedance matrix, then at z0: a second route to compare with.
M2 RenormalisedThroughZ(const M2& s, long double r1, long double r2, long double z0) {
  const M2 g{std::sqrt(r1), 0, 0, std::sqrt(r2)};
  const M2 z = textbook::Multiply(textbook::Multiply(g, textbook::ImpedanceFromS(s, 1)), g);
  return textbook::Multiply(textbook::Plus(z, -z0), textbook::Inverse(textbook::Plus(z, z0)));
}

TEST(TouchstoneReader, ReadsTheKeywordsOfVersion2) {
  const std::string content =
      "[Version] 2.0\n# MHz S RI R 75\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n"
      "[Number of Frequencies] 2\n[Number of Noise Frequencies] 1\n[Reference] 50\n 25\n"
      "[Begin Information]\n[Anything] 7\n[End Information]\n[Network Data]\n"
      "100 0.5 -0.2 0.01 0.02\n  3.1 1.2 0.4 -0.3 ! a record over two lines\n"
      "200 0.45 -0.3 0.02 0.03 2.9 1.5 0.35 -0.35\n[Noise Data]\n150 1.2 0.4 30 0.3\n[End]\n500 not read\n";
  const TouchstoneData data = ReadTouchstone(content, "v2.ts");
  EXPECT_EQ(data.title, "[Version] 2.0");
  EXPECT_EQ(data.frequencyUnit, 1e6);
  EXPECT_EQ(data.noisePoints, 1);
  ASSERT_EQ(data.frequency, (std::vector<double>{100, 200}));
  // 12_21: S12 comes before S21.
  const M2 first{C(0.5L, -0.2L), C(0.01L, 0.02L), C(3.1L, 1.2L), C(0.4L, -0.3L)};
  ExpectPoint(data, 0, 50, RenormalisedThroughZ(first, 50, 25, 50));
  const M2 second{C(0.45L, -0.3L), C(0.02L, 0.03L), C(2.9L, 1.5L), C(0.35L, -0.35L)};
  ExpectPoint(data, 1, 75, RenormalisedThroughZ(second, 50, 25, 75));
}

TEST(TouchstoneReader, ReadsVersion1LayoutsAndLeavesTheNoiseBlockOut) {
  const std::string content =
      "! Vendor file\r\n!  Ic=5mA\r\n\r\n  # ma r 50 s mhz   ! the tokens in any order\r\n"
      "40 .9 -10 14 170 .01 85 .98 -5 ! 43.2\r\n100 .85 -24 13 158 .02 77 .94 -13\r\n"
      "# GHz DB\r\n! Noise data:\r\n50 0.9 .4 26 .25\r\n90 1.1 .33 47 .26";
  const TouchstoneData data = ReadTouchstone(content, "v1.s2p");
  EXPECT_EQ(data.title, "! Vendor file");
  EXPECT_EQ(data.comments, (std::vector<std::string>{" Vendor file", "  Ic=5mA", " Noise data:"}));
  EXPECT_TRUE(data.hasOptionLine);
  EXPECT_EQ(data.frequencyUnit, 1e6);  // a second option line is passed over
  EXPECT_EQ(data.noisePoints, 2);
  EXPECT_EQ(data.frequency, (std::vector<double>{40, 100}));
}

TEST(TouchstoneReader, FailuresNameTheFileTheLineAndWhatWasExpected) {
  const std::string v2 = "[Version] 2.0\n# GHz\n";
  const std::pair<std::string, std::string> cases[] = {  // content, and the start of the message behind "File "
      {"! c\n# GHz\n1 .5 0 2 0 .1 0 .5 0\n2 .5 0 2 0 x 0 .5 0\n", "a.s2p, line 4: \"x\" is not a number."},
      {"# GHz S MA R 50 X\n", "a.s2p, line 1: \"X\" is not an option of the \"#\" line"},
      {"# R\n", "a.s2p, line 1: R needs the reference resistance"},
      {"1 .5 0 2 0 .1 0 .5 0\n\n2 .5 0 2\n", "a.s2p, line 3: the record that starts on this line holds only 4 of"},
      {v2 + "[Network Data]\n2 .5 0 2 0 .1 0 .5 0\n1 .5 0 2 0 .1 0 .5 0\n", "a.ts, line 5: the frequency 1 does not"},
      {v2 + "[Number of Frequencies] 2\n[Network Data]\n1 .5 0 2 0 .1 0 .5 0\n[End]",
       "a.ts, line 3: [Number of Frequencies] announces 2 frequencies, but the file holds 1."},
      {v2 + "[Number of Ports] 4\n", "a.ts, line 3: the file describes 4 ports"},
      {"1 .5 0 2 0 .1 0 .5 0\n", "a.S4P is a Touchstone file of 4 ports"},
      {"# GHz\n[Network Data]\n", "a.s2p, line 2: [Network Data] needs a line \"[Version] 2.0\" before it."},
      {v2 + "[Mixed-Mode Order] D2,1\n", "a.ts, line 3: [Mixed-Mode Order] is not a keyword of a two-port"},
      {"[Version 2.0\n", "a.ts, line 1: the keyword [Version 2.0 lacks its closing"},
      {v2 + "[Reference] 50\n[Network Data]\n", "a.ts, line 4: [Reference] needs one"},
      {v2 + "[Number of Frequencies] 2.5\n", "a.ts, line 3: [Number of Frequencies] needs a whole number"},
      {v2 + "[Matrix Format] Lower\n", "a.ts, line 3: [Matrix Format] Lower is not read"},
      {v2 + "1 .5 0 2 0 .1 0 .5 0\n", "a.ts, line 3: numbers stand before [Network Data]"},
      // z = -I has no S-parameters: z + I is singular.
      {"# Z RI\n1 -1 0 0 0 0 0 -1 0\n", "a.s2p, line 2: this record gives no finite S-parameters"},
      {"! only a comment\n# GHz S MA R 50\n", "a.s2p holds no network data."}};
  for (const auto& [content, expected] : cases) {
    const std::string fileName = expected.substr(0, expected.find_first_of(", "));
    try {
      const TouchstoneData data = ReadTouchstone(content, fileName);
      for (std::size_t i = 0; i < data.frequency.size(); ++i) TouchstoneScattering(data, i, 50, fileName);
      ADD_FAILURE() << "no failure: " << expected;
    } catch (const ReadFailure& failure) {
      EXPECT_EQ(failure.message.rfind("File " + expected, 0), 0U) << failure.message;
    }
  }
}

}  // namespace
}  // namespace numerics
