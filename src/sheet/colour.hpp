// Colours of the sheet: RGB values as one integer, and the sixteen numbered ones.
#pragma once

#include <array>
#include <cstdint>

namespace dialwright {

// red + 256 * green + 65536 * blue.
using Rgb = std::int32_t;

constexpr Rgb rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }
constexpr int redOf(Rgb colour) { return colour & 255; }
constexpr int greenOf(Rgb colour) { return (colour >> 8) & 255; }
constexpr int blueOf(Rgb colour) { return (colour >> 16) & 255; }

inline constexpr std::array<Rgb, 16> kPalette = {
    rgb(0, 0, 0),       rgb(0, 0, 128),   rgb(0, 128, 0),   rgb(0, 128, 128),
    rgb(128, 0, 0),     rgb(128, 0, 128), rgb(128, 128, 0), rgb(192, 192, 192),
    rgb(128, 128, 128), rgb(0, 0, 255),   rgb(0, 255, 0),   rgb(0, 255, 255),
    rgb(255, 0, 0),     rgb(255, 0, 255), rgb(255, 255, 0), rgb(255, 255, 255)};

// The RGB value of colour number 0 to 15.
constexpr Rgb palette(int number) { return kPalette[static_cast<std::size_t>(number) & 15]; }

inline constexpr Rgb kWhite = palette(15);
inline constexpr Rgb kBlack = palette(0);
inline constexpr Rgb kNoFill = -1;

}  // namespace dialwright
