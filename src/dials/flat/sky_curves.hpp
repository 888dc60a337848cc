// The curves of the sky that the flat dials share: the afternoon prayer, the Qibla, azimuths and
// almucantars. Each reads the panel and the record (LatRad, Stilo, and what it names) and asks
// which dial is checked.
#pragma once

#include "dials/pen.hpp"
#include "numerics/projection.hpp"
#include "shell/run.hpp"

namespace dialwright {

// The longest segment of a line traced by sun positions, metres. It is the same for every style:
// with a long one the curves thin out rather than being drawn coarse.
inline constexpr double kSkyGap = 0.01;

// The sampling rule of the flat dials' curves: a shadow over the horizon is none, and a sample
// draws inside the window, but for the first of its loop.
inline Verdict TracciaCurva(const Window& window, double horizon, Punto p, bool pastStart) {
  if (!(p.y <= horizon)) return Verdict::Drop;
  return drawIf(pastStart && window.holds(p));
}

// The height over which the drawing has no shadow. A judge of true shadows knows it better: with
// one nothing is cut off.
double horizonLimit(const Run& run, double height);

// The plane of the record: Stilo, LatRad, DeclRad, and ZenitPiano from ReclinRad.
Piano planeOf(const DialParams& params);

// The afternoon prayer, when the shadow is as long as at noon and the style more: a row of points,
// when ckAsr is checked. In any case it reads DeclRad from txtDecl, sets ReclinRad to 0 on the
// vertical dial, and sets LimiteOrizzonte.
void CurvaAsr(Run& run);

// The shadow's points while the sun stands in the direction of txtQlat, txtQlon, and the figures of
// that direction. Sets ReclinRad: to 0 unless the dial is the universal one.
void CurvaQibla(Run& run);

// The lines of azimuth every 15 degrees, when ckAz is checked. Sets DeclGradi and ReclinRad.
void LineeAzimut(Run& run);

// The lines of altitude every 10 degrees, first the morning's, then the afternoon's. Sets DeclRad
// and ReclinRad, and PianoOrizzontale on a level plane.
void CurveAlmucantarat(Run& run);

}  // namespace dialwright
