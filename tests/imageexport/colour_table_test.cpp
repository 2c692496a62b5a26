#include "imageexport/colour_table.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace imageexport {
namespace {

TEST(ColourTable, KeepsFewColoursExactlyInOrderOfAppearance) {
  const std::vector<std::uint32_t> pixels = {0xFFFFFFFF, 0xFFFF0000, 0x00FFFFFF, 0xFF0000FF, 0xFFFF0000};
  const IndexedPicture p = ReduceColours(pixels);
  EXPECT_EQ(p.palette, (std::vector<std::uint32_t>{0xFFFFFF, 0xFF0000, 0x0000FF}));
  EXPECT_EQ(p.indices, (std::vector<std::uint8_t>{0, 1, 0, 2, 1}));  // alpha plays no part
}

TEST(ColourTable, TwoHundredFiftySixColoursStayExact) {
  std::vector<std::uint32_t> pixels;
  for (std::uint32_t c = 0; c < 256; ++c) pixels.push_back(c * 0x010101);
  const IndexedPicture p = ReduceColours(pixels);
  ASSERT_EQ(p.palette.size(), 256U);
  for (std::size_t i = 0; i < pixels.size(); ++i) EXPECT_EQ(p.palette[p.indices[i]], pixels[i]);
}

}  // namespace
}  // namespace imageexport
