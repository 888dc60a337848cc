// Program 7 beside its shadows: the drawing's order, inks and texts, the southern recipe, and what
// its shared curves ask and leave.
#include "dials/flat/universale.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "dials/flat/sky_curves.hpp"
#include "support/flat_wall.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {
namespace {

using sky::rad;

const std::vector<FlatSite> kSites = {{45.7438, -14.57, 0}, {45.7438, 37, 25}, {45, 0, 90}};

class Plate : public FlatWall {
 public:
  explicit Plate(const FlatSite& where) : FlatWall(Item::mnuUni, DisegnaUniversale, where) {
    set(Field::y1txt, "0.6").set(Field::y2txt, "-0.6");
  }
};

// The southern recipe draws the year upside down, one turn and no more; the zodiac goes with it.
TEST(Universale, AnalemmaIsTheYearsMeanNoon) {
  for (const FlatSite& site : {kSites[0], kSites[1], kSites[2]}) {
    Plate plate(site);
    plate.check(Field::ck_Lemniscate).check(Field::ckZodiaco);
    for (const bool southern : {false, true}) {
      plate.sheet.Clear();
      plate.check(Field::ckFunction, southern).run();
      const std::vector<LineRecord> year = plate.linesOf("analemma");
      for (const LineRecord& line : year) {
        const double day = plate.declination(line.x1, line.y1) * (southern ? -1 : 1);
        const double H = plate.hourAngle(line.x1, line.y1) + 7.3562;
        ASSERT_LT(sky::secondsFromEquationOfTime(rad(H), rad(day)), 25);
      }
      EXPECT_EQ(year.size() > 366, !southern) << "more than a year, or at most one";
      EXPECT_EQ(plate.entities() - year.size() > 100, southern) << "the zodiac's signs";
    }
    EXPECT_NEAR(plate.params.LonOrario, rad(-15 + 7.6438), 1e-9);
    plate.check(Field::ck_Lemniscate, false).sheet.Clear();
    EXPECT_EQ(plate.run().entities(), 0u) << "no zodiac without an analemma";
  }
}

TEST(Universale, TellsTheQiblasDirection) {
  Plate plate(kSites[0]);
  plate.check(Field::CkQibla).run();
  EXPECT_EQ(
      plate.told(),
      "Loc.||Loc.|Latitude 21.42527|Longitude -39.81638|Qibla from South = -58.02501° azimuth|"
      "Qibla from North = 121.97499° azimuth|");
  EXPECT_EQ(plate.sheet.ForeColor, 16777215);
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
