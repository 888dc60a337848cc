// The specimen sheet of the lettering.
#include "lettering/specimen.hpp"

#include "lettering/arabic.hpp"
#include "lettering/roman.hpp"
#include "lettering/zodiac.hpp"

namespace dialwright {
namespace {

constexpr double kUpright = 90;

constexpr SegnoZodiaco* kSigns[] = {
    SegnoZodiaco1, SegnoZodiaco2, SegnoZodiaco3, SegnoZodiaco4,  SegnoZodiaco5,  SegnoZodiaco6,
    SegnoZodiaco7, SegnoZodiaco8, SegnoZodiaco9, SegnoZodiaco10, SegnoZodiaco11, SegnoZodiaco12,
};

// The digits by themselves; 0 is none of the hours.
void drawDigits(Run& run, double y, double pitch) {
  constexpr double kDivisor = 2;
  DisegnaCifraBase(run, 0, y, run.params.radians(kUpright), 0, kDivisor);
  for (int digit = 1; digit <= 9; ++digit) {
    DisegnaNumeroArabo(run, digit * pitch, y, kUpright, digit, 1);
  }
}

}  // namespace

void DisegnaCampionario(Run& run) {
  const double arabic = run.number(Field::txtArabi);
  const double roman = run.number(Field::txtNumbersize);
  const double sign = run.number(Field::txtZodiacsize);
  double y = 0;
  drawDigits(run, y, 1.2 * arabic);
  y -= 1.6 * arabic;
  for (int hour = 1; hour <= 12; ++hour) {
    DisegnaNumeroArabo(run, (hour - 1) * 2 * arabic, y, kUpright, hour, hour < 10 ? 1 : 2);
  }
  y -= 0.8 * (arabic + roman);
  for (int hour = 1; hour <= 12; ++hour) {
    DisegnaNumeroRomano(run, (hour - 1) * 2 * roman, y, run.params.radians(kUpright), hour, 1);
  }
  y -= 0.8 * (roman + sign);
  double x = 0;
  for (SegnoZodiaco* const draw : kSigns) {
    draw(run, x, y, kUpright, 1);
    x += 1.5 * sign;
  }
  MarcaCardinale(run, x, y, kUpright);
}

}  // namespace dialwright
