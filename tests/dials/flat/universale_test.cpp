// Program 7 against planes in the sun: every family is where the tip's shadow falls, and the
// drawing's order, inks and texts are those of the dial.
#include "dials/flat/universale.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "dials/flat/sky_curves.hpp"
#include "support/flat_wall.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

const std::vector<FlatSite> kSites = {{45.7438, -14.57, 0}, {45.7438, 37, 25}, {30, -100, 10},
                                      {52, 0, 60},          {5, 20, -15},      {62, 170, 20},
                                      {40, 80, 0},          {45, 0, 90}};

// A sun of the drawing, in degrees.
struct Sun {
  double hourAngle, declination, azimuth, altitude;  // azimuth from the South, West positive
};

class Plate : public FlatWall {
 public:
  explicit Plate(const FlatSite& where) : FlatWall(Item::mnuUni, DisegnaUniversale, where) {
    set(Field::y1txt, "0.6").set(Field::y2txt, "-0.6");
  }

  Sun sunAt(double x, double sheetY) const {
    const sky::Vec s = sun(x, sheetY);
    return {hourAngle(x, sheetY), declination(x, sheetY), deg(std::atan2(-s.x, -s.y)),
            deg(std::asin(s.z))};
  }

  // The suns of a layer's segments: in one colour, with the sun up.
  std::vector<Sun> suns(std::string_view layer, Rgb colour, double gap = 0.01) {
    std::vector<Sun> all;
    for (const LineRecord& line : linesOf(layer)) {
      EXPECT_EQ(line.colour, colour) << layer;
      EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), gap) << layer;
      all.push_back(sunAt(line.x1, line.y1));
      EXPECT_GT(all.back().altitude, -1e-5) << layer;
    }
    return all;
  }
};

template <class Test>
void onEveryPlane(Test test) {
  for (const FlatSite& site : kSites) {
    SCOPED_TRACE(testing::Message()
                 << site.latitude << ' ' << site.declination << ' ' << site.reclination);
    Plate plate(site);
    test(plate);
  }
}

// The southern recipe draws the year upside down, one turn and no more; the zodiac goes with it.
TEST(Universale, AnalemmaIsTheYearsMeanNoon) {
  for (const FlatSite& site : {kSites[0], kSites[1], kSites[7]}) {
    Plate plate(site);
    plate.check(Field::ck_Lemniscate).check(Field::ckZodiaco);
    for (const bool southern : {false, true}) {
      plate.sheet.Clear();
      plate.check(Field::ckFunction, southern).run();
      const std::vector<Sun> suns = plate.suns("analemma", palette(15), southern ? 0.015 : 0.05);
      for (const Sun& sun : suns) {
        ASSERT_LT(sky::secondsFromEquationOfTime(rad(sun.hourAngle + 7.3562),
                                                 rad(sun.declination) * (southern ? -1 : 1)),
                  25);
      }
      EXPECT_EQ(suns.size() > 366, !southern) << "more than a year, or at most one";
      EXPECT_EQ(plate.entities() - suns.size() > 100, southern) << "the zodiac's signs";
    }
    EXPECT_NEAR(plate.params.LonOrario, rad(-15 + 7.6438), 1e-9);
    plate.check(Field::ck_Lemniscate, false).sheet.Clear();
    EXPECT_EQ(plate.run().entities(), 0u) << "no zodiac without an analemma";
  }
}

TEST(Universale, AsrIsTheShadowOfNoonAndTheStyleMore) {
  onEveryPlane([](Plate& plate) {
    plate.check(Field::ckAsr).run();
    const std::vector<PointRecord> points = plate.pointsIn(rgb(0, 193, 97));
    for (const PointRecord& point : points) {
      const Sun sun = plate.sunAt(point.x, point.y);
      // On planes that the afternoon sun leaves, the points are those of the opposite sun.
      if (sun.altitude < 0 || sun.hourAngle < 0) continue;
      const double noon = std::tan(plate.latitude - rad(sun.declination));
      EXPECT_NEAR(1 / std::tan(rad(sun.altitude)), 1 + noon, 1e-6);
    }
    EXPECT_TRUE(!points.empty() || std::abs(plate.site.declination) > 90);
  });
  Plate idle(kSites[1]);
  idle.params.LimiteOrizzonte = 5;
  idle.run();
  EXPECT_TRUE(idle.pointsIn(rgb(0, 193, 97)).empty());
  EXPECT_NEAR(idle.params.LimiteOrizzonte, 0.2 * std::tan(rad(25)), 1e-9);
}

TEST(Universale, QiblaIsTheSunOverTheHolyPlace) {
  // Directions from the earth's centre, longitudes to the West.
  const auto place = [](double latitude, double longitude) {
    return sky::Vec{std::cos(rad(latitude)) * std::cos(rad(longitude)),
                    -std::cos(rad(latitude)) * std::sin(rad(longitude)), std::sin(rad(latitude))};
  };
  onEveryPlane([&](Plate& plate) {
    plate.check(Field::CkQibla).run();
    const sky::Vec here = place(plate.site.latitude, -7.6438), there = place(21.42527, -39.81638);
    const sky::Vec east{-here.y / std::hypot(here.x, here.y), here.x / std::hypot(here.x, here.y),
                        0};
    const double azimuth =
        deg(std::atan2(-sky::dot(there, east), -sky::dot(there, sky::cross(here, east))));
    for (const PointRecord& point : plate.pointsIn(palette(10)))
      EXPECT_LT(apart(plate.sunAt(point.x, point.y).azimuth, azimuth, 180), 1e-4);
    const std::string told = plate.told();
    const std::string head = "Loc.||Loc.|Latitude 21.42527|Longitude -39.81638|Qibla from South = ";
    ASSERT_EQ(told.substr(0, head.size()), head);
    const std::string north = "° azimuth|Qibla from North = ";
    const std::size_t middle = told.find(north);
    ASSERT_NE(middle, std::string::npos);
    for (const std::size_t at : {head.size(), middle + north.size()})
      EXPECT_LT(apart(std::stod(told.substr(at)), azimuth, 180), 2e-5);
    EXPECT_TRUE(told.ends_with("° azimuth|"));
    EXPECT_EQ(plate.sheet.ForeColor, 16777215);
  });
}

TEST(Universale, AzimuthsAndAltitudes) {
  onEveryPlane([](Plate& plate) {
    plate.check(Field::ckAz).check(Field::ckAlt).set(Field::txt_Definition, "2").run();
    const std::vector<Sun> azimuths = plate.suns("azimut", palette(6), 2);
    const std::vector<Sun> altitudes = plate.suns("almucantarat", palette(7));
    for (const Sun& sun : azimuths) ASSERT_LT(apart(sun.azimuth, 0, 15), 1e-4);
    for (const Sun& sun : altitudes) ASSERT_LT(apart(sun.altitude, 0, 10), 1e-4);
    // The bound of a level plane lets nothing pass.
    const bool level = plate.site.reclination == 90;
    EXPECT_EQ(azimuths.empty(), level);
    EXPECT_TRUE(altitudes.empty() == level || plate.site.declination > 100);
  });
}

TEST(SkyCurves, AskWhichDialIsChecked) {
  for (const auto& [item, reclination, expected] : {std::tuple{Item::mnuUni, 30.0, rad(30)},
                                                    {Item::mnuUni, 90.0, rad(90)},
                                                    {Item::mnuVertSph, 90.0, 0.0},
                                                    {Item::M_Inclinati, 30.0, 0.0}}) {
    for (const Driver curve :
         {Driver{CurvaAsr}, Driver{CurvaQibla}, Driver{LineeAzimut}, Driver{CurveAlmucantarat}}) {
      if (item == Item::M_Inclinati && curve != Driver{CurvaQibla}) continue;
      FlatWall dial(item, curve, {45, 10, reclination});
      dial.params.Stilo = 0.2;
      dial.params.LatRad = 0.8;
      dial.params.ReclinRad = rad(reclination);
      dial.run();
      EXPECT_NEAR(dial.params.ReclinRad, expected, 1e-9) << reclination;
      EXPECT_EQ(dial.params.PianoOrizzontale, expected > 1 && curve == Driver{CurveAlmucantarat});
    }
  }
}

TEST(Universale, DrawsItsFamiliesInOrder) {
  Plate plate({45.7438, -14.57, 20});
  plate.checkEveryBox();
  for (const Field box : {Field::ckRomani, Field::ckArabi, Field::ckFunction})
    plate.panel.setState(box, false);
  plate.run();
  EXPECT_EQ(plate.inks(),
            "oreastro 7|-23.445° 12|23.445° 12|-20.15° 13|20.15° 13|11.47° 11|-11.47° 11|"
            "23.445 " +
                std::to_string(rgb(255, 127, 39)) +
                "|0° 12|Ita 12|Bab 12|Temp 12|analemma 15|ortostilo 10|sottostilo 12|"
                "assostilo 15|maxpendenza 8|azimut 6|almucantarat 7|");
  EXPECT_EQ(plate.sheet.list().order().front(), EntityKind::Box) << "the frame";
  const LineRecord horizon = plate.linesIn(palette(2)).at(0);
  EXPECT_EQ(std::pair(horizon.x1, horizon.x2),
            std::pair(-plate.sheet.ShiftX(), plate.sheet.ShiftX()));
  EXPECT_NEAR(horizon.y1, -0.2 * std::tan(rad(20)), 1e-9);
  EXPECT_FALSE(plate.busy);
}

TEST(Universale, LevelPlane) {
  Plate plate({45, 30, 90});
  plate.check(Field::ck_Orizzonte).check(Field::ck_Equinoziale).run();
  EXPECT_EQ(plate.panel.text(Field::txtDecl), "0");
  EXPECT_EQ(plate.params.DeclRad, 0);
  EXPECT_TRUE(plate.params.PianoOrizzontale);
  EXPECT_TRUE(plate.linesIn(palette(2)).empty()) << "no horizon";
  // The equinoctial lies North of the foot, the style's length away at 45 degrees.
  for (const LineRecord& line : plate.linesOf("0°")) EXPECT_NEAR(line.y1, -0.2, 1e-9);
  EXPECT_GT(plate.linesOf("0°").size(), 500u);
}

TEST(Universale, NumeralsStandOnTheDeclinationLine) {
  Plate plate(kSites[0]);
  plate.check(Field::ckArabi).run();
  const std::size_t arabic = plate.entities();
  EXPECT_GT(arabic, 0u);
  plate.sheet.Clear();
  plate.check(Field::ckArabi, false).check(Field::ckRomani).check(Field::Ck_DayLightCurves).run();
  const std::size_t once = plate.linesOf("0").size();
  EXPECT_TRUE(once > 0 && once != arabic);
  EXPECT_TRUE(plate.linesOf("23.445").empty());
  plate.sheet.Clear();
  plate.check(Field::ckArabi).run();
  EXPECT_EQ(plate.linesOf("0").size(), 2 * once) << "the Roman numerals twice, no Arabic ones";
  for (const LineRecord& line : plate.linesOf("0")) {
    EXPECT_EQ(line.colour, palette(7));
    EXPECT_NEAR(plate.declination(line.x1, line.y1), 23.445, 6) << "within a numeral's height";
  }
}

TEST(Universale, ALongStyleThinsTheLinesOut) {
  Plate plate({45.7438, 0, 0});
  for (const Field side : {Field::x2txt, Field::y1txt}) plate.set(side, "100");
  for (const Field side : {Field::x1txt, Field::y2txt}) plate.set(side, "-100");
  plate.set(Field::TxtStilo, "12").check(Field::chkOreAstronomiche).run();
  EXPECT_TRUE(plate.linesOf("oreastro").empty());
}

}  // namespace
}  // namespace dialwright
