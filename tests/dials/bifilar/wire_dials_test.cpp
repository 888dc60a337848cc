// Programs 17 and 18: the chain, and the drawings' order, inks and texts.
#include "dials/bifilar/bifilar_case.hpp"
#include "dials/bifilar/catenaria.hpp"
#include "dials/bifilar/equiangolare.hpp"
#include "numerics/numbers.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

struct Catenary : BifilarCase {
  Catenary() : BifilarCase(Item::mnucatenaria, QuadranteCatenaria, kLatitude, -14.57) {}
};

struct Equiangular : BifilarCase {
  explicit Equiangular(double degrees = kLatitude, double declination = -14.57)
      : BifilarCase(Item::mnuBifvert, QuadranteEquiangolare, degrees, declination) {
    check(Field::ckFunction).set(Field::txtLineofdeclination, "5");
  }
};

// --- Program 18

// A catenary's scale by bisection of the sag of a half span.
double trueScale(double halfSpan, double sag) {
  double low = 1e-3, high = 1e6;
  for (int i = 0; i < 200; ++i) {
    const double f = std::sqrt(low * high);
    (f * (std::cosh(halfSpan / f) - 1) > sag ? low : high) = f;
  }
  return low;
}

// Twelve steps leave the ends a little above the hanging points.
TEST(Catenaria, ChainHangsNearlyFromItsPoints) {
  for (const auto& [L, sag] : {std::pair{0.5, 0.25}, {0.5, 0.01}, {0.5, 1.0}, {0.3, 0.25}}) {
    const bifilar::Catena chain = bifilar::RisolviCatena(L, sag);
    EXPECT_NEAR(chain.height(0), -sag, 1e-15);
    EXPECT_GT(chain.height(L), 0);
    EXPECT_LT(chain.height(L), 0.00006);
    EXPECT_NEAR(chain.f / trueScale(L, sag), 1, 0.0013);
  }
  EXPECT_NEAR(bifilar::RisolviCatena(0.5, 0.25).height(0.5), 0.0000528, 1e-7);
}

TEST(Catenaria, DrawsInItsOrder) {
  Catenary dial;
  dial.checkAll({Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Sustilare,
                 Field::ckTemp, Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Lemniscate,
                 Field::ck_Orizzonte, Field::ck_Triangolo, Field::CkQibla});
  dial.panel.setState(Field::ckFrame, true);
  dial.panel.setState(Field::ckArabi, false);
  dial.set(Field::TxtInizio, "1").set(Field::TxtFine, "23").set(Field::TxtHour, "2").run();
  EXPECT_EQ(dial.inks(),
            "midi 12|mezze 11|sus 15|CatWE 8|solstice° 12|solstice 12|+-20° 13|-+20° 13|-+11° 11|"
            "+-11° 11|eq 9|diurna 10|Ita 8421631|Ita1 8421631|bab 13|bab2 13|horizon 7|temp 13|"
            "analemma 13|arrow 12|");
  const std::vector<EntityKind>& order = dial.sheet.list().order();
  EXPECT_EQ(order.at(dial.linesOf("midi").size()), EntityKind::Box);
  EXPECT_EQ(dial.sheet.list().circles.at(0).y, 0.25);
  const std::vector<LineRecord> chain = dial.linesOf("CatWE");
  ASSERT_EQ(chain.size(), 499u);
  const bifilar::Catena solved = bifilar::RisolviCatena(0.5, 0.25);
  for (const LineRecord& line : chain) EXPECT_NEAR(-line.y1, solved.height(line.x1), 1e-12);
  EXPECT_EQ(dial.told(),
            " |L half lenght of the chain 0.57542|f factor of scale 0.53706|K   0.5|a   0.93099|"
            "d2 vertical distance from the plane  0.2|"
            "d1 distance of the hanging points from the plane   0.1|"
            "hanging points x, y -0.5  0 : 0.5  0|vertex  0  -0.25||Qibla: azimuth -58.02501°|");
  EXPECT_EQ(dial.params.PassoOre, 7.5);
  EXPECT_FALSE(dial.busy);
}

// A chain without sag has no scale: wire and chain cross at the level of the hanging points.
TEST(Catenaria, WithoutSagAllLinesAreLevel) {
  Catenary dial;
  dial.set(Field::txtV1, "").check(Field::chkOreAstronomiche).run();
  EXPECT_GT(dial.linesOf("0").size(), 100u);
  for (const LineRecord& line : dial.linesOf("0")) EXPECT_EQ(line.y1, 0);
  EXPECT_EQ(dial.told().substr(0, 24), " |f factor of scale 0|K ") << "no length";
}

// --- Program 17

// So steep that no chord is short enough.
TEST(Equiangolare, LosesASteepSubstyle) {
  Equiangular steep(kLatitude, 1);
  EXPECT_TRUE(steep.check(Field::ck_Orizzonte).run().linesOf("Sus").empty());
  steep.panel.setState(Field::ckTrue, true);
  EXPECT_FALSE(steep.run().linesOf("Sus").empty());
}

TEST(Equiangolare, DrawsInItsOrder) {
  Equiangular dial;
  dial.checkAll(
      {Field::chkOreAstronomiche, Field::ck_Italiche, Field::ck_Orizzonte, Field::ck_Triangolo});
  dial.check(Field::ckFunction, false);
  dial.panel.setState(Field::ckFrame, true);
  dial.sheet.Messaggio("as it was");
  dial.run();
  EXPECT_EQ(dial.inks(),
            "equi 11|oreemezze 15|-23.445° 12|-20.1552° 13|-11.4746° 11|eq 9|11.4746° 11|"
            "20.1552° 13|23.445° 12|Hor 8|Sus 15|Ita 12|Ita2 12|");
  EXPECT_EQ(dial.sheet.list().order().front(), EntityKind::Box);
  EXPECT_EQ(dial.sheet.caption(), "as it was");
  EXPECT_GT(dial.pointsIn(palette(14)).size(), 3000u) << "the free line: all hours, both sides";
  // The wires turned into the wall: each stands at its distance from its middle line.
  const std::vector<LineRecord> wires = dial.linesOf("0");
  ASSERT_EQ(wires.size(), 9u);
  // The world's axis stands out of the wall by this sine.
  const double b = 0.2 * std::cos(dial.latitude) * std::cos(sky::rad(-14.57));
  for (const auto& [i, length] : {std::pair{1, 0.2}, {3, 0.2}, {6, b}, {7, b}})
    EXPECT_NEAR(sky::distance({wires[i].x1, wires[i].y1}, {wires[i].x2, wires[i].y2}), length,
                1e-10);
  EXPECT_EQ(dial.told(),
            "x_0, y_0  -0.02946  -0.12017||x0, y0  0.03511  0.14325|esse  -19.94604 °|"
            "erre  0.28852|erre1  0.20665|erre0  0.14749|delta_r  0.12373|"
            "x_0, y_0  -0.02946  -0.12017|a  0.2|b  0.13509|");
  EXPECT_EQ(dial.panel.text(Field::txtHeightz), "0.2");
  EXPECT_EQ(dial.panel.text(Field::txtHeightx), textOf(rounded(b * 1000, 4)));
  EXPECT_EQ(dial.panel[Field::lblHeightz].caption, "a");
  EXPECT_EQ(dial.panel[Field::lblHeightx].caption, "b");
}

// Without slope and sides the equator keeps to what needs neither.
TEST(Equiangolare, OnTheEquatorTheEquinoctialIsLevel) {
  Equiangular dial(0, -60);
  dial.run();
  ASSERT_FALSE(dial.linesOf("equi").empty());
  for (const LineRecord& line : dial.linesOf("equi")) EXPECT_EQ(line.y1, 0);
  EXPECT_FALSE(dial.linesOf("eq").empty());
  EXPECT_TRUE(dial.linesOf("23.445°").empty() && dial.linesOf("diurna2").empty());
}

TEST(WireDials, RefuseTheSouthAndTakeAnyInput) {
  expectRefusesSouth(Item::mnucatenaria, QuadranteCatenaria);
  expectRefusesSouth(Item::mnuBifvert, QuadranteEquiangolare);
  expectBounded(Item::mnucatenaria, QuadranteCatenaria,
                {Field::ckTemp, Field::ck_Triangolo, Field::ck_Lemniscate, Field::CkQibla,
                 Field::ck_Sustilare, Field::ckFunction, Field::ck_Italiche},
                {Field::txtLAT, Field::txtDecl, Field::TxtStilo, Field::TxtRadius, Field::txtV1,
                 Field::txtD1, Field::TxtHour, Field::TxtInizio, Field::TxtFine, Field::txtAO,
                 Field::txtQlat, Field::txtLineofdeclination, Field::x2txt});
  expectBounded(Item::mnuBifvert, QuadranteEquiangolare,
                {Field::ck_Orizzonte, Field::ck_Triangolo, Field::ckFunction, Field::ck_Italiche},
                {Field::txtLAT, Field::txtDecl, Field::TxtStilo, Field::TxtInizio, Field::TxtFine,
                 Field::txtLineofdeclination, Field::y2txt});
}

}  // namespace
}  // namespace dialwright
