// Every dial against its shadows: where the suns of its hours and days throw them, it draws.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "dials/shadow_model.hpp"
#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"

namespace dialwright {
namespace {

using namespace sky;

// --- The scenes, of what stands in the panel

struct Site {
  double latitude = 45.7438, declination = -14.57, reclination = 0;
  double side = 1;  // of a bent wall, +1 outside
};

Vec poleAt(const Site& at) { return {0, std::cos(rad(at.latitude)), std::sin(rad(at.latitude))}; }

Shadows plate(const Site& at) {
  const Plane plane = Plane::facing(at.declination, at.reclination);
  return shadowsOf(tip(0.2 * plane.normal), flat(plane));
}
Shadows cylinder(const Site& at) {
  return shadowsOf(tip(0.2 * Plane::facing(at.declination, 0).normal),
                   round(0.4, at.side, at.declination));
}
Shadows parabola(const Site& at) {
  return shadowsOf(tip(0.2 * Plane::facing(at.declination, 0).normal),
                   parabolic(0.4, at.side, at.declination));
}
Shadows hat(const Site&) { return shadowsOf(ringsPoint(0.14 * kNorth, 0.4, 1), round(0.14, 1, 0)); }

// A level floor, drawn as it is seen from the North.
const Plane kFloor = Plane::facing(180, 90);

Shadows fountain(const Site&) { return shadowsOf(ringsPoint(0.2 * kUp, 0.3, -1), flat(kFloor)); }
Shadows ball(const Site&) { return shadowsOf(ballsPoint(0.1 * kUp, 0.1, kUp), flat(kFloor)); }
Shadows halfBall(const Site& at) {
  const Plane wall = Plane::facing(at.declination, 0);
  return shadowsOf(ballsPoint({}, 0.2, wall.normal), flat(wall));
}
// A wire over the substyle, and one across it, nearer by the sine of the pole's height.
Shadows equalAngles(const Site& at) {
  const Plane wall = Plane::facing(at.declination, 0);
  const double sine = -dot(poleAt(at), wall.normal);
  return crossedWires(wall, unit(poleAt(at) + sine * wall.normal), 0.2, 0.2 * sine);
}
Shadows chain(const Site& at) {
  return wireAndChain(Plane::facing(at.declination, 0), 0.2, 0.1, 0.5, 0.25);
}

Shadows cylindersBorder(const Site& at) {
  return shadowsOf(ringsTangent(poleAt(at), -0.5 * kNorth, 0.4, 1), round(0.5, -1, 0));
}
Shadows conesBorder(const Site& at) {
  const double slope = (0.5 - 0.3) / 0.8, length = 0.5 / std::sin(std::atan(slope));
  const Hollow cone{-0.5 / slope * kUp, kUp, kNorth, kEast, std::atan(slope)};
  return shadowsOf(ringsTangent(poleAt(at), {}, 0.45, 0),
                   {[=](Vec p) { return cone.behind(p); },
                    [=](Vec p) {
                      const double rho = cone.reach(p), turn = cone.turn(p);
                      return Spot{rho * std::sin(turn), rho * std::cos(turn) - length};
                    }});
}
// A disc that touches the wall; its outer edge is the one away from the sun.
Shadows discsBorder(const Site& at) {
  const Plane wall = Plane::facing(at.declination, 0);
  return shadowsOf(ringsTangent(poleAt(at), {}, 0.2, at.side), flat(wall, -0.2 * wall.normal));
}

Shadows scaphe(const Site& at) {
  const Hollow cone = hollowAboutAxis(at.latitude, 30, 0.2);
  return shadowsOf(tip({}), {[=](Vec p) { return cone.behind(p); },
                             [=](Vec p) {
                               const double rho = cone.reach(p), turn = cone.turn(p);
                               return Spot{rho * std::cos(turn), rho * std::sin(turn)};
                             }});
}

// --- The families of suns, hour angles and declinations in degrees

using Suns = std::vector<std::pair<double, double>>;

constexpr double kDays[] = {-21, -12, -3, 4, 13, 22};

// Of a zone whose meridian lies so far to the East.
Suns sunsOfHours(double zone) {
  Suns suns;
  for (double H = -75; H <= 75; H += 15) {
    for (const double d : kDays) suns.push_back({H - zone, d});
  }
  return suns;
}
Suns sunsOfDays(std::initializer_list<double> days) {
  Suns suns;
  for (const double d : days) {
    for (double H = -73; H <= 75; H += 7.3) suns.push_back({H, d});
  }
  return suns;
}
// Of hours since sunrise (sense 1) or up to sunset (-1).
Suns sunsOfOldHours(double latitude, double sense) {
  Suns suns;
  for (const double d : kDays) {
    const double arc = deg(semiArc(rad(latitude), rad(d)));
    for (int hour = 2; hour < 10; ++hour) suns.push_back({sense * (15 * hour - arc), d});
  }
  return suns;
}

struct Family {
  char letter;
  const char* boxes;
  Suns (*suns)(double latitude);
};
const Family kFamilies[] = {
    {'h', "chkOreAstronomiche", [](double) { return sunsOfHours(0); }},
    {'z', "chkOreAstronomiche ck_Etna", [](double) { return sunsOfHours(15 - 7.6438); }},
    {'d', "Ck_DayLightCurves ck_Equinoziale",
     [](double) {
       return sunsOfDays({-23.445, -20.1552, -11.4746, 0, 11.4746, 20.1552, 23.445});
     }},
    {'s', "",
     [](double) {
       return sunsOfDays({-23.445, 0, 23.445});
     }},
    {'i', "ck_Italiche", [](double latitude) { return sunsOfOldHours(latitude, -1); }},
    {'b', "ck_babiloniche", [](double latitude) { return sunsOfOldHours(latitude, 1); }}};

// --- The drawing

double distanceFromSegment(Spot p, Spot from, Spot to) {
  const double dx = to.x - from.x, dy = to.y - from.y;
  const double square = std::max(dx * dx + dy * dy, 1e-30);
  const double part = std::clamp(((p.x - from.x) * dx + (p.y - from.y) * dy) / square, 0.0, 1.0);
  return distance(p, {from.x + part * dx, from.y + part * dy});
}

// Whether a line passes a spot, or two dots of one colour that are near have it between them.
bool passes(const DisplayList& list, Spot p) {
  constexpr double kOn = 0.0003, kNear = 0.02;
  for (const LineRecord& l : list.lines) {
    if (distanceFromSegment(p, {l.x1, -l.y1}, {l.x2, -l.y2}) < kOn) return true;
  }
  std::vector<PointRecord> dots;
  for (const PointRecord& dot : list.points) {
    if (distance({dot.x, -dot.y}, p) < kNear) dots.push_back(dot);
  }
  for (const PointRecord& a : dots) {
    for (const PointRecord& b : dots) {
      if (a.colour == b.colour && distanceFromSegment(p, {a.x, -a.y}, {b.x, -b.y}) < kOn)
        return true;
    }
  }
  return false;
}

struct Window {
  double right, up, down;
  bool holds(Spot p) const { return std::abs(p.x) < right && p.y < up && p.y > -down; }
};

struct Row {
  int program;
  const char* settings;
  const char* families;
  Shadows (*scene)(const Site&);
  std::vector<Site> sites;
  Window window;     // that the shadows are looked for in
  double least = 1;  // share of them: dots that are swept along one coordinate miss some across it
};

const std::vector<Site> kWalls = {{}, {45, 37}, {62, -60}, {20, 20}};
const std::vector<Site> kPlanes = {{}, {45, 37, 25}, {30, -40, 10}, {45, 160, 60}};
const std::vector<Site> kBent = {{}, {.side = -1}, {60, 25}};
const std::vector<Site> kLatitudes = {{}, {52}, {30}};
constexpr Window kOnWall{0.4, 0.1, 0.6}, kOnBent{0.3, 0.1, 0.5}, kOnFloor{0.45, 0.45, 0.45},
    kInside{0.9, 0, 0.6};

const Row kRows[] = {{1, "TxtInizio=6 TxtFine=18", "hzd", plate, kWalls, kOnWall},
                     {2, "optX txt_Definition=1", "hzdib", plate, kPlanes, kOnWall, 0.65},
                     {2, "optY txt_Definition=1", "hzdib", plate, kPlanes, kOnWall, 0.5},
                     {2, "optX", "h", plate, {{45.7438, 0, 90 - 45.7438}}, kOnWall},
                     {3, "", "hdib", plate, kPlanes, kOnWall, 0.7},
                     {4, "", "hzdib", plate, kPlanes, kOnWall, 0.75},
                     {4, "", "hz", plate, {{45, 90}, {45, -90}}, kOnWall},
                     {5, "", "hzdib", plate, kWalls, kOnWall, 0.85},
                     {5, "", "hzd", plate, {{0, 30}}, kOnWall},
                     {5, "", "h", plate, {{0, -90}}, kOnWall},
                     {6, "TxtInizio=6 TxtFine=18", "hzdib", plate, kWalls, kOnWall},
                     {7, "", "hzdib", plate, kPlanes, kOnWall, 0.96},
                     {7, "y1txt=0.6 y2txt=-0.6", "hzd", plate, {{45, 0, 90}}, kOnFloor},
                     {8, "txt_Definition=1", "hdib", cylinder, kBent, kOnBent},
                     {9, "txt_Definition=1", "hzdib", cylinder, kBent, kOnBent, 0.85},
                     {10, "txt_Definition=1", "hzs", parabola, kBent, kOnBent, 0.8},
                     {11, "txt_Definition=1", "hdib", cylinder, kBent, kOnBent},
                     {12, "", "hzdib", cylinder, kBent, kOnBent},
                     {13, "ck_Orizzonte", "hzdib", hat, kLatitudes, kInside},
                     {16, "", "hzdib", fountain, kLatitudes, kOnFloor},
                     {17, "", "hd", equalAngles, kWalls, kOnWall},
                     {18, "TxtInizio=1 TxtFine=23", "hzdib", chain, kWalls, kOnWall},
                     {22, "", "hzdib", ball, kLatitudes, kOnFloor},
                     {26, "TxtInizio=1 TxtFine=23", "hzdib", halfBall, kWalls, kOnWall},
                     {35, "txt_R2=0.4", "h", cylindersBorder, kLatitudes, kInside},
                     {36, "TxtStilo=0.3", "h", conesBorder, kLatitudes, kInside, 0.95},
                     {38, "txt_R2=0", "h", discsBorder, {{.side = -1}, {45, 37, 0, -1}}, kOnWall},
                     {39, "txt_R2=0", "h", discsBorder, kWalls, kOnWall},
                     {40, "", "hib", scaphe, kLatitudes, {2, 2, 2}}};

void expectDrawn(const Row& row, const Site& at, const Family& family) {
  SCOPED_TRACE(testing::Message() << "program " << row.program << ' ' << row.settings << " at "
                                  << at.latitude << ' ' << at.declination << ' ' << at.reclination
                                  << ": " << family.letter);
  DialCase dial(row.program, "TxtStilo=0.2 " + std::string(row.settings));
  dial.with(family.boxes).set(Field::txtLAT, textOf(at.latitude));
  dial.set(Field::txtDecl, textOf(at.declination));
  dial.set(Field::txtReclinZ, textOf(90 - at.reclination));
  dial.panel.setState(at.side > 0 ? Field::OptConvex : Field::Optconcave, true);
  dial.run();
  const Shadows shadows = row.scene(at);
  int wanted = 0, found = 0;
  for (const auto& [H, d] : family.suns(at.latitude)) {
    const Vec sunwards = sun(rad(at.latitude), rad(H), rad(d));
    if (sunwards.z < 0.05) continue;
    for (const Spot spot : shadows(sunwards)) {
      if (!row.window.holds(spot)) continue;
      ++wanted;
      found += passes(dial.sheet.list(), spot);
    }
  }
  EXPECT_GT(wanted, 8);
  EXPECT_GE(found, row.least * wanted) << "of " << wanted;
}

TEST(Shadows, AreDrawn) {
  for (const Row& row : kRows) {
    for (const Site& at : row.sites) {
      for (const Family& family : kFamilies) {
        if (std::string_view(row.families).find(family.letter) != std::string_view::npos)
          expectDrawn(row, at, family);
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
