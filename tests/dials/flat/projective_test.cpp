// Programs 3 and 4 against a plane in the sun: both projections, from their own reference planes.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "dials/flat/nuovo_proiettivo.hpp"
#include "dials/flat/proiettivo.hpp"
#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

const std::vector<FlatSite> kSites = {{45.7438, -14.57, 0}, {45.7438, -14.57, 30}, {45, 37, -25},
                                      {12, 20, 40},         {62, -75, 10},         {20, 130, 20},
                                      {35, -160, -40},      {40, 10, 70},          {45, 160, 80}};

enum class Version { Former, Latter };

FlatWall dialOf(const FlatSite& site, Version version) {
  return version == Version::Former ? FlatWall(Item::M_Proiettivo, DisegnaProiettivo, site)
                                    : FlatWall(Item::M_nProiettivo, DisegnaNuovoProiettivo, site);
}

template <class Test>
void onEveryPlane(Field box, Test test) {
  for (const FlatSite& site : kSites) {
    for (const Version version : {Version::Former, Version::Latter}) {
      SCOPED_TRACE(textOf(site.latitude) + ' ' + textOf(site.declination) + ' ' +
                   textOf(site.reclination) + (version == Version::Former ? " former" : " latter"));
      FlatWall wall = dialOf(site, version);
      wall.check(box).run();
      test(wall, version);
    }
  }
}

TEST(Projective, HoursLieInTheirPlanes) {
  onEveryPlane(Field::chkOreAstronomiche, [](FlatWall& wall, Version version) {
    std::set<int> hours;
    for (const int colour : {7, 9, 12}) {
      if (colour == 12 && version == Version::Former) continue;  // see NoonOfTheFormerVersion
      for (const PointRecord& p : wall.pointsIn(palette(colour))) {
        ASSERT_LT(wall.offHour(0, p.x, p.y, 7.5), kAngleSlack);
        hours.insert(
            static_cast<int>(std::lround(std::remainder(wall.hourAngle(p.x, p.y), 180) / 7.5)));
      }
    }
    for (const PointRecord& p : wall.pointsIn(palette(9)))
      ASSERT_LT(wall.offHour(90, p.x, p.y), kAngleSlack);
    if (version == Version::Former) {
      EXPECT_GE(hours.size(), 17u);
      return;
    }
    for (const PointRecord& p : wall.pointsIn(palette(12)))
      ASSERT_LT(wall.offHour(0, p.x, p.y), kAngleSlack);
    hours.erase(-12);  // is 12: six o'clock
    EXPECT_GE(hours.size(), 20u);
  });
}

TEST(Projective, TheLatterVersionKnowsTheStandardMeridian) {
  for (const Version version : {Version::Former, Version::Latter}) {
    FlatWall wall = dialOf(kSites[1], version);
    wall.check(Field::chkOreAstronomiche);
    wall.panel.setState(Field::ck_Etna, true);
    wall.run();
    const double shift = version == Version::Former ? 0 : -7.3562;
    for (const PointRecord& p : wall.pointsIn(palette(7))) {
      ASSERT_LT(wall.offHour(shift, p.x, p.y, 7.5), kAngleSlack);
    }
  }
}

TEST(Projective, CurvesAndEquinoctialAreTheSunsDays) {
  onEveryPlane(Field::Ck_DayLightCurves, [](FlatWall& wall, Version version) {
    for (const auto& [colour, declination] :
         {std::pair{12, 23.445}, {13, 20.1552}, {11, 11.4746}}) {
      std::vector<PointRecord> points = wall.pointsIn(palette(colour));
      // The former version marks the centre and the tip in the solstice's colour first.
      const std::size_t marks = version == Version::Former && colour == 12 ? 2 : 0;
      EXPECT_GT(points.size(), 50u + marks);
      for (const PointRecord& p : points) {
        const bool mark = marks > 0 && (std::hypot(p.x, p.y) - wall.kStyle < 1e-8 ||
                                        sky::distance({p.x, -p.y}, wall.centre()) < 1e-6);
        ASSERT_TRUE(mark ||
                    std::abs(std::abs(wall.declination(p.x, p.y)) - declination) < kAngleSlack)
            << p.x << ' ' << p.y;
      }
    }
  });
  onEveryPlane(Field::ck_Equinoziale, [](FlatWall& wall, Version) {
    EXPECT_GT(wall.pointsIn(palette(9)).size(), 50u);
    for (const PointRecord& p : wall.pointsIn(palette(9))) {
      ASSERT_NEAR(wall.declination(p.x, p.y), 0, kAngleSlack);
    }
  });
}

TEST(Projective, HoursFromTheHorizon) {
  for (const auto& [box, count] : {std::pair{Field::ck_Italiche, HorizonHours::Italic},
                                   {Field::ck_babiloniche, HorizonHours::Babylonian}}) {
    onEveryPlane(box, [count = count](FlatWall& wall, Version) {
      std::set<int> hours;
      for (const PointRecord& p : wall.pointsIn(palette(14))) {
        const HorizonCircle circle = wall.horizonCircle(count, p.x, p.y);
        ASSERT_LT(circle.off, kAngleSlack);
        hours.insert(circle.hours);
      }
      EXPECT_GE(hours.size(), 9u);
    });
  }
}

TEST(Projective, SubstyleAndHorizon) {
  onEveryPlane(Field::ck_Sustilare, [](FlatWall& wall, Version version) {
    const sky::Spot centre = wall.centre();
    // Where the axis points down on the plane, the arcsine of the former version mirrors the line.
    const sky::Vec pole{0, std::cos(wall.latitude), std::sin(wall.latitude)};
    const bool mirrored = version == Version::Former && sky::dot(pole, wall.plane.up) < 0;
    EXPECT_EQ(mirrored, version == Version::Former && wall.site.declination == 160);
    const double side = mirrored ? -1 : 1;
    const auto aside = [&](double x, double y) {
      return (side * x * centre.y + y * centre.x) / std::hypot(centre.x, centre.y);
    };
    for (const PointRecord& p : wall.pointsIn(palette(9))) ASSERT_NEAR(aside(p.x, p.y), 0, 1e-8);
    if (version == Version::Former) {
      EXPECT_FALSE(wall.pointsIn(palette(9)).empty());
    } else {
      const LineRecord& substyle = wall.sheet.list().lines.back();
      EXPECT_EQ(substyle.colour, palette(9));
      EXPECT_LT(sky::distance({substyle.x1, -substyle.y1}, {2 * centre.x, 2 * centre.y}), 1e-6);
      EXPECT_EQ(substyle.x1, -substyle.x2);
    }
  });
  onEveryPlane(Field::ck_Orizzonte, [](FlatWall& wall, Version) {
    const std::vector<LineRecord> horizon = wall.linesIn(palette(2));
    ASSERT_EQ(horizon.size(), wall.site.reclination == 0 ? 0u : 1u) << "an upright wall shows none";
    if (!horizon.empty()) {
      EXPECT_NEAR(wall.sun(0.3, horizon[0].y1).z, 0, 1e-8);
      EXPECT_EQ(horizon[0].y1, horizon[0].y2);
    }
  });
}

TEST(Projective, ThePolarLineIsNoon) {
  onEveryPlane(Field::ck_Etna, [](FlatWall& wall, Version version) {
    const std::vector<PointRecord> noon = wall.pointsIn(palette(4));
    const bool onSheet = std::abs(wall.centre().x) < 1;
    ASSERT_EQ(noon.empty(), version == Version::Latter || wall.site.reclination == 0 || !onSheet);
    for (const PointRecord& p : noon) ASSERT_LT(wall.offHour(0, p.x, p.y), kAngleSlack);
  });
}

// Noon has no slope on the former version's reference plane: its row keeps the ordinate where the
// line before it ended.
TEST(Projective, NoonOfTheFormerVersion) {
  FlatWall wall = dialOf({45.7438, -14.57, 30}, Version::Former);
  wall.check(Field::chkOreAstronomiche).run();
  const std::vector<PointRecord> red = wall.pointsIn(palette(12));
  ASSERT_GT(red.size(), 2u) << "besides the centre and the tip";
  EXPECT_GT(wall.offHour(0, red[5].x, red[5].y), 1)
      << "a level row of the reference plane, not noon";
}

TEST(Projective, TheStyleJoinsFootTipAndCentre) {
  onEveryPlane(Field::ck_Triangolo, [](FlatWall& wall, Version version) {
    const sky::Spot centre = wall.centre();
    const std::vector<LineRecord>& lines = wall.sheet.list().lines;
    const bool former = version == Version::Former;
    ASSERT_EQ(lines.size(), former ? 7u : 6u);
    const LineRecord& hypotenuse = lines[former ? 0 : 1];
    EXPECT_EQ(hypotenuse.colour, palette(9));
    EXPECT_LT(sky::distance({hypotenuse.x2, -hypotenuse.y2}, centre), 1e-6);
    EXPECT_NEAR(std::hypot(hypotenuse.x1, hypotenuse.y1), wall.kStyle, 1e-9);
    EXPECT_NEAR(hypotenuse.x1 * centre.x - hypotenuse.y1 * centre.y, 0, 1e-7)
        << "upright on the substyle";
    // The triangle in the corner is similar to the one on the dial.
    const LineRecord& upright = lines[lines.size() - 3];
    const LineRecord& base = lines.back();
    EXPECT_EQ(upright.colour, palette(13));
    EXPECT_EQ(base.colour, palette(14));
    EXPECT_DOUBLE_EQ(base.x1, wall.sheet.xMin());
    EXPECT_DOUBLE_EQ(base.y1, wall.sheet.yMax());
    EXPECT_NEAR((base.x2 - base.x1) / (upright.y1 - upright.y2),
                std::hypot(centre.x, centre.y) / wall.kStyle, 1e-6);
    EXPECT_LE(base.x2, 1e-12);
  });
}

TEST(Projective, TheAnalemmaIsTheYearsMeanNoon) {
  for (const FlatSite& site : kSites) {
    FlatWall wall = dialOf(site, Version::Latter);
    wall.check(Field::ck_Lemniscate).run();
    for (const PointRecord& p : wall.pointsIn(palette(14))) {
      ASSERT_TRUE(wall.plane.lit(wall.sun(p.x, p.y)));
      ASSERT_LT(apart(wall.hourAngle(p.x, p.y), -7.3562), 17.0 / 4);
      ASSERT_LT(std::abs(wall.declination(p.x, p.y)), 23.447);
    }
  }
  for (const FlatSite& site : {kSites[1], kSites.back()}) {
    FlatWall wall = dialOf(site, Version::Latter);
    wall.set(Field::x1txt, "-2")
        .set(Field::x2txt, "2")
        .set(Field::y1txt, "2")
        .set(Field::y2txt, "-2");
    wall.check(Field::ck_Lemniscate).run();
    EXPECT_EQ(wall.pointsIn(palette(14)).size(), 446u) << "a year and 80 degrees, less a day";
  }
}

TEST(Projective, SideWallsAreForTheLatterVersion) {
  FlatWall former = dialOf({45, 90, 0}, Version::Former);
  former.run();
  EXPECT_EQ(former.messages, std::vector<std::string>{"Please use programme n° 4 "});
  EXPECT_EQ(former.entities(), 0u);
  FlatWall latter = dialOf({45, 90, 0}, Version::Latter);
  latter.check(Field::chkOreAstronomiche).run();
  EXPECT_TRUE(latter.messages.empty());
  std::set<int> hours;
  for (const PointRecord& p : latter.pointsIn(palette(7))) {
    ASSERT_LT(latter.offHour(0, p.x, p.y, 7.5), kAngleSlack);
    hours.insert(static_cast<int>(std::lround(latter.hourAngle(p.x, p.y) / 7.5)));
  }
  EXPECT_GE(hours.size(), 20u) << "parallel lines";
}

TEST(Projective, Refusals) {
  for (const Version version : {Version::Former, Version::Latter}) {
    for (const auto& [latitude, inclination, message] :
         {std::tuple{"-1", "0", "Sorry, unable to work in the Southern hemisphere "},
          {"0", "0", "Sorry, unable to work at the equator "},
          {"45", "0", "Sorry, unable to deal with horizontal dials "},
          {"45", "180", "Sorry, unable to deal with horizontal dials "}}) {
      FlatWall wall = dialOf({45, 10, 0}, version);
      wall.set(Field::txtLAT, latitude).set(Field::txtReclinZ, inclination);
      wall.panel.setState(Field::ckFrame, true);
      wall.run();
      EXPECT_EQ(wall.messages, std::vector<std::string>{message});
      EXPECT_EQ(wall.entities(), 0u);
      EXPECT_FALSE(wall.busy);
    }
  }
}

TEST(Projective, FamiliesComeInOrder) {
  for (const auto& [version, order, caption] :
       {std::tuple{Version::Former, "P12 L9 L13 L14 L8 P9 P7 P4 P13 P11 P14 L2 ",
                   "Flat sundial by projective method : former version"},
        {Version::Latter, "P9 P7 P12 L13 L9 L14 P13 P11 P14 L2 ",
         "Flat sundial by projective method : latter version"}}) {
    FlatWall wall = dialOf(kSites[1], version);
    wall.checkEveryBox().run();
    EXPECT_EQ(wall.order(), order);
    EXPECT_EQ(wall.sheet.caption(), caption);
  }
}

TEST(Projective, TakesAnyInput) {
  for (const Version version : {Version::Former, Version::Latter}) {
    for (const char* latitude : {"90", "45", "1e300"}) {
      for (const char* declination : {"0", "180", "-1e308", "x"}) {
        for (const char* inclination : {"90", "45", "-90", "1e-300"}) {
          FlatWall wall = dialOf({45, 0, 0}, version);
          wall.set(Field::txtLAT, latitude)
              .set(Field::txtDecl, declination)
              .set(Field::txtReclinZ, inclination);
          wall.set(Field::TxtHour, "-2").set(Field::TxtStilo, declination);
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
