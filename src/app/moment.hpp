// A moment of the clock on a dial: the sun that stands there, what the dial reads, and the shadow
// drawn over it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/program.hpp"
#include "proof/almanac.hpp"
#include "proof/shade.hpp"
#include "sheet/pen.hpp"

namespace dialwright {

// The look of a shadow over the sheet.
inline constexpr Rgb kShadowBlue = rgb(0, 112, 255);
inline constexpr int kShadowWidth = 3;       // in target pixels
inline constexpr double kShadowEnd = 0.004;  // radius of the circle around its end, metres

// A time of day to the minute, as "09:30".
std::string clockText(double hours);

// The sun at a moment of the clock in the panel's time zone, at the panel's longitude.
Sun sunAt(const Panel& panel, const proof::Instant& clock);

// The hour, from 0 to below 24, that the dial tells by a sun: local apparent time, or that of the
// zone's meridian when the panel asks for it.
double hourTold(const Panel& panel, const Sun& sun);

// Height above the horizon and azimuth from the South, West positive, in degrees.
struct SkyPlace {
  double height, azimuth;
};
SkyPlace placeInSky(const Panel& panel, const Sun& sun);

// The shadow that the panel's dial has of a sun, as lines of the dial; none while there is none.
std::vector<proof::Polyline> shadowOf(const Panel& panel, const Sun& sun);

// Draws such lines over the sheet, on a layer of their own.
void drawShadow(SheetPlot& sheet, const std::vector<proof::Polyline>& shadow,
                std::string_view layer);

}  // namespace dialwright
