// Programs 1, 6 and 7, the flat dials that trace rows of suns, against planes in the sun: the
// families that they share are where the tip's shadow falls, each in its own inks and layers.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "dials/flat/universale.hpp"
#include "dials/flat/verticale_luce.hpp"
#include "dials/flat/verticale_sferica.hpp"
#include "support/flat_wall.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::rad;

struct Dial {
  const char* name;
  Item item;
  Driver driver;
  const char* equinox;
  Rgb equinoxInk;
  int substyleInk;
  double inner;  // of the zodiac's boundaries, degrees
  const char* noon;
};
const Dial kLight{"1", Item::M_Light, DisegnaVerticaleLuce, "eq", rgb(49, 172, 238), 3, 11.4746,
                  ""};
const Dial kSpherical{"6",  Item::mnuVertSph, DisegnaVerticale, "equinox", palette(9), 12, 11.47464,
                      "12h"};
const Dial kUniversal{"7",         Item::mnuUni, DisegnaUniversale, "0°",
                      palette(12), 15,           11.4746,           "maxpendenza"};
const std::vector<const Dial*> kAll = {&kLight, &kSpherical, &kUniversal};
const std::vector<const Dial*> kLayered = {&kSpherical, &kUniversal};

const std::vector<FlatSite> kWalls = {{45.7438, -14.57}, {45.7438, 37}, {45.7438, -75}, {62, 0.5},
                                      {28, -50},         {45, 130},     {35, 90},       {65, 180}};
const std::vector<FlatSite> kPlanes = {{45.7438, 37, 25}, {30, -100, 10}, {52, 0, 60},
                                       {5, 20, -15},      {62, 170, 20},  {45, 0, 90}};

template <class Test>
void onEach(const std::vector<const Dial*>& dials, Test test) {
  for (const Dial* dial : dials) {
    std::vector<FlatSite> sites = kWalls;
    if (dial == &kUniversal) sites.insert(sites.end(), kPlanes.begin(), kPlanes.end());
    for (const FlatSite& site : sites) {
      SCOPED_TRACE(testing::Message() << "program " << dial->name << " at " << site.latitude << ' '
                                      << site.declination << ' ' << site.reclination);
      FlatWall wall(dial->item, dial->driver, site);
      if (site.reclination != 0) wall.set(Field::y1txt, "0.6").set(Field::y2txt, "-0.6");
      test(*dial, wall);
    }
  }
}

bool litInWinter(const FlatWall& wall) { return std::abs(wall.site.declination) < 150; }

// From sample to sample within the gap, inside the window, with the sun up.
void expectTraced(const FlatWall& wall, const LineRecord& line, double gap = 0.01) {
  EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), gap);
  EXPECT_LT(std::abs(line.x1), 0.5);
  EXPECT_GT(wall.sun(line.x1, line.y1).z, -1e-7);
}

TEST(SunRows, HourLinesLieInTheirHourPlanes) {
  onEach(kLayered, [](const Dial& dial, FlatWall& wall) {
    for (const double zone : {0.0, 7.3562}) {
      wall.sheet.Clear();
      wall.check(Field::chkOreAstronomiche).check(Field::ck_Etna, zone > 0).run();
      const std::vector<LineRecord> lines = wall.linesOf("oreastro");
      EXPECT_GT(lines.size(), 500u);
      for (const LineRecord& line : lines) {
        // A sun behind the plane draws the point of its opposite, of the hour twelve later.
        ASSERT_LT(wall.offHour(-zone, line.x1, line.y1, 7.5), kAngleSlack);
        const double halves = std::round((wall.hourAngle(line.x1, line.y1) + zone) / 7.5);
        const double t = std::remainder(halves * 7.5, 180);
        const bool evening = std::abs(t) == 90 && line.colour != palette(7);
        EXPECT_EQ(line.colour, palette(t == 0 ? 12 : evening ? 9 : 7));
        ASSERT_LT(std::abs(wall.declination(line.x1, line.y1)), 23.445 + kAngleSlack);
        expectTraced(wall, line);
      }
      const bool southern = std::abs(wall.site.declination) < 20 && wall.site.reclination == 0;
      if (&dial != &kUniversal || !southern) continue;
      EXPECT_LT(lines.front().x1, lines.back().x1) << "from morning to evening";
    }
  });
}

TEST(SunRows, CurvesAreTheSunsDays) {
  onEach(kLayered, [](const Dial& dial, FlatWall& wall) {
    wall.check(Field::Ck_DayLightCurves);
    std::size_t count = 0, opposite = 0;
    for (const double own : {-8.0, 8.0}) {
      wall.sheet.Clear();
      wall.set(Field::txtLineofdeclination, textOf(own)).run();
      for (const auto& [layer, declination, ink] :
           {std::tuple{"-23.445°", -23.445, palette(12)},
            {"23.445°", 23.445, palette(12)},
            {"-20.15°", -20.1552, palette(13)},
            {"20.15°", 20.1552, palette(13)},
            {"11.47°", dial.inner, palette(11)},
            {"-11.47°", -dial.inner, palette(11)},
            {own < 0 ? "-8" : "8", own, rgb(255, 127, 39)}}) {
        for (const LineRecord& line : wall.linesOf(layer)) {
          const double d = wall.declination(line.x1, line.y1);
          // A sun behind the plane gives the day of its opposite, but for the line of one's own.
          const bool twin = declination != own && d * declination < 0;
          ASSERT_NEAR(d, twin ? -declination : declination, kAngleSlack) << layer;
          EXPECT_EQ(line.colour, ink);
          expectTraced(wall, line, &dial == &kUniversal ? 0.01 : 0.015);
          opposite += twin ? 1 : 0;
          ++count;
        }
      }
      EXPECT_TRUE(own > 0 || wall.linesOf("-8").empty() != litInWinter(wall));
    }
    EXPECT_GT(count, 1000u);
    EXPECT_TRUE(opposite < count / 2 || !litInWinter(wall));
  });
}

TEST(SunRows, DayLongHoursAreCountedFromSunriseAndSunset) {
  using HourOf = double (*)(double H, double arc);
  const HourOf italic = [](double H, double arc) { return (H - arc) / 15 + 24; };
  const HourOf babylonian = [](double H, double arc) { return (H + arc) / 15; };
  const HourOf temporary = [](double H, double arc) { return (H / arc + 1) * 6; };
  const struct {
    const Dial* dial;
    Field box;
    HourOf hourOf;
    Rgb ink;
    const char* layer;
    double first, last;
  } systems[] = {{&kLight, Field::ck_Italiche, italic, rgb(255, 128, 255), "0", 8, 20},
                 {&kLight, Field::ck_babiloniche, babylonian, palette(13), "0", 3, 6},
                 {&kLight, Field::ckTemp, temporary, palette(6), "0", 1, 12},
                 {&kSpherical, Field::ck_Italiche, italic, palette(12), "0", 6, 24},
                 {&kSpherical, Field::ck_babiloniche, babylonian, palette(13), "0", 0, 18},
                 {&kSpherical, Field::ckTemp, temporary, palette(6), "0", 1, 12},
                 {&kUniversal, Field::ck_Italiche, italic, palette(12), "Ita", 5, 23},
                 {&kUniversal, Field::ck_babiloniche, babylonian, palette(12), "Bab", 1, 13},
                 {&kUniversal, Field::ckTemp, temporary, palette(12), "Temp", 0, 12}};
  for (const auto& system : systems) {
    std::set<double> drawn;
    onEach({system.dial}, [&](const Dial&, FlatWall& wall) {
      wall.check(system.box).set(Field::TxtInizio, textOf(system.first));
      wall.set(Field::TxtFine, textOf(system.last)).run();
      std::vector<double> hours;
      for (const LineRecord& line : wall.linesIn(system.ink)) {
        if (line.x2 == 0 && line.y2 == 0) continue;  // a line of the construction, to the foot
        expectTraced(wall, line);
        EXPECT_EQ(wall.sheet.list().name(line.layer), system.layer);
        const double d = wall.declination(line.x1, line.y1);
        const double arc = sky::deg(sky::semiArc(wall.latitude, rad(d)));
        const double hour = system.hourOf(wall.hourAngle(line.x1, line.y1), arc);
        ASSERT_NEAR(hour, std::round(hour), 1e-4);
        ASSERT_LE(std::abs(d), 23.445 + kAngleSlack);
        // On the horizon stands the opposite sun as well.
        if (wall.sun(line.x1, line.y1).z > 1e-6) hours.push_back(std::round(hour));
      }
      const bool halfDay = system.dial == &kLight && std::abs(wall.site.declination) >= 90;
      EXPECT_TRUE(hours.size() > 10 || !litInWinter(wall) || halfDay);
      EXPECT_TRUE(std::is_sorted(hours.begin(), hours.end()));
      drawn.insert(hours.begin(), hours.end());
    });
    // An hour at either end may be the horizon itself.
    EXPECT_GE(*drawn.begin(), system.first);
    EXPECT_LE(*drawn.begin(), system.first + 1);
    EXPECT_GE(*drawn.rbegin(), system.last - 1);
    EXPECT_LE(*drawn.rbegin(), system.last);
  }
}

TEST(SunRows, EquinoctialAndSubstyle) {
  onEach(kAll, [](const Dial& dial, FlatWall& wall) {
    wall.check(Field::ck_Equinoziale).run();
    const std::vector<LineRecord> equinoctial = wall.linesOf(dial.equinox);
    for (const LineRecord& line : equinoctial) {
      EXPECT_NEAR(wall.declination(line.x1, line.y1), 0, kAngleSlack);
      EXPECT_EQ(line.colour, dial.equinoxInk);
    }
    const bool outside = std::abs(wall.site.declination) > 90 || wall.site.latitude < 10;
    EXPECT_TRUE(!equinoctial.empty() || outside);
    wall.check(Field::ck_Equinoziale, false).sheet.Clear();
    wall.check(Field::ck_Sustilare).run();
    const double right = sky::dot(wall.pole(), wall.plane.right);
    const double up = sky::dot(wall.pole(), wall.plane.up);
    const std::vector<LineRecord> substyle = wall.linesIn(palette(dial.substyleInk));
    // An upright one has no slope to be drawn with.
    EXPECT_EQ(substyle.empty(), &dial == &kUniversal && wall.site.declination == 0);
    for (const LineRecord& line : substyle) {
      const double beside = line.x1 * up + line.y1 * right;
      EXPECT_NEAR(beside / std::max(1.0, std::abs(line.y1)), 0, 1e-8);
    }
  });
}

// The axis through the tip meets the plane in the centre; the tip is laid down beside the foot,
// square to the substyle, which points to the centre.
TEST(SunRows, StyleIsLaidIntoThePlane) {
  for (const char* bottom : {"5", "0.1"}) {
    onEach(kLayered, [bottom](const Dial& dial, FlatWall& wall) {
      const std::string edge = bottom;
      wall.set(Field::x1txt, "-5").set(Field::x2txt, "5");
      wall.set(Field::y1txt, edge).set(Field::y2txt, '-' + edge).check(Field::ck_Triangolo).run();
      const LineRecord upright = wall.linesOf("ortostilo").at(0);
      EXPECT_NEAR(std::hypot(upright.x1, upright.y1), wall.kStyle, 1e-12);
      const bool sideWall = std::abs(wall.site.declination) == 90;
      const std::vector<LineRecord> noon = wall.linesOf(dial.noon);
      ASSERT_EQ(noon.size(), sideWall ? 0u : 1u);
      const LineRecord style = wall.linesOf("assostilo").back();
      EXPECT_EQ(std::pair(style.x2, style.y2), std::pair(upright.x1, upright.y1));
      if (sideWall) return;
      const sky::Spot centre = wall.centre(), end{style.x1, -style.y1};
      EXPECT_NEAR(noon[0].x1, centre.x, 1e-8);
      EXPECT_NEAR(noon[0].y2 - noon[0].y1, 2 * std::stod(edge), 1e-12);
      EXPECT_NEAR(upright.x1 * centre.x - upright.y1 * centre.y, 0, 1e-8);
      const double cross =
          (end.x - centre.x) * (-style.y2 - centre.y) - (style.x2 - centre.x) * (end.y - centre.y);
      EXPECT_NEAR(cross / sky::distance(centre, {style.x2, -style.y2}), 0, 1e-7);
      if (std::max(std::abs(centre.x), std::abs(centre.y) * 5 / std::stod(edge)) < 5) {
        EXPECT_LT(sky::distance(end, centre), 2e-8);
      } else {
        EXPECT_NEAR(std::max(std::abs(end.x), std::abs(end.y) * 5 / std::stod(edge)), 5, 1e-9);
      }
      if (wall.site.declination == 0) return;
      for (const sky::Spot& s : spotsOf(wall.linesOf("sottostilo").at(0)))
        EXPECT_NEAR(s.x * centre.y + s.y * centre.x, 0, 1e-7);
    });
  }
}

TEST(SunRows, RefuseTheSouth) {
  const auto refusal = [](const Dial& dial) {
    FlatWall wall(dial.item, dial.driver, {-10, 10});
    wall.checkEveryBox().check(Field::ckFunction, false).run();
    EXPECT_TRUE(wall.refused && !wall.busy && wall.panel[Field::cmdData].visible);
    EXPECT_EQ(wall.entities(), 0u);
    EXPECT_EQ(wall.panel.on(Field::ckFunction), &dial == &kUniversal);
    return wall.messages;
  };
  using Messages = std::vector<std::string>;
  EXPECT_EQ(refusal(kLight), Messages{"Sorry, unable to work in the Southern hemisphere "});
  EXPECT_EQ(refusal(kSpherical), Messages{"For sundials in the Southern hemisphere please use "
                                          "programme 7) and read the rules"});
  EXPECT_EQ(refusal(kUniversal), Messages{"Use positive latitude also for the Southern hemisphere "
                                          "and click on F; after RUN press Key InvertX "});
}

TEST(SunRows, TakeAnyInput) {
  for (const Dial* dial : kAll) {
    for (const Field box : {Field::CkConic, Field::ckAlt}) {
      expectBounded(dial->item, dial->driver,
                    {box, Field::ck_Lemniscate, Field::ck_Orizzonte, Field::ck_Sustilare,
                     Field::ck_Triangolo, Field::ck_Italiche, Field::ckTemp, Field::ckArabi,
                     Field::ckAsr, Field::CkQibla, Field::ckAz, Field::ckZodiaco},
                    {Field::txtLAT, Field::txtLON, Field::TxtFuso, Field::txtDecl,
                     Field::txtReclinZ, Field::TxtStilo, Field::TxtHour, Field::txt_Definition,
                     Field::TxtInizio, Field::TxtFine, Field::x1txt, Field::y2txt, Field::txtArabi,
                     Field::txtLineofdeclination, Field::txtQlat, Field::txtQlon});
    }
  }
}

}  // namespace
}  // namespace dialwright
