// The styles, substyles and horizons of the flat dials, each by its own method, against planes in
// space.
#include <gtest/gtest.h>

#include "dials/flat/flat_wall.hpp"

namespace dialwright {
namespace {

const std::vector<FlatSite> kWalls = {{},        {45, 37},   {45, -75}, {5, 20},
                                      {62, 0.5}, {50, -165}, {35, 90},  {35, -90}};
const std::vector<FlatSite> kPlanes = {
    {}, {45, 37, -25}, {12, 20, 40}, {62, -75, 10}, {20, 130, 20}, {35, -160, -40}, {45, 160, 80}};

struct Method {
  int program;
  const char* settings;
  int substyle;  // its ink
  const char* triangle;
  const std::vector<FlatSite>& sites;
};
const Method kMethods[] = {{1, "", 3, "", kWalls},
                           {2, "optX", 9, "FT CT CF ", kPlanes},
                           {2, "optY", 9, "FT CT FC ", kPlanes},
                           {3, "", 9, "TF TC CF ", kPlanes},
                           {4, "", 9, "FT TC FC ", kPlanes},
                           {5, "", 9, "TF TC FC ", kWalls},
                           {6, "", 12, "TF CT SS ", kWalls},
                           {7, "", 15, "TF CT SS ", kPlanes}};

template <class Test>
void onEach(Test test) {
  for (const Method& method : kMethods) {
    for (const FlatSite& site : method.sites) {
      SCOPED_TRACE(testing::Message()
                   << "program " << method.program << ' ' << method.settings << " at "
                   << site.latitude << ' ' << site.declination << ' ' << site.reclination);
      FlatWall wall(method.program, site, method.settings);
      wall.set(Field::txt_Definition, "1");
      test(method, wall);
    }
  }
}

TEST(FlatStyles, SubstyleIsTheAxisOnThePlane) {
  onEach([](const Method& method, FlatWall& wall) {
    const sky::Spot centre = wall.centre();
    // Where the axis points down on the plane, the arcsine of the former projection mirrors it.
    const bool mirrored = method.program == 3 && sky::dot(wall.pole(), wall.plane.up) < 0;
    const std::vector<sky::Spot> substyle = wall.addedBy("ck_Sustilare", method.substyle);
    EXPECT_FALSE(substyle.empty());
    for (const sky::Spot& s : substyle) {
      const double aside = (mirrored ? -s.x : s.x) * centre.y - s.y * centre.x;
      ASSERT_NEAR(aside / std::hypot(centre.x, centre.y) / std::max(1.0, std::abs(s.y)), 0, 1e-8);
    }
  });
}

TEST(FlatStyles, HorizonHasALevelSun) {
  onEach([](const Method& method, FlatWall& wall) {
    const std::vector<sky::Spot> horizon = wall.addedBy("ck_Orizzonte", 2);
    for (const sky::Spot& s : horizon) ASSERT_NEAR(wall.sun(s.x, -s.y).z, 0, 1e-8);
    if (wall.site.reclination == 0 && method.program != 3 && method.program != 4) {
      EXPECT_FALSE(horizon.empty());
    }
  });
}

// The lines' ends: Foot, Centre, and Tip, which is laid down beside the foot, square to the
// substyle; or anywhere on the Substyle.
TEST(FlatStyles, JoinFootTipAndCentre) {
  onEach([](const Method& method, FlatWall& wall) {
    if (method.program == 1 || std::abs(wall.site.declination) == 90) return;  // no centre near
    wall.with("ck_Triangolo x1txt=-9 x2txt=9 y1txt=9 y2txt=-9").run();
    const sky::Spot centre = wall.centre();
    const auto letter = [&](double x, double y) {
      if (std::hypot(x, y) < 1e-9) return 'F';
      if (sky::distance({x, -y}, centre) < 1e-6) return 'C';
      const double reach = std::hypot(centre.x, centre.y);
      const double along = (x * centre.x - y * centre.y) / reach;
      if (std::abs(std::hypot(x, y) - wall.kStyle) + std::abs(along) < 1e-8) return 'T';
      return std::abs(x * centre.y + y * centre.x) / reach < 1e-7 ? 'S' : '?';
    };
    std::string ends;
    for (const auto& [ink, layer] :
         {std::pair{13, "ortostilo"}, {9, "assostilo"}, {14, "sottostilo"}}) {
      const LineRecord line =
          method.program < 6 ? wall.linesIn(palette(ink)).at(0) : wall.linesOf(layer).back();
      ends += {letter(line.x1, line.y1), letter(line.x2, line.y2), ' '};
    }
    EXPECT_EQ(ends, method.triangle);
  });
}

}  // namespace
}  // namespace dialwright
