// Programs 2 to 5, the flat dials of the classroom, against a plane in the sun: what they draw
// alike, each by its own method, is where the shadow of the style's tip falls.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "dials/flat/frinter.hpp"
#include "dials/flat/inclinati.hpp"
#include "dials/flat/nuovo_proiettivo.hpp"
#include "dials/flat/proiettivo.hpp"
#include "support/flat_wall.hpp"
#include "support/mean_sun.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

struct Method {
  const char* name;
  Item item;
  Driver driver;
  Field variable;
  double solstice;
  double zone;             // hour angle of the lines' noon in the standard meridian's time
  std::size_t leastHours;  // of 23, noon and the two sixes as one
  bool noon;               // drawn as the others
  int italic, babylonian, analemma;  // colour numbers; 0 for what is not drawn, or not alike
  const char* triangle;              // ends of the lines 13, 9, 14: Foot, Tip, Centre
  const char* order;                 // of all families
  const char* caption;
};

const Method kMethods[] = {
    {"2 X", Item::M_Inclinati, DisegnaInclinati, Field::optX, 23.45, -7.3562, 17, false, 9, 10, 14,
     "FT CT CF", "P7 P12 P9 P2 P4 L13 L9 L14 L8 P13 P11 P10 P14 ",
     "Reclining dial by 3D analytic geometry, variable X"},
    {"2 Y", Item::M_Inclinati, DisegnaInclinati, Field::optY, 23.45, -7.3562, 17, false, 11, 10, 12,
     "FT CT FC", "P7 P12 P9 P2 P4 L13 L9 L14 L8 P13 P11 P10 ",
     "Declining, reclining dial by 3D analytic geometry, variable y"},
    {"3", Item::M_Proiettivo, DisegnaProiettivo, Field::None, 23.445, 0, 17, false, 14, 14, 0,
     "TF TC CF", "P12 L9 L13 L14 L8 P9 P7 P4 P13 P11 P14 L2 ",
     "Flat sundial by projective method : former version"},
    {"4", Item::M_nProiettivo, DisegnaNuovoProiettivo, Field::None, 23.445, -7.3562, 20, true, 14,
     14, 14, "FT TC FC", "P9 P7 P12 L13 L9 L14 P13 P11 P14 L2 ",
     "Flat sundial by projective method : latter version"},
    {"5", Item::M_Frinter, DisegnaFrinter, Field::None, 23.445, -7.3562, 20, true, 0, 0, 6,
     "TF TC FC", "L7 L12 L9 P12 P13 P11 L14 P6 P3 L2 L13 P15 ",
     "Vertical dial by 2D analytic geometry"}};

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

TEST(FlatFamilies, HoursLieInTheirPlanes) {
  onEveryPlane([](const Method& method, FlatWall& wall) {
    std::set<long> hours;
    for (const int colour : {7, 9, 12}) {
      if (colour == 12 && !method.noon) continue;
      const double step = colour == 7 ? 7.5 : 180;
      for (const sky::Spot& s : wall.addedBy(Field::chkOreAstronomiche, colour)) {
        ASSERT_LT(wall.offHour(colour == 9 ? 90 : 0, s.x, s.y, step), kAngleSlack) << colour;
        hours.insert(std::lround(std::remainder(wall.hourAngle(s.x, s.y), 180) / 7.5));
      }
    }
    hours.erase(-12);  // is 12: six o'clock
    EXPECT_GE(hours.size(), method.leastHours);
    wall.sheet.Clear();
    wall.check(Field::ck_Etna).run();
    for (const PointRecord& p : wall.pointsIn(palette(7)))
      ASSERT_LT(wall.offHour(method.zone, p.x, p.y, 7.5), kAngleSlack);
  });
}

TEST(FlatFamilies, CurvesAndEquinoctialAreTheSunsDays) {
  onEveryPlane([](const Method& method, FlatWall& wall) {
    for (const auto& [colour, declination] :
         {std::pair{12, method.solstice}, {13, 20.1552}, {11, 11.4746}}) {
      const std::vector<sky::Spot> spots = wall.addedBy(Field::Ck_DayLightCurves, colour);
      EXPECT_GT(spots.size(), 20u);
      for (const sky::Spot& s : spots)
        ASSERT_NEAR(std::abs(wall.declination(s.x, s.y)), declination, kAngleSlack);
    }
    wall.check(Field::Ck_DayLightCurves, false);
    const std::vector<sky::Spot> equinoctial = wall.addedBy(Field::ck_Equinoziale, 9);
    EXPECT_FALSE(equinoctial.empty());
    for (const sky::Spot& s : equinoctial) ASSERT_NEAR(wall.declination(s.x, s.y), 0, kAngleSlack);
  });
}

TEST(FlatFamilies, HoursFromTheHorizon) {
  onEveryPlane([](const Method& method, FlatWall& wall) {
    for (const auto& [box, count, colour] :
         {std::tuple{Field::ck_Italiche, HorizonHours::Italic, method.italic},
          {Field::ck_babiloniche, HorizonHours::Babylonian, method.babylonian}}) {
      if (colour == 0) continue;
      std::set<int> hours;
      for (const sky::Spot& s : wall.addedBy(box, colour)) {
        const HorizonCircle circle = wall.horizonCircle(count, s.x, s.y);
        ASSERT_LT(circle.off, kAngleSlack);
        hours.insert(circle.hours);
      }
      EXPECT_GE(hours.size(), 9u);
    }
  });
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

TEST(FlatFamilies, TheAnalemmaIsTheYearsMeanNoon) {
  onEveryPlane([](const Method& method, FlatWall& wall) {
    if (method.analemma == 0) return;
    const std::vector<sky::Spot> spots = wall.addedBy(Field::ck_Lemniscate, method.analemma);
    for (const sky::Spot& s : spots) {
      // In space a sun behind the plane is drawn by its opposite.
      const double H = sky::rad(wall.hourAngle(s.x, s.y) + 7.3562);
      const double d = sky::rad(wall.declination(s.x, s.y));
      const double off = sky::secondsFromEquationOfTime(H, d);
      const double opposite = sky::secondsFromEquationOfTime(H + std::numbers::pi, -d);
      const bool flips = method.item == Item::M_Inclinati;
      ASSERT_LT(flips ? std::min(off, opposite) : off, 25);
      ASSERT_TRUE(flips || wall.plane.lit(wall.sun(s.x, s.y)));
    }
    EXPECT_TRUE(spots.size() > 300 || wall.site.declination != -14.57);
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
