// The shadow of a moment.
#include "app/moment.hpp"

#include <cmath>

#include "proof/scenes.hpp"

namespace dialwright {

namespace {

constexpr Rgb kShadowBlue = rgb(0, 112, 255);
constexpr int kShadowWidth = 3;
constexpr double kEndMark = 0.004;  // radius of the circle around a shadow's end, metres
constexpr double kHoursOfTurn = 12 / proof::kPi;

double number(const Panel& panel, Field field) { return proof::numberIn(panel, field); }

}  // namespace

Sun sunAt(const Panel& panel, const proof::Instant& clock) {
  proof::Instant universal = clock;
  universal.hours += number(panel, Field::TxtFuso);
  return proof::sunOn(proof::julianDate(universal), proof::radians(number(panel, Field::txtLON)));
}

double hourTold(const Panel& panel, const Sun& sun) {
  double hour = 12 + sun.hourAngle * kHoursOfTurn;
  if (panel.on(Field::ck_Etna))
    hour += number(panel, Field::txtLON) / 15 - number(panel, Field::TxtFuso);
  hour = std::fmod(hour, 24);
  return hour < 0 ? hour + 24 : hour;
}

SkyPlace placeInSky(const Panel& panel, const Sun& sun) {
  const proof::Vec d = proof::Sky(proof::radians(number(panel, Field::txtLAT))).towards(sun);
  return {proof::degrees(std::asin(d.z)), proof::degrees(std::atan2(-d.x, -d.y))};
}

std::vector<proof::Polyline> shadowOf(const Panel& panel, const Sun& sun) {
  const auto scene = proof::sceneOf(panel);
  return scene ? proof::shadowOf(*scene, sun) : std::vector<proof::Polyline>{};
}

void drawShadow(SheetPlot& sheet, const std::vector<proof::Polyline>& shadow,
                std::string_view layer) {
  const Ink ink{.colour = kShadowBlue, .layer = sheet.layer(layer), .width = kShadowWidth};
  for (const proof::Polyline& each : shadow) {
    for (std::size_t i = 0; i + 1 < each.size(); ++i) line(sheet, each[i], each[i + 1], ink);
    const Punto first = each.front(), last = each.back();
    if (first.x != last.x || first.y != last.y)
      circle(sheet, last, kEndMark, ink.colour, {.layer = ink.layer});
  }
}

}  // namespace dialwright
