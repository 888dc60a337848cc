// Programs 3 and 4 where their two versions differ from each other and from the other flat dials.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "dials/flat/nuovo_proiettivo.hpp"
#include "dials/flat/proiettivo.hpp"
#include "support/flat_wall.hpp"

namespace dialwright {
namespace {

enum class Version { Former, Latter };

FlatWall dialOf(const FlatSite& site, Version version) {
  return version == Version::Former ? FlatWall(Item::M_Proiettivo, DisegnaProiettivo, site)
                                    : FlatWall(Item::M_nProiettivo, DisegnaNuovoProiettivo, site);
}

// The style's triangle in the sheet's corner is similar to the one on the dial.
TEST(Projective, ATriangleToMeasure) {
  for (const Version version : {Version::Former, Version::Latter}) {
    for (const FlatSite& site : {FlatSite{45.7438, -14.57, 0}, {40, 10, 70}, {45, 37, 43}}) {
      FlatWall wall = dialOf(site, version);
      wall.check(Field::ck_Triangolo).run();
      const LineRecord upright = wall.linesIn(palette(13)).back();
      const LineRecord base = wall.linesIn(palette(14)).back();
      EXPECT_DOUBLE_EQ(base.x1, wall.sheet.xMin());
      EXPECT_DOUBLE_EQ(base.y1, wall.sheet.yMax());
      EXPECT_NEAR((base.x2 - base.x1) / (upright.y1 - upright.y2),
                  std::hypot(wall.centre().x, wall.centre().y) / wall.kStyle, 1e-5);
      EXPECT_LE(base.x2, 1e-12);
    }
  }
}

TEST(Projective, TheAnalemmaOnAWideSheet) {
  for (const FlatSite& site : {FlatSite{45.7438, -14.57, 30}, {45, 160, 80}}) {
    FlatWall wall = dialOf(site, Version::Latter);
    wall.set(Field::x1txt, "-2").set(Field::x2txt, "2");
    wall.set(Field::y1txt, "2").set(Field::y2txt, "-2");
    EXPECT_EQ(wall.addedBy(Field::ck_Lemniscate, 14).size(), 446u)
        << "a year and 80 degrees, less a day";
  }
}

TEST(Projective, SideWallsAreForTheLatterVersion) {
  FlatWall latter = dialOf({45, 90, 0}, Version::Latter);
  std::set<long> hours;
  for (const sky::Spot& s : latter.addedBy(Field::chkOreAstronomiche, 7)) {
    ASSERT_LT(latter.offHour(0, s.x, s.y, 7.5), kAngleSlack);
    hours.insert(std::lround(latter.hourAngle(s.x, s.y) / 7.5));
  }
  EXPECT_GE(hours.size(), 20u) << "parallel lines";
  EXPECT_TRUE(latter.messages.empty());
}

TEST(Projective, Refusals) {
  const auto expectRefusal = [](Version version, const char* latitude, const char* declination,
                                const char* inclination, const char* message) {
    FlatWall wall = dialOf({45, 10, 0}, version);
    wall.set(Field::txtLAT, latitude).set(Field::txtDecl, declination);
    wall.set(Field::txtReclinZ, inclination).panel.setState(Field::ckFrame, true);
    wall.run();
    EXPECT_EQ(wall.messages, std::vector<std::string>{message});
    EXPECT_EQ(wall.entities(), 0u);
    EXPECT_FALSE(wall.busy);
  };
  for (const Version v : {Version::Former, Version::Latter}) {
    expectRefusal(v, "-1", "90", "0", "Sorry, unable to work in the Southern hemisphere ");
    expectRefusal(v, "0", "90", "0", "Sorry, unable to work at the equator ");
    expectRefusal(v, "45", "10", "0", "Sorry, unable to deal with horizontal dials ");
    expectRefusal(v, "45", "10", "180", "Sorry, unable to deal with horizontal dials ");
  }
  expectRefusal(Version::Former, "45", "-90", "0", "Please use programme n° 4 ");
}

}  // namespace
}  // namespace dialwright
