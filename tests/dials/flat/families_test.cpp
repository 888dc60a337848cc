// Programs 2 to 5, the flat dials of the classroom: their styles, substyles and horizons, each by
// its own method, and the order of their drawings.
#include <gtest/gtest.h>

#include <cmath>

#include "dials/flat/frinter.hpp"
#include "dials/flat/inclinati.hpp"
#include "dials/flat/nuovo_proiettivo.hpp"
#include "dials/flat/proiettivo.hpp"
#include "support/flat_wall.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

struct Method {
  const char* name;
  Item item;
  Driver driver;
  Field variable;
  const char* triangle;  // ends of the lines 13, 9, 14: Foot, Tip, Centre
  const char* order;     // of all families
  const char* caption;
};

const Method kMethods[] = {
    {"2 X", Item::M_Inclinati, DisegnaInclinati, Field::optX, "FT CT CF",
     "P7 P12 P9 P2 P4 L13 L9 L14 L8 P13 P11 P10 P14 ",
     "Reclining dial by 3D analytic geometry, variable X"},
    {"2 Y", Item::M_Inclinati, DisegnaInclinati, Field::optY, "FT CT FC",
     "P7 P12 P9 P2 P4 L13 L9 L14 L8 P13 P11 P10 ",
     "Declining, reclining dial by 3D analytic geometry, variable y"},
    {"3", Item::M_Proiettivo, DisegnaProiettivo, Field::None, "TF TC CF",
     "P12 L9 L13 L14 L8 P9 P7 P4 P13 P11 P14 L2 ",
     "Flat sundial by projective method : former version"},
    {"4", Item::M_nProiettivo, DisegnaNuovoProiettivo, Field::None, "FT TC FC",
     "P9 P7 P12 L13 L9 L14 P13 P11 P14 L2 ", "Flat sundial by projective method : latter version"},
    {"5", Item::M_Frinter, DisegnaFrinter, Field::None, "TF TC FC",
     "L7 L12 L9 P12 P13 P11 L14 P6 P3 L2 L13 P15 ", "Vertical dial by 2D analytic geometry"}};

bool isProjective(const Method& m) {
  return m.item == Item::M_Proiettivo || m.item == Item::M_nProiettivo;
}

const std::vector<FlatSite> kWalls = {{45.7438, -14.57}, {45, 37},  {45, -75}, {5, 20},
                                      {62, 0.5},         {20, 130}, {50, -165}};
const std::vector<FlatSite> kPlanes = {{45.7438, -14.57, 0}, {45.7438, -14.57, 30}, {45, 37, -25},
                                       {12, 20, 40},         {62, -75, 10},         {20, 130, 20},
                                       {35, -160, -40},      {40, 10, 70},          {45, 160, 80}};

FlatWall dialOf(const Method& method, const FlatSite& site) {
  FlatWall wall(method.item, method.driver, site);
  if (method.variable != Field::None) wall.check(method.variable);
  wall.set(Field::txt_Definition, "1");
  return wall;
}

template <class Test>
void onEveryPlane(Test test) {
  for (const Method& method : kMethods) {
    for (const FlatSite& site : method.item == Item::M_Frinter ? kWalls : kPlanes) {
      SCOPED_TRACE(testing::Message() << "program " << method.name << " at " << site.latitude << ' '
                                      << site.declination << ' ' << site.reclination);
      FlatWall wall = dialOf(method, site);
      test(method, wall);
    }
  }
}

TEST(FlatFamilies, SubstyleAndHorizon) {
  onEveryPlane([](const Method& method, FlatWall& wall) {
    const sky::Spot centre = wall.centre();
    // Where the axis points down on the plane, the arcsine of the former projection mirrors it.
    const bool mirrored =
        method.item == Item::M_Proiettivo && sky::dot(wall.pole(), wall.plane.up) < 0;
    const std::vector<sky::Spot> substyle = wall.addedBy(Field::ck_Sustilare, 9);
    EXPECT_FALSE(substyle.empty());
    for (const sky::Spot& s : substyle) {
      const double x = mirrored ? -s.x : s.x;
      ASSERT_NEAR((x * centre.y + s.y * centre.x) / std::hypot(centre.x, centre.y), 0, 1e-8);
    }
    if (method.item == Item::M_Inclinati || method.item == Item::M_Proiettivo) {
      EXPECT_NEAR(std::abs(wall.params.ElevStilo),
                  std::abs(std::asin(sky::dot(wall.pole(), wall.plane.normal))), 1e-8);
    }
    const std::vector<sky::Spot> horizon = wall.addedBy(Field::ck_Orizzonte, 2);
    const bool offSheet = wall.kStyle * std::tan(sky::rad(wall.site.reclination)) > 0.84;
    EXPECT_TRUE(!horizon.empty() || offSheet ||
                (isProjective(method) && wall.site.reclination == 0));
    for (const sky::Spot& s : horizon) ASSERT_NEAR(wall.sun(s.x, s.y).z, 0, 1e-8);
  });
}

TEST(FlatFamilies, TheStyleJoinsFootTipAndCentre) {
  onEveryPlane([](const Method& method, FlatWall& wall) {
    wall.check(Field::ck_Triangolo).run();
    const sky::Spot centre = wall.centre();
    std::string ends;
    const auto letter = [&](double x, double y) {
      if (std::hypot(x, y) < 1e-9) return 'F';
      if (sky::distance({x, -y}, centre) < 1e-6) return 'C';
      const double aside = (x * centre.x - y * centre.y) / std::hypot(centre.x, centre.y);
      return std::abs(std::hypot(x, y) - wall.kStyle) + std::abs(aside) < 1e-8 ? 'T' : '?';
    };
    for (const int colour : {13, 9, 14}) {
      const LineRecord line = wall.linesIn(palette(colour)).at(0);
      ends += {letter(line.x1, line.y1), letter(line.x2, line.y2), ' '};
    }
    EXPECT_EQ(ends, std::string(method.triangle) + ' ');
    if (method.item != Item::M_Inclinati && method.item != Item::M_Proiettivo) return;
    const LineRecord steepest = wall.linesIn(palette(8)).at(0);
    EXPECT_NEAR(steepest.x1, centre.x, 1e-6);
    EXPECT_DOUBLE_EQ(steepest.y1, -wall.sheet.ShiftY());
    EXPECT_DOUBLE_EQ(steepest.y2, 2 * wall.sheet.ShiftY());
  });
}

TEST(FlatFamilies, ComeInOrder) {
  for (const Method& method : kMethods) {
    FlatWall wall = dialOf(method, kPlanes[method.item == Item::M_Frinter ? 0 : 1]);
    wall.checkEveryBox().run();
    EXPECT_EQ(wall.order(), method.order);
    EXPECT_EQ(wall.sheet.caption(), method.caption);
    EXPECT_FALSE(wall.refused || wall.busy);
  }
}

TEST(FlatFamilies, TakeAnyInput) {
  for (const Method& method : kMethods) {
    const Field variable = method.variable == Field::None ? Field::CkQibla : method.variable;
    expectBounded(method.item, method.driver,
                  {variable, Field::ck_Lemniscate, Field::ck_Orizzonte, Field::ck_Sustilare,
                   Field::ck_Triangolo, Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Etna},
                  {Field::txtLAT, Field::txtLON, Field::txtDecl, Field::txtReclinZ, Field::TxtStilo,
                   Field::TxtHour, Field::txt_Definition});
  }
}

}  // namespace
}  // namespace dialwright
