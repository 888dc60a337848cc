// Programs 1, 6 and 7, the flat dials that trace rows of suns: their styles and substyles against
// planes in the sun, and what they refuse.
#include <gtest/gtest.h>

#include <cmath>

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
  int substyleInk;
  const char* noon;
};
const Dial kLight{"1", Item::M_Light, DisegnaVerticaleLuce, 3, ""};
const Dial kSpherical{"6", Item::mnuVertSph, DisegnaVerticale, 12, "12h"};
const Dial kUniversal{"7", Item::mnuUni, DisegnaUniversale, 15, "maxpendenza"};
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

TEST(SunRows, SubstyleIsTheAxisSeenFromTheSun) {
  onEach(kAll, [](const Dial& dial, FlatWall& wall) {
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
