#pragma once

#include <cstdint>

// Colours as the diagrams pass them around: 24-bit values 0x00BBGGRR (255 is red).
namespace diagram {

using Colour = std::uint32_t;

inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kBlack = 0x000000;
inline constexpr Colour kGrey = 0x808080;
inline constexpr Colour kRed = 0x0000FF;
inline constexpr Colour kGreen = 0x008000;
inline constexpr Colour kBlue = 0xFF0000;

constexpr int RedOf(Colour c) { return static_cast<int>(c & 0xFF); }
constexpr int GreenOf(Colour c) { return static_cast<int>((c >> 8) & 0xFF); }
constexpr int BlueOf(Colour c) { return static_cast<int>((c >> 16) & 0xFF); }
constexpr Colour MakeColour(int red, int green, int blue) {
  return static_cast<Colour>(red & 0xFF) | static_cast<Colour>(green & 0xFF) << 8 |
         static_cast<Colour>(blue & 0xFF) << 16;
}

}  // namespace diagram
