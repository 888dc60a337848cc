// The segments' outlines and which of them make each digit.
#include "lettering/segment_digits.hpp"

#include <array>
#include <numbers>
#include <string_view>

#include "lettering/glyph.hpp"

namespace dialwright {
namespace {

// Grid units in a digit's height.
constexpr double kGrid = 27;
constexpr int kInk = 15;

constexpr GlyphStroke kTop[] = {
    {-5, 13.5, 9, 13.5, kInk},
    {-2.84308, 11, 6.10234, 11, kInk},
    {-5, 13.5, -2.84308, 11, kInk},
    {6.10234, 11, 9, 13.5, kInk},
};
constexpr GlyphStroke kUpperRight[] = {
    {9, 13.5, 7, 0, kInk},
    {6.10234, 11, 4.65789, 1.25, kInk},
    {6.10234, 11, 9, 13.5, kInk},
    {4.65789, 1.25, 7, 0, kInk},
};
constexpr GlyphStroke kLowerRight[] = {
    {5, -13.5, 7, 0, kInk},
    {2.84308, -11, 4.28752, -1.25, kInk},
    {4.28752, -1.25, 7, 0, kInk},
    {2.84308, -11, 5, -13.5, kInk},
};
constexpr GlyphStroke kBottom[] = {
    {2.84308, -11, -6.10234, -11, kInk},
    {5, -13.5, -9, -13.5, kInk},
    {2.84308, -11, 5, -13.5, kInk},
    {-6.10234, -11, -9, -13.5, kInk},
};
constexpr GlyphStroke kLowerLeft[] = {
    {-9, -13.5, -7, 0, kInk},
    {-6.10234, -11, -4.65789, -1.25, kInk},
    {-4.65789, -1.25, -7, 0, kInk},
    {-9, -13.5, -6.10234, -11, kInk},
};
constexpr GlyphStroke kUpperLeft[] = {
    {-5, 13.5, -7, 0, kInk},
    {-2.84308, 11, -4.28752, 1.25, kInk},
    {-4.28752, 1.25, -7, 0, kInk},
    {-2.84308, 11, -5, 13.5, kInk},
};
constexpr GlyphStroke kMiddle[] = {
    {-7, 0, -4.28752, 1.25, kInk},
    {-4.28752, 1.25, 4.65789, 1.25, kInk},
    {7, 0, 4.65789, 1.25, kInk},
    {7, 0, 4.28752, -1.25, kInk},
    {4.28752, -1.25, -4.65789, -1.25, kInk},
    {-7, 0, -4.65789, -1.25, kInk},
};

// The segments a to g, clockwise from the top with the middle one last.
constexpr std::array<std::span<const GlyphStroke>, 7> kSegments = {
    kTop, kUpperRight, kLowerRight, kBottom, kLowerLeft, kUpperLeft, kMiddle};
constexpr std::array<std::string_view, 10> kLit = {
    "abcdef", "bc", "abdeg", "abcdg", "bcfg", "acdfg", "acdefg", "abc", "abcdefg", "abcdfg"};

}  // namespace

void DisegnaCifraSegmenti(Run& run, double x, double y, int digit, double size) {
  if (digit < 0 || digit > 9) return;
  constexpr double kUpright = std::numbers::pi / 2;
  const GlyphFrame frame{x, y, size / kGrid, kUpright, 0, 1};
  for (const char segment : kLit[static_cast<std::size_t>(digit)]) {
    draw(run, frame, {{}, kSegments[static_cast<std::size_t>(segment - 'a')]});
  }
}

}  // namespace dialwright
