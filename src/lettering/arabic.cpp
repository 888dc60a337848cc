// The dispatch of a number to its digits, and the digits' frame.
#include "lettering/arabic.hpp"

#include <cmath>
#include <string>

#include "lettering/digits.hpp"
#include "lettering/glyph.hpp"
#include "numerics/fault.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {
namespace {

// The digits' grid: units from the centre to the top, and from the centre of a pair to each
// digit's.
constexpr double kGrid = 150;
constexpr double kHalfPair = 110;

double sizeOf(const Run& run) {
  double size = 0;
  assign(size, run.number(Field::txtArabi));
  return size;
}

// The arcs' angles count from the character's own axis, its upward direction.
void engrave(Run& run, double x, double y, double rotation, double divisor, const Glyph& glyph) {
  double frame = 0;
  assign(frame, over(sizeOf(run), divisor));
  draw(run, {x, y, frame / kGrid, rotation, rotation, 1}, glyph);
}

}  // namespace

void DisegnaCifra3(Run& run, double x, double y, double rotation, int, double divisor) {
  engrave(run, x, y, rotation, divisor, digits::three);
}

void DisegnaCifra8(Run& run, double x, double y, double rotation, int, double divisor) {
  engrave(run, x, y, rotation, divisor, digits::eight);
}

void DisegnaCifraBase(Run& run, double x, double y, double rotation, int digit, double divisor) {
  const Glyph& glyph = digit == 0   ? digits::zero
                       : digit == 2 ? digits::two
                       : digit == 4 ? digits::four
                                    : digits::one;
  engrave(run, x, y, rotation, divisor, glyph);
}

void DisegnaCifraAlta(Run& run, double x, double y, double rotation, int digit, double divisor) {
  const Glyph& glyph = digit == 5   ? digits::five
                       : digit == 6 ? digits::six
                       : digit == 7 ? digits::seven
                                    : digits::nine;
  engrave(run, x, y, rotation, divisor, glyph);
}

void DisegnaNumeroArabo(Run& run, double x, double y, double angleDegrees, int number, int digits) {
  constexpr double kDivisor = 2;
  const double theta = run.params.radians(angleDegrees);
  const double spread = kHalfPair / kGrid * (sizeOf(run) / 2) * (digits - 1);
  const double dx = spread * std::sin(theta);
  const double dy = spread * std::cos(theta);

  const std::string text = textWithSign(number);
  const int first = text[1] - '0';
  const auto routine = first == 3   ? DisegnaCifra3
                       : first < 5  ? DisegnaCifraBase
                       : first == 8 ? DisegnaCifra8
                                    : DisegnaCifraAlta;
  routine(run, x - dx, y + dy, theta, first, kDivisor);
  if (digits == 2) DisegnaCifraBase(run, x + dx, y - dy, theta, text.back() - '0', kDivisor);
}

}  // namespace dialwright
