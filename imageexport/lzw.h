#pragma once

#include <cstdint>
#include <span>
#include <vector>

// The variable-length LZW code of GIF image data. Plain C++.
namespace imageexport {

// Codes the colour indices (each below 2^minCodeSize, minCodeSize 2..8) into the packed,
// least-significant-bit-first byte stream that follows the minimum code size in a GIF file
// (before it is cut into sub-blocks): a clear code first, the end-of-information code last,
// and a clear code whenever the code table is full.
std::vector<std::uint8_t> LzwEncode(std::span<const std::uint8_t> indices, int minCodeSize);

}  // namespace imageexport
