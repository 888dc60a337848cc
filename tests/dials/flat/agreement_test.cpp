// The flat dials against each other: what two of them draw, each by its own method, is the same
// figure to 0.01 mm.
#include <gtest/gtest.h>

#include "dials/flat/frinter.hpp"
#include "dials/flat/inclinati.hpp"
#include "dials/flat/nuovo_proiettivo.hpp"
#include "dials/flat/proiettivo.hpp"
#include "dials/flat/universale.hpp"
#include "dials/flat/verticale_luce.hpp"
#include "dials/flat/verticale_sferica.hpp"
#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

using sky::Spot;
constexpr double kAgreement = 1e-5;  // metres

struct Method {
  const char* name;
  Item item;
  Driver driver;
  Field variable = Field::None;
};
const Method kLight{"1", Item::M_Light, DisegnaVerticaleLuce};
const Method kSpaceX{"2 X", Item::M_Inclinati, DisegnaInclinati, Field::optX};
const Method kSpaceY{"2 Y", Item::M_Inclinati, DisegnaInclinati, Field::optY};
const Method kFormer{"3", Item::M_Proiettivo, DisegnaProiettivo};
const Method kLatter{"4", Item::M_nProiettivo, DisegnaNuovoProiettivo};
const Method kPlane{"5", Item::M_Frinter, DisegnaFrinter};
const Method kSpherical{"6", Item::mnuVertSph, DisegnaVerticale};
const Method kUniversal{"7", Item::mnuUni, DisegnaUniversale};

FlatWall drawn(const Method& method, const FlatSite& site, Field family) {
  FlatWall wall(method.item, method.driver, site);
  if (method.variable != Field::None) wall.check(method.variable);
  wall.set(Field::txt_Definition, "1").set(Field::TxtInizio, "6").set(Field::TxtFine, "18");
  wall.check(family).run();
  return wall;
}

// How far a spot lies beside a line; more than that when it lies beyond the line's ends.
double besides(const LineRecord& line, Spot p, bool endless) {
  const Spot a{line.x1, -line.y1}, along{line.x2 - line.x1, line.y1 - line.y2};
  const double length = std::hypot(along.x, along.y);
  const double part = ((p.x - a.x) * along.x + (p.y - a.y) * along.y) / (length * length);
  if (length == 0 || (!endless && (part < 0 || part > 1))) return 1;
  return std::abs((p.x - a.x) * along.y - (p.y - a.y) * along.x) / length;
}

// The spots that a day's sun throws into the window stand on the other's lines. Some have none
// beside them, at the ends and where segments are too long to be drawn; most must have.
void expectOn(const FlatWall& other, const FlatWall& wall, const std::vector<Spot>& spots,
              bool endless) {
  std::size_t comparable = 0, held = 0;
  for (const Spot spot : spots) {
    const bool inside = std::abs(spot.x) < 0.49 && spot.y > -0.99 && spot.y < 0.19;
    const bool byDay = std::abs(wall.declination(spot.x, -spot.y)) < 23.4 &&
                       std::abs(wall.hourAngle(spot.x, -spot.y)) < 89 &&
                       wall.plane.lit(wall.sun(spot.x, -spot.y));
    if (!inside || !byDay) continue;
    ++comparable;
    double least = 1;
    for (const LineRecord& line : other.sheet.list().lines)
      least = std::min(least, besides(line, spot, endless));
    if (least > 1e-3) continue;
    ASSERT_LT(least, kAgreement) << spot.x << ' ' << spot.y;
    ++held;
  }
  EXPECT_GT(held, 20u);
  EXPECT_GT(held * 10, comparable * 8);
}

// The dots of the curves at 20 and 11.5 degrees, or of the ordinary hours.
std::vector<Spot> dotsOf(const FlatWall& wall, Field family) {
  std::vector<Spot> spots;
  for (const PointRecord& p : wall.sheet.list().points) {
    const bool hour = p.colour == palette(7);
    const bool curve = p.colour == palette(13) || p.colour == palette(11);
    if (family == Field::chkOreAstronomiche ? hour : curve) spots.push_back({p.x, -p.y});
  }
  return spots;
}

void expectDots(const Method& dotted, const Method& lined, const FlatSite& site, Field family) {
  SCOPED_TRACE(std::string(dotted.name) + " on " + lined.name + " at " + textOf(site.declination));
  FlatWall dots = drawn(dotted, site, family), lines = drawn(lined, site, family);
  expectOn(lines, dots, dotsOf(dots, family), false);
}

// The samples of a sampled hour line on the straight ones of another dial.
void expectStraight(const Method& sampled, const Method& straight, const FlatSite& site) {
  SCOPED_TRACE(std::string(sampled.name) + " on " + straight.name + " at " +
               textOf(site.declination));
  FlatWall samples = drawn(sampled, site, Field::chkOreAstronomiche);
  FlatWall lines = drawn(straight, site, Field::chkOreAstronomiche);
  std::vector<Spot> spots;
  for (std::size_t i = 0; i < samples.sheet.list().lines.size(); i += 20) {
    const LineRecord& line = samples.sheet.list().lines[i];
    if (line.colour == palette(7)) spots.push_back({line.x1, -line.y1});
  }
  expectOn(lines, samples, spots, true);
}

TEST(Agreement, OnVerticalWalls) {
  for (const FlatSite& site : {FlatSite{45.7438, -14.57}, {40, 50}}) {
    expectDots(kLight, kUniversal, site, Field::Ck_DayLightCurves);
    expectDots(kLight, kSpherical, site, Field::Ck_DayLightCurves);
    expectStraight(kUniversal, kLight, site);
    expectStraight(kSpherical, kLight, site);
    expectStraight(kUniversal, kPlane, site);
  }
}

TEST(Agreement, OnInclinedPlanes) {
  for (const FlatSite& site : {FlatSite{45.7438, -14.57, 30}, {40, 50, -20}}) {
    for (const Method& method : {kSpaceX, kSpaceY, kFormer, kLatter}) {
      expectDots(method, kUniversal, site, Field::Ck_DayLightCurves);
      expectDots(method, kUniversal, site, Field::chkOreAstronomiche);
    }
  }
}

}  // namespace
}  // namespace dialwright
