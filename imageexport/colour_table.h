#pragma once

#include <cstdint>
#include <span>
#include <vector>

// A picture as at most 256 colours and one index per pixel, for the GIF format. Plain C++.
namespace imageexport {

struct IndexedPicture {
  std::vector<std::uint32_t> palette;  // 0x00RRGGBB, at most 256 entries
  std::vector<std::uint8_t> indices;   // one per pixel, into the palette
};

inline constexpr std::size_t kMaxPaletteSize = 256;

// pixels are 0xAARRGGBB with the alpha byte ignored. A picture of at most 256 colours keeps
// them exactly, in order of first appearance; a richer one is reduced by median cut.
IndexedPicture ReduceColours(std::span<const std::uint32_t> pixels);

}  // namespace imageexport
