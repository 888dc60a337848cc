// What the dials share that plot their curves as dots: their notice, their run and the marks on the
// foot of the style.
#pragma once

#include <string_view>

#include "dials/cylindrical/cylinder.hpp"
#include "dials/cylindrical/tip_rays.hpp"
#include "dials/drawing.hpp"
#include "dials/site.hpp"

namespace dialwright {

// Told at the start of every run: the definition is the distance from dot to dot.
inline constexpr const char* kDefinitionNotice =
    "Modify the definition if the graph is not well visible";

// The run of a dial of the northern hemisphere under the frame, with the notice and a caption.
template <class Draw>
void drawDotted(Run& run, std::string_view caption, Draw draw) {
  run.message(run.T(kDefinitionNotice));
  if (refusesSouth(run)) return;
  drawFramed(run, caption, [&] {
    LeggiSitoCilindro(run);
    draw();
  });
}

// The last hour (degrees either side of noon) from which the lines of italic and babylonian hours
// start on the equinoctial.
inline constexpr double kLastOldHour = 90;

// The loop of a curve over a part of the surface as wide as the radius asks, by the definition.
inline Sweep dots(Run& run, double first, double last) {
  return run.sweep(first, last, run.params.PassoCurva,
                   {.step = Field::txt_Definition, .bound = Field::TxtRadius});
}

// The hour angle (radians) whose line is the substyle; a fault on the equator, unless the wall
// looks East or West.
double hourOfSubstyle(const DialParams& p);

// --- What a dot stands for, by the sun behind the tip as it is seen from there

// The sun of a day or of the day of the opposite declination (radians), whose curves are one cone:
// the one on the dot's side of the equinoctial.
inline Sun sunOfCone(double declination, const Sun& behindTip) {
  return {Sun::kOpen, std::copysign(declination, behindTip.declination)};
}

// The sun of the horizon turned about the pole by an hour angle (radians): side +1 for an hour
// counted from sunset, -1 from sunrise. A dot of the night stands for none.
Sun sunOfTurnedHorizon(const DialParams& p, double turn, double side, const Sun& behindTip);

// The foot of the style as a circle with its centre.
void footCircle(Run& run);

// The foot of the style as two rows of dots with its centre.
void footRows(Run& run);

}  // namespace dialwright
