#pragma once

#include <cstdint>
#include <span>
#include <vector>

// A complete GIF89a file in memory: one image with a global colour table. Plain C++.
namespace imageexport {

// pixels are width * height values 0xAARRGGBB, row by row; alpha is ignored.
std::vector<std::uint8_t> EncodeGif(int width, int height, std::span<const std::uint32_t> pixels);

}  // namespace imageexport
