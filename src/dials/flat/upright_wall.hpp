// What the dials of an upright wall by the sun's azimuth share: the shadow of the style's tip, the
// hours counted from sunset, from sunrise and in twelfths of the day, and the conic of the
// latitude.
#pragma once

#include <cmath>

#include "dials/flat/substyle_frame.hpp"
#include "dials/sun.hpp"
#include "shell/run.hpp"

namespace dialwright {

// The shadow of the tip of a wall's upright style, by a plane triangle at the sun's azimuth from
// the normal. Each figure that a sample can't give keeps that of the sample before.
class UprightShadow {
 public:
  // For the record's Stilo, LatRad and DeclRad. Where true shadows are asked for the azimuth comes
  // from the whole circle, and no turn is needed.
  explicit UprightShadow(const Run& run) : UprightShadow(run.params, run.trueShadows()) {}
  explicit UprightShadow(const DialParams& p, bool wholeCircle = false)
      : angles_(p),
        wholeCircle_(wholeCircle),
        style_(p.Stilo),
        declination_(p.DeclRad),
        sinLat_(std::sin(p.LatRad)),
        cosLat_(std::cos(p.LatRad)) {}

  double azimuth = 0;  // from the South, West positive, radians
  double tanAltitude = 0;
  Punto point;

  // The sun of an hour angle: its altitude, and its azimuth by the tangent, which leaves half a
  // turn open and is always South at noon.
  void aim(double sinH, double cosH, const SolarDay& day) {
    assign(azimuth, wholeCircle_ ? std::atan2(sinH, southward(cosH, day))
                                 : arctan(over(sinH, southward(cosH, day))));
    assign(tanAltitude, angles_.TanArcSin(sinLat_ * day.sine + cosLat_ * day.cosine * cosH));
  }

  // The part of a sun's direction that the tangent of its azimuth is divided by.
  double southward(double cosH, const SolarDay& day) const {
    return sinLat_ * cosH - cosLat_ * day.tangent;
  }

  // True when the azimuth lies on the other side of the meridian than the hour.
  bool acrossMeridian(double sinH) const {
    return !wholeCircle_ && Sgn(sinH) != Sgn(std::sin(azimuth));
  }
  // The same by the hour angle itself.
  bool acrossNoon(double H) const { return !wholeCircle_ && Sgn(H) != Sgn(azimuth); }
  // Turns the azimuth by so many half turns.
  void turn(double halves) { azimuth += halves * angles_.PiGreco; }
  // Turns it by the half turn that brings it nearer to the wall's normal.
  void turnToWall() { azimuth -= Sgn(azimuth - declination_) * angles_.PiGreco; }

  // True when the sun is before the wall's face, be it up or not.
  bool beforeWall() const {
    const double aside = azimuth - declination_;
    return wholeCircle_ ? std::cos(aside) > 0 : std::abs(aside) < angles_.PiGreco / 2;
  }

  // The point of the azimuth and altitude. A sun behind the wall gives the point of its opposite.
  void cast() {
    const double aside = azimuth - declination_;
    assign(point, {style_ * std::tan(aside), over(-style_ * tanAltitude, std::cos(aside))});
  }

 private:
  const Angles& angles_;
  bool wholeCircle_;
  double style_, declination_, sinLat_, cosLat_;
};

// --- Hours of the day's length

enum class HourSystem { Italic, Babylonian, Temporary };

// The shadow of the hour n of a system on a day; false where the sun does not rise and set or
// stands behind the wall. Below the horizon the point lies above the foot.
// Sets the hour angle, radians.
bool castHour(UprightShadow& shadow, const Angles& angles, HourSystem system, double n,
              const SolarDay& day, double& H);

// The lines of a system's hours from solstice to solstice, in steps of ten times PassoCurva.
void drawSunHours(Run& run, const Sweep& hours, HourSystem system, Rgb colour);

// --- The polar style

// Where it meets the record's wall.
Punto uprightCentre(const DialParams& params);

// The angle of the substyle from the upright, radians; a quarter turn on the equator.
double uprightSubstyle(const DialParams& params);

// --- The conic of the latitude

// The elevation of the polar style over the record's wall, taken as level on a wall that looks due
// East or West and at the poles.
double uprightElevation(const DialParams& params);

// How a dial draws its conic: the colour of a hyperbola, and the root (+1 or -1) of the vertex that
// it counts as the first.
struct ConicLook {
  int hyperbola;
  double firstVertex;
};

// Draws the conic in which the cone round the polar style, as wide as the latitude, meets the wall,
// for the style's elevation; then the lines from the style's laid tip to the centre and to the
// vertices. Sets the conic's coefficients and the record's Eccentricita.
void drawLatitudeConic(Run& run, ConicSet& conic, double elevation, const SubstyleTurn& turn,
                       const ConicLook& look);

// Writes the eccentricity of the last conic.
void writeEccentricity(Run& run);

}  // namespace dialwright
