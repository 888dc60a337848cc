// The report's block for flat dials: the triangle of the style, its hours and the dials that would
// be equal to it elsewhere.
#include <cmath>

#include "numerics/numbers.hpp"
#include "shell/report_lines.hpp"

namespace dialwright {

namespace {

constexpr Rgb kOrange = rgb(235, 105, 18);

void triangle(const Report& r) {
  r.say({{"T R I A N G L E "}});
  if (!r.f.hasCentre()) {
    r.say({{"Style: hypotenuse = inf"}});
  } else {
    assign(r.p.IpotenusaStilo, over(r.p.Stilo, r.f.elevationSine));
    r.ink(palette(9));
    r.say({{"Style: hypotenuse ", cut(std::abs(r.p.IpotenusaStilo))}});
  }
  r.ink(palette(13));
  r.say({{"Perpendicular style: cathetus ", cut(r.p.Stilo)}});
  r.ink(palette(7));
  if (!r.f.hasCentre()) {
    r.ink(palette(14));
    r.say({{"Distance Foot Center: cathetus = inf"}});
    return;
  }
  const double squared = r.p.IpotenusaStilo * r.p.IpotenusaStilo - r.p.Stilo * r.p.Stilo;
  r.say({{"Distance Foot Center: cathetus  ", cut(root(squared))}});
  r.blank();
}

std::string centreText(const Report& r) {
  const std::string infinite = r.run.T("inf");
  const std::string x = r.f.hasCentre() ? cut(r.f.centre.x) : infinite;
  const std::string y = r.f.hasCentre() ? cut(r.f.centre.y) : infinite;
  return x + std::string(kColumnGap) + y;
}

void styleLines(const Report& r) {
  const double hour = clockHour(r.p, r.p.OrarioSustilare);
  r.say({{"Style elevation  ", cutDegrees(r.p, r.p.ElevStilo), kDegree},
         {"Substyle distance  : ", cutDegrees(r.p, r.p.SustilareReport), kDegree},
         {"Center coordinates  : ", centreText(r)},
         {"Angle between max slope line and noon  : ", textOf(r.f.slopeToNoon), kDegree},
         {"substyle hour angle : ", cutDegrees(r.p, r.p.OrarioSustilare), kDegree},
         {"Substyle hour = ", cut(hour), " h"},
         {"Corrected in longitude Substyle hour = ", cut(hour + r.f.longitudeCorrection / 60),
          " h"}});
}

// The hours of the hour line that lies level. A plane that looks due South or North has no such
// angle: the noon hour stands for it, or rather both sixes.
std::string horizontalHour(const Report& r) {
  double horizontal = 0;
  const double sinLat = std::sin(r.p.LatRad * r.p.SegnoEmisfero);
  const double slope = sinLat * std::tan(r.p.DeclRad);
  constexpr double kLevel = 1e-8;  // the circle constant leaves half a turn a little off
  if (r.run.trueShadows() && std::abs(slope) < kLevel) return "6" + std::string(kColumnGap) + "18";
  assign(horizontal, arctan(over(-1, slope)));
  return cut(clockHour(r.p, horizontal));
}

void hourLines(const Report& r) {
  const std::string horizon =
      r.f.level ? r.run.T("inf") : roundedText(r.p.Stilo * std::tan(r.p.ReclinRad), 5);
  r.say({{"horizontal hour:    ", horizontalHour(r)},
         {"vertical hour:    ", cut(r.f.verticalHour)},
         {"longitude correction:    ", cut(r.f.longitudeCorrection), " m"},
         {"substyle longitude = ", roundedText(-r.f.longitudeCorrection, 4)},
         {"horizon ordinate:    ", horizon, " m"}});
}

void equivalentHorizontal(const Report& r) {
  const double hours = r.p.degrees(r.p.OrarioSustilare) / 15;
  r.blank();
  r.say({{"Equivalent horizontal dial : "},
         {"Latitude f0  ", roundedDegrees(r.p, r.p.ElevStilo, 5), kDegree},
         {"Longitude ", roundedDegrees(r.p, r.p.OrarioSustilare, 5), kDegree},
         {"Longitude ", roundedText(hours, 5), " h"},
         {"Longitude ", hoursMinutesSeconds(hours)}});
  r.blank();
}

// The angle of a point (y along, x across) in half a turn either way.
double halfTurn(const Angles& angles, double y, double x) {
  const double angle = angles.ArcTanPieno(y, x);
  return angle > angles.PiGreco ? angle - 2 * angles.PiGreco : angle;
}

// A wall is the same plane where its line of greatest slope points to the zenith: the latitude and
// the hour angle of that point of the sky, and the azimuth of the plane's normal there.
void equivalentWall(const Report& r) {
  const DialParams& p = r.p;
  const double sinF = std::sin(p.LatRad), cosF = std::cos(p.LatRad);
  const double sinR = std::sin(p.ReclinRad), cosR = std::cos(p.ReclinRad);
  const double sinD = std::sin(p.DeclRad), cosD = std::cos(p.DeclRad);
  const double latitude = p.ArcSin(sinF * cosR + cosF * sinR * cosD);
  const double declination = halfTurn(p, sinD * cosF, cosD * cosF * cosR - sinF * sinR);
  const double longitude = halfTurn(p, -sinD * sinR, cosF * cosR - sinF * sinR * cosD);
  r.say({{"latitude f1 =  ", roundedDegrees(p, latitude, 5), kDegree},
         {"declination d1 =  ", roundedDegrees(p, declination, 5), kDegree},
         {"longitude lambda =  ", roundedDegrees(p, longitude, 5), kDegree},
         {"click off analemma"},
         {"click on SM time"},
         {"select ST Zone = 0"}});
}

void equivalentVertical(const Report& r) {
  const auto chosen = [&r](Item item) { return r.run.panel[item].checked; };
  const bool reclines =
      chosen(Item::mnuUni) || chosen(Item::M_Proiettivo) || chosen(Item::M_nProiettivo);
  if (r.f.ReclinGradi == 0 || !reclines) return;
  r.ink(kOrange);
  r.say({{"Vertical equivalent dial :"}});
  if (!r.f.level) {
    equivalentWall(r);
    return;
  }
  const double latitude = r.p.degrees(r.p.LatRad);
  r.say({{"latitude f1 =  ", roundedText(90 - latitude, 5), kDegree},
         {"declination d1 =  ", "180", kDegree},
         {"reclination =  0", "", kDegree},
         {"ordinate of horizon =  inf. "},
         {"height of the style  =  ", cut(latitude), kDegree}});
}

}  // namespace

void flatBlock(const Report& r) {
  triangle(r);
  styleLines(r);
  hourLines(r);
  equivalentHorizontal(r);
  equivalentVertical(r);
}

}  // namespace dialwright
