// What the utility board works out of its fields: the sun on the sky, the day's hours, and the
// declination of a wall and of a mirror; and the results text that tells it.
#pragma once

#include <string>
#include <string_view>

#include "board/sun_of_moment.hpp"
#include "shell/clicks.hpp"

namespace dialwright {

// Angles in degrees, West positive; a moment in UT.
struct BoardInput {
  double Lat = 0, Lon = 0;
  double day = 0, month = 0, year = 0;
  double hours = 0, minutes = 0, seconds = 0;
  double az = 0;           // from the wall's perpendicular to the shadow
  double zone = 0;         // hours, West positive
  bool dst = false;        // the clock is one hour ahead of the zone's
  double declination = 0;  // of the main panel's dial
  bool onlyTrue = false;   // times on the clock, figures reduced, the mirror's normal
};

// Angles in degrees; azimuths from South, positive to the West, in -180 to 180; times in hours.
struct BoardFigures {
  double equation = 0;     // of time, minutes: apparent less mean
  double UT = 0;           // as it was typed
  double LH = 0;           // the longitude in time, East positive
  double dialTime = 0;     // local apparent time
  double hourAngle = 0;    // of the sun
  double declination = 0;  // of the sun
  double azimuth = 0;
  double height = 0;  // without refraction
  double wall = 0;    // declination of the wall
  double mirror = 0;  // declination of the mirror
  // Azimuth of its normal, on the side of the sun, when only true figures are asked for: the beam
  // then enters the wall squarely.
  double mirrorNormal = 0;
  double noon = 0;   // on the zone's clock
  double arc = 0;    // from sunrise to sunset, 24 for a day without a night
  double clock = 0;  // hours that are added to what is printed of noon, sunrise and sunset

  double sunrise() const { return noon - arc / 2; }
  double sunset() const { return noon + arc / 2; }
  bool sunSets() const { return arc != 0 && arc != 24; }
  std::string_view wallSense() const { return wall < 0 ? "East" : "West"; }
};

// Works the figures out; the sun of the moment comes to stand in `sun`. What can't be worked out
// stays at 0.
BoardFigures boardFigures(const BoardInput& in, SunOfMoment& sun);

// The results, each line closed by `lineEnd`.
std::string resultsText(const BoardInput& in, const BoardFigures& f, const SunOfMoment& sun,
                        const Translator& T, std::string_view lineEnd);

// Hours of the day at which a star of that right ascension (degrees) is on the meridian of a
// longitude (degrees, West positive), on the day whose 0 h UT is that Julian day. The sky is taken
// to turn once a day, or at its own pace.
double transitHours(double julianDay, double rightAscension, double longitude,
                    bool ownPace = false);

}  // namespace dialwright
