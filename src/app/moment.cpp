// The shadow of a moment.
#include "app/moment.hpp"

#include <array>
#include <cmath>
#include <cstdio>

#include "proof/scenes.hpp"

namespace dialwright {

namespace {

constexpr double kHoursOfTurn = 12 / proof::kPi;

double number(const Panel& panel, Field field) { return proof::numberIn(panel, field); }

}  // namespace

std::string clockText(double hours) {
  const int minutes = static_cast<int>(std::lround(hours * 60)) % (24 * 60);
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d", minutes / 60, minutes % 60);
  return text.data();
}

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
  const auto scene = proof::shadowSceneOf(panel);
  return scene ? proof::shadowOf(*scene, sun) : std::vector<proof::Polyline>{};
}

void drawShadow(SheetPlot& sheet, const std::vector<proof::Polyline>& shadow,
                std::string_view layer) {
  const Ink ink{.colour = kShadowBlue, .layer = sheet.layer(layer), .width = kShadowWidth};
  for (const proof::Polyline& each : shadow) {
    for (std::size_t i = 0; i + 1 < each.size(); ++i) line(sheet, each[i], each[i + 1], ink);
    const Punto first = each.front(), last = each.back();
    if (first.x != last.x || first.y != last.y)
      circle(sheet, last, kShadowEnd, ink.colour, {.layer = ink.layer});
  }
}

}  // namespace dialwright
