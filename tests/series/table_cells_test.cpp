#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "series/table_cells.h"

namespace series {
namespace {

using Texts = std::vector<std::string>;

TEST(PathTexts, ShortenLongPaths) {
  const std::string deep = "/home/engineer/measurements/lot7/";
  const struct {
    Texts (*shorten)(const Texts&);
    Texts paths, texts;
  } cases[] = {
      {TablePathTexts, {"/home/ab/series/bjt_01_0.5m.s2p"}, {"/home/a...bjt_01_0.5m.s2p"}},
      // Umlauts count as one character each and are never cut in half.
      {TablePathTexts, {"/hö/jürgen/Messungen/Lötstelle_Ü_40mA.s2p"}, {"/hö/jür...elle_Ü_40mA.s2p"}},
      {FileListPathTexts, {"/home/engineer/series/bjt_0.5m.s2p"}, {"/home/engineer/series/bjt_0.5m.s2p"}},
      // Names alike in their last 19 characters show from the word where they differ, at the cost of
      // their shared beginning; the file told apart already, and the same file twice, keep the rule's text.
      {FileListPathTexts,
       {deep + "HBT_Ic=0.5mA_Vce=1.5V_T=25C.s2p", deep + "HBT_Ic=1.0mA_Vce=1.5V_T=25C.s2p",
        deep + "HBT_Ic=2.0mA_Vce=1.5V_T=25C.s2p", deep + "other.s2p", deep + "other.s2p"},
       {"/home/eng...Ic=0.5mA_Vce=1.5V_T=25C.s2p", "/home/eng...Ic=1.0mA_Vce=1.5V_T=25C.s2p",
        "/home/eng...Ic=2.0mA_Vce=1.5V_T=25C.s2p", "/home/engineer/me...ents/lot7/other.s2p",
        "/home/engineer/me...ents/lot7/other.s2p"}},
      // Alike names in different folders show the folder.
      {TablePathTexts, {deep + "run1/device_a_meas.s2p", deep + "run2/device_a_meas.s2p"},
       {"/...run1/device_a_meas.s2p", "/...run2/device_a_meas.s2p"}}};
  for (const auto& c : cases) EXPECT_EQ(c.shorten(c.paths), c.texts);
}

TEST(TableCells, WritesEachColumnInItsFormat) {
  const FileFigures file{1.5e-3, 12.3456e9, 25e9, 15.4321, 0.8, 0.56789, 0};
  SeriesSettings settings = DefaultSeriesSettings();
  settings.density = true;
  settings.area = 2.5;
  EXPECT_EQ(TableRowTexts("/m/a.s2p", file, settings),  // the density is 1000 * 1.5 mA / 2.5
            (Texts{"/m/a.s2p", "   1.50mA", "  12.35GHz", "  25.00GHz", "  15.43dB", "  0.568", "   0.000Hz",
                   "  0.600"}));
}

}  // namespace
}  // namespace series
