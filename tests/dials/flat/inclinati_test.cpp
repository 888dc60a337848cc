// Program 2 against a plane in the sun, along both variables.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "dials/flat/inclinati.hpp"
#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

const std::vector<FlatSite> kSites = {{45.7438, -14.57, 0}, {45.7438, -14.57, 30}, {45, 37, -25},
                                      {5, 20, 60},          {62, -75, 10},         {20, 130, 20},
                                      {35, -160, -40},      {50, 85, 45}};
const Field kVariables[] = {Field::optX, Field::optY};

FlatWall dialOf(const FlatSite& site, Field variable) {
  FlatWall wall(Item::M_Inclinati, DisegnaInclinati, site);
  wall.check(variable).set(Field::txt_Definition, "1");
  return wall;
}

template <class Test>
void onEveryPlane(Field box, Test test) {
  for (const FlatSite& site : kSites) {
    for (const Field variable : kVariables) {
      SCOPED_TRACE(textOf(site.latitude) + ' ' + textOf(site.declination) + ' ' +
                   textOf(site.reclination) + (variable == Field::optX ? " X" : " Y"));
      FlatWall wall = dialOf(site, variable);
      wall.check(box).run();
      test(wall, variable);
    }
  }
}

TEST(Inclinati, HoursLieInTheirPlanes) {
  onEveryPlane(Field::chkOreAstronomiche, [](FlatWall& wall, Field) {
    std::set<int> hours;
    for (const Rgb colour : {palette(7), palette(9)}) {
      for (const PointRecord& p : wall.pointsIn(colour)) {
        ASSERT_LT(wall.offHour(0, p.x, p.y, 7.5), kAngleSlack);
        hours.insert(
            static_cast<int>(std::lround(std::remainder(wall.hourAngle(p.x, p.y), 180) / 7.5)));
      }
    }
    hours.erase(-12);  // is 12: six o'clock
    EXPECT_GE(hours.size(), 18u) << "of 23 and noon";
    for (const PointRecord& p : wall.pointsIn(palette(9)))
      ASSERT_LT(wall.offHour(90, p.x, p.y), kAngleSlack);
  });
}

TEST(Inclinati, StandardMeridianShiftsTheHours) {
  FlatWall wall = dialOf(kSites[1], Field::optX);
  wall.check(Field::chkOreAstronomiche).check(Field::ck_Etna).run();
  const std::vector<PointRecord> noon = wall.pointsIn(palette(12));
  ASSERT_FALSE(noon.empty());
  for (const PointRecord& p : noon) ASSERT_LT(wall.offHour(-7.3562, p.x, p.y), kAngleSlack);
}

TEST(Inclinati, CurvesAreTheSunsDays) {
  onEveryPlane(Field::Ck_DayLightCurves, [](FlatWall& wall, Field) {
    for (const auto& [colour, declination] : {std::pair{12, 23.45}, {13, 20.1552}, {11, 11.4746}}) {
      const std::vector<PointRecord> points = wall.pointsIn(palette(colour));
      EXPECT_GT(points.size(), 20u);
      for (const PointRecord& p : points) {
        ASSERT_NEAR(std::abs(wall.declination(p.x, p.y)), declination, kAngleSlack);
      }
    }
  });
}

TEST(Inclinati, HoursFromTheHorizon) {
  for (const auto& [box, count] : {std::pair{Field::ck_Italiche, HorizonHours::Italic},
                                   {Field::ck_babiloniche, HorizonHours::Babylonian}}) {
    onEveryPlane(box, [count = count](FlatWall& wall, Field variable) {
      const bool italic = count == HorizonHours::Italic;
      const int colour = !italic ? 10 : variable == Field::optX ? 9 : 11;
      std::set<int> hours;
      for (const PointRecord& p : wall.pointsIn(palette(colour))) {
        const HorizonCircle circle = wall.horizonCircle(count, p.x, p.y);
        ASSERT_LT(circle.off, kAngleSlack);
        hours.insert(circle.hours);
      }
      EXPECT_GE(hours.size(), 9u);
    });
  }
}

TEST(Inclinati, EquinoctialHorizonNoonAndSubstyle) {
  onEveryPlane(Field::ck_Equinoziale, [](FlatWall& wall, Field) {
    for (const PointRecord& p : wall.pointsIn(palette(9))) {
      ASSERT_NEAR(wall.declination(p.x, p.y), 0, kAngleSlack);
    }
    // An upright wall has no noon along Y, see below; the noon line is always drawn.
    if (wall.site.reclination == 0) return;
    EXPECT_FALSE(wall.pointsIn(palette(4)).empty());
    for (const PointRecord& p : wall.pointsIn(palette(4))) {
      ASSERT_LT(wall.offHour(0, p.x, p.y), kAngleSlack);
    }
  });
  onEveryPlane(Field::ck_Orizzonte, [](FlatWall& wall, Field) {
    EXPECT_FALSE(wall.pointsIn(palette(2)).empty());
    for (const PointRecord& p : wall.pointsIn(palette(2)))
      ASSERT_NEAR(wall.sun(p.x, p.y).z, 0, 1e-8);
  });
  onEveryPlane(Field::ck_Sustilare, [](FlatWall& wall, Field) {
    const sky::Spot centre = wall.centre();
    EXPECT_FALSE(wall.pointsIn(palette(9)).empty());
    for (const PointRecord& p : wall.pointsIn(palette(9))) {
      ASSERT_NEAR((p.x * centre.y + p.y * centre.x) / std::hypot(centre.x, centre.y), 0, 1e-8);
    }
    const sky::Vec pole{0, std::cos(wall.latitude), std::sin(wall.latitude)};
    EXPECT_NEAR(wall.params.ElevStilo, -std::asin(sky::dot(pole, wall.plane.normal)), 1e-8);
    EXPECT_NEAR(std::abs(std::tan(wall.params.Sustilare)), std::abs(centre.x / centre.y), 1e-6);
    EXPECT_NEAR(wall.params.IpotenusaStilo * std::sin(wall.params.ElevStilo), wall.kStyle, 1e-8);
  });
}

TEST(Inclinati, TheAnalemmaIsTheYearsMeanNoon) {
  onEveryPlane(Field::ck_Lemniscate, [](FlatWall& wall, Field variable) {
    const std::vector<PointRecord> points =
        wall.pointsIn(palette(variable == Field::optX ? 14 : 12));
    for (const PointRecord& p : points) {
      // Within 17 minutes of the zone's noon; a sun behind the plane by its opposite.
      ASSERT_LT(apart(wall.hourAngle(p.x, p.y), -7.3562, 180), 17.0 / 4);
      ASSERT_LT(std::abs(wall.declination(p.x, p.y)), 23.447);
    }
    EXPECT_GT(points.size(), 100u);
  });
}

TEST(Inclinati, TheStyleReachesTheCentre) {
  for (const Field variable : kVariables) {
    FlatWall wall = dialOf(kSites[1], variable);
    wall.check(Field::ck_Triangolo).run();
    const sky::Spot centre = wall.centre();
    ASSERT_EQ(wall.sheet.list().lines.size(), 4u);
    const LineRecord& style = wall.sheet.list().lines[0];
    const LineRecord& hypotenuse = wall.sheet.list().lines[1];
    const LineRecord& steepest = wall.sheet.list().lines[3];
    EXPECT_EQ(style.colour, palette(13));
    EXPECT_NEAR(std::hypot(style.x2, style.y2), wall.kStyle, 1e-9);
    EXPECT_NEAR(style.x2 * centre.x - style.y2 * centre.y, 0, 1e-9) << "upright on the substyle";
    EXPECT_EQ(hypotenuse.colour, palette(9));
    EXPECT_LT(sky::distance({hypotenuse.x1, -hypotenuse.y1}, centre), 1e-8);
    EXPECT_EQ(wall.linesIn(palette(14)).size(), 1u);
    EXPECT_NEAR(steepest.x1, centre.x, 1e-8);
    EXPECT_DOUBLE_EQ(steepest.y2, 2 * wall.sheet.ShiftY());
    EXPECT_EQ(wall.params.TriangoloDisegnato, variable == Field::optY);
  }
}

TEST(Inclinati, AStyleOutOfReachIsDrawnByItsSlopeUntilATriangleWasDrawn) {
  FlatWall wall = dialOf({45, 1, 44.8}, Field::optY);
  wall.check(Field::ck_Triangolo).run();
  EXPECT_FALSE(wall.pointsIn(palette(5)).empty());
  EXPECT_TRUE(wall.linesIn(palette(9)).empty());
  wall.set(Field::txtReclinZ, "90").run().sheet.Clear();
  wall.set(Field::txtReclinZ, "45.2").run();
  EXPECT_TRUE(wall.pointsIn(palette(5)).empty());
}

TEST(Inclinati, ThePolarPlaneHasUprightHours) {
  FlatWall wall(Item::M_Inclinati, DisegnaInclinati, {45.7438, 0, 90 - 45.7438});
  wall.set(Field::TxtHour, "4").check(Field::chkOreAstronomiche).run();
  const std::vector<LineRecord> hours = wall.linesIn(palette(15));
  ASSERT_EQ(hours.size(), 25u) << "every half hour, whatever the divisions";
  for (std::size_t i = 1; i < 24; ++i) {
    EXPECT_LT(apart(wall.hourAngle(hours[i].x1, 0.3), 90 - 7.5 * static_cast<double>(i)),
              kAngleSlack);
    EXPECT_EQ(hours[i].x1, hours[i].x2);
    EXPECT_DOUBLE_EQ(hours[i].y2, wall.sheet.ShiftY());
  }
}

TEST(Inclinati, RefusalsOfEachVariable) {
  FlatWall wall(Item::M_Inclinati, DisegnaInclinati, {45, 90, 0});
  const auto fresh = [&wall](Field variable) -> FlatWall& {
    wall.sheet.Clear();
    wall.messages.clear();
    wall.beeps = 0;
    wall.check(variable);
    wall.beeps = 0;
    return wall;
  };
  const std::string modify = "Modify the definition if the graph is not well visible";
  const std::string useX = "Horizontal dial, please use variable X";
  fresh(Field::optX).check(Field::ckFrame);
  wall.panel.setState(Field::ckFrame, true);
  wall.sheet.Clear();
  wall.run();
  EXPECT_EQ(wall.messages, (std::vector<std::string>{modify, "Please use the other variable !!"}));
  EXPECT_EQ(wall.beeps, 1);
  EXPECT_EQ(wall.entities(), 1u) << "the frame box stands";

  wall.set(Field::txtDecl, "0");
  fresh(Field::optY).run();
  EXPECT_EQ(wall.messages, std::vector<std::string>{modify});
  EXPECT_EQ(wall.sheet.caption(), useX);
  EXPECT_EQ(wall.beeps, 1);
  EXPECT_EQ(wall.entities(), 0u);

  wall.set(Field::txtDecl, "10").set(Field::txtReclinZ, "0");
  fresh(Field::optY).run();
  EXPECT_EQ(wall.sheet.caption(), useX);
  EXPECT_EQ(wall.entities(), 1u);

  wall.set(Field::txtLAT, "  ");
  for (const auto& [variable, count] : {std::pair{Field::optX, 2u}, {Field::optY, 1u}}) {
    fresh(variable).run();
    ASSERT_EQ(wall.messages.size(), count);
    EXPECT_EQ(wall.messages.back(), "Immettere Longitudine,latitudine,Declinazione e Ortostilo !!");
    EXPECT_TRUE(wall.refused);
  }
}

TEST(Inclinati, SouthernLatitudesCountByTheirSize) {
  std::vector<PointRecord> drawings[2];
  for (const bool south : {false, true}) {
    FlatWall wall = dialOf(kSites[0], Field::optX);
    wall.set(Field::txtLAT, south ? "-45" : "45").check(Field::Ck_DayLightCurves).run();
    drawings[south] = wall.sheet.list().points;
  }
  ASSERT_EQ(drawings[0].size(), drawings[1].size());
  for (std::size_t i = 0; i < drawings[0].size(); ++i) {
    ASSERT_EQ(drawings[0][i].x, drawings[1][i].x);
    ASSERT_EQ(drawings[0][i].y, drawings[1][i].y);
  }
}

// Where a line can't be swept, its statement fails and its row stays at the last height: such rows
// are no shadows.
TEST(Inclinati, RowsWithoutAHeightStayWhereTheyWere) {
  FlatWall south = dialOf({45, 0, 0}, Field::optX);
  south.check(Field::ck_Sustilare).run();
  const std::vector<PointRecord> substyle = south.pointsIn(palette(9));
  ASSERT_FALSE(substyle.empty());
  for (const PointRecord& p : substyle) ASSERT_EQ(p.y, 0) << "level, where the substyle is upright";

  FlatWall upright = dialOf({45, 30, 0}, Field::optY);
  upright.run();
  ASSERT_FALSE(upright.pointsIn(palette(4)).empty());
  for (const PointRecord& p : upright.pointsIn(palette(4)))
    ASSERT_EQ(p.y, 0) << "level, where noon is upright";
}

TEST(Inclinati, FamiliesComeInOrder) {
  for (const auto& [variable, order, caption] :
       {std::tuple{Field::optX, "P7 P12 P9 P2 P4 L13 L9 L14 L8 P13 P11 P10 P14 ",
                   "Reclining dial by 3D analytic geometry, variable X"},
        {Field::optY, "P7 P12 P9 P2 P4 L13 L9 L14 L8 P13 P11 P10 ",
         "Declining, reclining dial by 3D analytic geometry, variable y"}}) {
    FlatWall wall = dialOf(kSites[1], variable);
    wall.checkEveryBox().run();
    EXPECT_EQ(wall.order(), order);
    EXPECT_EQ(wall.sheet.caption(), caption);
    EXPECT_FALSE(wall.refused);
  }
}

TEST(Inclinati, TakesAnyInput) {
  for (const char* latitude : {"0", "90", "1e300", "x"}) {
    for (const char* reclination : {"0", "180", "45", "-1e308"}) {
      for (const char* definition : {"0", "-3", "1e-9", "5"}) {
        for (const Field variable : kVariables) {
          FlatWall wall = dialOf({45, 180, 0}, variable);
          wall.set(Field::txtLAT, latitude)
              .set(Field::txtReclinZ, reclination)
              .set(Field::txt_Definition, definition);
          wall.checkEveryBox().run();
          EXPECT_FALSE(wall.busy);
          EXPECT_TRUE(wall.isSound());
        }
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
