#include "gif_encoder.h"

#include <algorithm>
#include <cassert>

#include "colour_table.h"
#include "lzw.h"

namespace imageexport {
namespace {

constexpr std::size_t kMaxSubBlock = 255;

void PutWord(std::vector<std::uint8_t>& out, int value) {
  out.push_back(static_cast<std::uint8_t>(value & 0xFF));
  out.push_back(static_cast<std::uint8_t>((value >> 8) & 0xFF));
}

// The colour table holds 2^bits entries, bits 1..8.
int TableBits(std::size_t colours) {
  int bits = 1;
  while ((std::size_t{1} << bits) < colours) ++bits;
  return bits;
}

void PutHeader(std::vector<std::uint8_t>& out, int width, int height, int bits) {
  for (const char c : {'G', 'I', 'F', '8', '9', 'a'}) out.push_back(static_cast<std::uint8_t>(c));
  PutWord(out, width);
  PutWord(out, height);
  // Global table present, 8 bits per primary, table size 2^bits.
  out.push_back(static_cast<std::uint8_t>(0x80 | 0x70 | (bits - 1)));
  out.push_back(0);  // background colour index
  out.push_back(0);  // no aspect ratio
}

void PutColourTable(std::vector<std::uint8_t>& out, const std::vector<std::uint32_t>& palette, int bits) {
  for (std::size_t i = 0; i < (std::size_t{1} << bits); ++i) {
    const std::uint32_t colour = i < palette.size() ? palette[i] : 0;
    out.push_back(static_cast<std::uint8_t>(colour >> 16));
    out.push_back(static_cast<std::uint8_t>(colour >> 8));
    out.push_back(static_cast<std::uint8_t>(colour));
  }
}

void PutImage(std::vector<std::uint8_t>& out, int width, int height, const std::vector<std::uint8_t>& indices,
              int bits) {
  out.push_back(0x2C);
  PutWord(out, 0);
  PutWord(out, 0);
  PutWord(out, width);
  PutWord(out, height);
  out.push_back(0);  // no local table, not interlaced
  const int minCodeSize = std::max(2, bits);
  out.push_back(static_cast<std::uint8_t>(minCodeSize));
  const std::vector<std::uint8_t> code = LzwEncode(indices, minCodeSize);
  for (std::size_t at = 0; at < code.size(); at += kMaxSubBlock) {
    const std::size_t length = std::min(kMaxSubBlock, code.size() - at);
    out.push_back(static_cast<std::uint8_t>(length));
    out.insert(out.end(), code.begin() + static_cast<std::ptrdiff_t>(at),
               code.begin() + static_cast<std::ptrdiff_t>(at + length));
  }
  out.push_back(0);
}

}  // namespace

std::vector<std::uint8_t> EncodeGif(int width, int height, std::span<const std::uint32_t> pixels) {
  assert(width > 0 && height > 0 && width <= 0xFFFF && height <= 0xFFFF);
  assert(pixels.size() == static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  const IndexedPicture picture = ReduceColours(pixels);
  const int bits = TableBits(picture.palette.size());
  std::vector<std::uint8_t> out;
  PutHeader(out, width, height, bits);
  PutColourTable(out, picture.palette, bits);
  PutImage(out, width, height, picture.indices, bits);
  out.push_back(0x3B);
  return out;
}

}  // namespace imageexport
