#include <gtest/gtest.h>

#include "series/check_texts.h"

namespace series {
namespace {

// A file whose fmax came from MSG, falling at 10 dB per decade, in a sweep that ends above 0 dB.
FileFigures MsgFile() {
  FileFigures file{.fT = 3.52e9, .fmax = 6.38e9};
  file.check = {.made = true, .k = 0.296, .fmaxFromMsg = true, .fT = {-19.774, 3.61e9, false, false},
                .fmax = {-9.886, std::nullopt, true, false}};
  return file;
}

// The command line's "-" fields and the passing tool tip are checked where they are shown.
TEST(CheckTexts, LineAndToolTipOfADoubtfulFmax) {
  EXPECT_EQ(CheckLineText("a.s2p", MsgFile()),
            "a.s2p h21_slope=-19.77dB/decade gain_slope=-9.89dB/decade k=0.2960 fT_crossing=3.61GHz "
            "fmax_crossing=- flags=fmax:MSG,fmax:slope");
  EXPECT_EQ(CheckTipText(MsgFile(), CheckedFigure::Fmax),
            "fmax doubtful at fo:\n- taken from MSG (k < 1)\n- MAG/MSG does not fall at 20 ± 3 dB per decade\n"
            "Slope of MAG/MSG at fo: -9.9 dB per decade\n"
            "MAG/MSG does not fall through 1 in the sweep\n"
            "k at fo: 0.296");
}

}  // namespace
}  // namespace series
