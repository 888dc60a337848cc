// Programs 17 and 18 on a wall in the sun: every point is where the shadows of the two wires, or of
// the wire and the chain, cross, and the drawing's order, inks and texts are those of the dial.
#include <optional>

#include "dials/bifilar/catenaria.hpp"
#include "dials/bifilar/equiangolare.hpp"
#include "numerics/numbers.hpp"
#include "support/odd_input.hpp"
#include "support/shadow_dial.hpp"
#include "support/wire_shadow.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::offGrid;
using sky::rad;

const std::vector<Site> kSites = {{kLatitude, 0}, {kLatitude, -14.57}, {62, 37},  {30, -75},
                                  {5, 10},        {kLatitude, 120},    {75, -160}};

// Lines know no back of the wall.
template <class Wires>
struct Wall : ShadowDial<Wires> {
  Wall(Item item, Driver driver, const Wires& wires, const Site& site)
      : ShadowDial<Wires>(item, driver, wires, site) {
    this->bothWays = this->joins = true;
  }
  // Out of the plane of the world's axis and the wall's normal.
  double offSubstyle(sky::Vec s) const {
    const sky::Vec pole{0, std::cos(this->latitude), std::sin(this->latitude)};
    return std::abs(sky::dot(sky::cross(pole, this->plane.normal), s));
  }
};

struct Catenary : Wall<sky::WireAndChain> {
  explicit Catenary(const Site& site = {kLatitude, -14.57})
      : Wall(Item::mnucatenaria, QuadranteCatenaria,
             {0.1, 0.2, 0.25, bifilar::RisolviCatena(0.5, 0.25).f}, site) {}
};

struct Equiangular : Wall<sky::CrossedWires> {
  explicit Equiangular(const Site& site = {kLatitude, -14.57})
      : Wall(Item::mnuBifvert, QuadranteEquiangolare, {0.2, 0, rad(site.latitude)}, site) {
    // The world's axis stands out of the wall by this sine.
    gnomon.b = 0.2 * std::abs(std::cos(latitude) * std::cos(rad(site.declination)));
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

TEST(Catenaria, LinesAreWhereWireAndChainCross) {
  for (const bool option : {false, true}) {  // the zone's time, and a free line
    for (const Site& site : kSites) {
      Catenary dial(site);
      dial.checkAll({Field::chkOreAstronomiche, Field::ck_Sustilare, Field::Ck_DayLightCurves});
      dial.check(Field::ck_Etna, option).check(Field::ckFunction, option);
      dial.set(Field::TxtHour, "4").set(Field::txtLineofdeclination, "7").run();
      const auto hours = [&](double first) {
        const double shift = option ? 15 - 7.6438 : 0;  // the zone's meridian lies to the East
        return [=](double H, double d) {
          return onYear(d) && offGrid(H + shift - first, 15) < kAngle;
        };
      };
      EXPECT_GT(dial.everySun("0", hours(0)) + dial.everySun("mezze", hours(7.5)), 2000u);
      dial.everySun("midi",
                    [&](double H, double d) { return onYear(d) && offGrid(H, 180) < kAngle; });
      dial.everySun("sus", [&](double H, double d) {
        return onYear(d) && dial.offSubstyle(sky::sun(dial.latitude, rad(H), rad(d))) < 1e-7;
      });
      // The days swap on northern walls.
      const double side = std::abs(site.declination) > 90 ? -1 : 1;
      std::size_t count = 0;
      for (const auto& [layer, day] : {std::pair{"solstice°", -23.445},
                                       {"solstice", 23.445},
                                       {"+-20°", -20.1552},
                                       {"-+20°", 20.1552},
                                       {"-+11°", -11.4746},
                                       {"+-11°", 11.4746},
                                       {"eq", 0.0},
                                       {"diurna", option ? 7 * side : 0}})
        count += dial.everyDay(layer, day * side);
      EXPECT_GT(count, 4000u);
    }
  }
}

TEST(Catenaria, OtherHoursAreCountedFromSunriseAndSunset) {
  for (const bool free : {false, true}) {
    for (const Site& site : kSites) {
      Catenary dial(site);
      dial.checkAll(
          {Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp, Field::ck_Orizzonte});
      dial.check(Field::ckFunction, free).set(Field::txtLineofdeclination, "-5");
      dial.set(Field::TxtInizio, "1").set(Field::TxtFine, "23").run();
      const auto from = [&](double first, double last, double sense, double latest) {
        return [=, &dial](double H, double d) {
          if (!onYear(d) || d > latest) return false;
          const double k = std::fmod((H + sense * dial.arc(d)) / 15 + 47.5, 24) + 0.5;
          return dial.steep(d) || (offGrid(k, 1) < 1e-5 && k > first - 0.1 && k < last + 0.1);
        };
      };
      const double latest = free ? -4.99 : 24;
      std::size_t count = dial.everySun("Ita", from(22, 23, -1, latest));
      count += dial.everySun("Ita1", from(1, 21, -1, 24));
      // Counted an hour ahead.
      count += dial.everySun("bab", from(2, 4, 1, latest));
      count += dial.everySun("bab2", from(5, 24, 1, 24));
      count += dial.everySun("temp", [&](double H, double d) {
        const double hours = H / dial.arc(d) * 6, round = 2160 / dial.arc(d);
        const auto off = [&](double turn) { return offGrid(hours + turn, 1); };
        return dial.steep(d) || std::min({off(0), off(-round), off(round)}) < 1e-4;
      });
      EXPECT_GT(count, 3000u);
      dial.everySun("horizon", [&](double H, double d) {
        return d < 1e-5 && (dial.steep(d) || dial.arc(d) == 180 ||
                            std::abs(sky::sun(dial.latitude, rad(H), rad(d)).z) < 1e-7);
      });
    }
  }
}

// Every chord is drawn, however long. On a wall turned by exactly a quarter it is upside down.
TEST(Catenaria, AnalemmaIsTheYearsMeanNoon) {
  for (const double D : {-14.57, 30.0, 150.0, 90.0}) {
    Catenary dial({kLatitude, D});
    dial.set(Field::x1txt, "-9").set(Field::y2txt, "-9").check(Field::ck_Lemniscate);
    dial.set(Field::TxtFuso, D == 90 ? "4" : "-1").run();
    EXPECT_GE(dial.linesOf("analemma").size(), D == 90 ? 300u : 365u);
    dial.expectAnalemma(dial.linesOf("analemma"), D == 90);
  }
}

// The azimuth of Mecca from South to the West, by the chord through the earth.
double azimuthOfMecca(double latitude, double west) {
  const auto place = [](double lat, double lon) {
    return sky::Vec{std::cos(rad(lat)) * std::cos(rad(lon)),
                    std::cos(rad(lat)) * std::sin(rad(lon)), std::sin(rad(lat))};
  };
  const sky::Vec here = place(latitude, -west), there = place(21.42527, 39.81638);
  const sky::Vec east = sky::unit(sky::cross({0, 0, 1}, here)), north = sky::cross(here, east);
  return deg(std::atan2(-sky::dot(there, east), -sky::dot(there, north)));
}

TEST(Catenaria, QiblaIsTheSunOverTheHolyPlace) {
  for (const auto& [latitude, west, drawn] : {std::tuple{kLatitude, -7.6438, true},
                                              {35.0, -60.0, true},
                                              {12.0, -20.0, false},
                                              {20.0, 75.0, false}}) {
    SCOPED_TRACE(latitude);
    Catenary dial({latitude, west < -40 ? 40.0 : -30.0});
    dial.set(Field::txtLON, std::to_string(west)).set(Field::txtAO, "0.25");
    dial.check(Field::CkQibla).run();
    const double azimuth = azimuthOfMecca(latitude, west);
    const std::string& text = dial.sheet.list().texts.back().text;
    EXPECT_EQ(text.substr(0, 15), "Qibla: azimuth ");
    EXPECT_NEAR(std::stod(text.substr(15)), azimuth, 2e-5);
    // A place to the North is drawn by the sun opposite to it.
    for (const PointRecord& p : dial.pointsIn(palette(2))) {
      ASSERT_TRUE(dial.sunFits(p.x, p.y, [&](double H, double d) {
        const sky::Vec s = sky::sun(dial.latitude, rad(H), rad(d));
        const double turn = deg(std::atan2(-s.x, -s.y)) - azimuth;
        return onYear(d) && offGrid(turn, drawn ? 360 : 180) < 1e-4;
      }));
    }
    EXPECT_TRUE(!drawn || dial.pointsIn(palette(2)).size() > 100);
  }
  Catenary own;
  own.check(Field::CkQibla).run();
  EXPECT_EQ(own.pointsIn(palette(2)).size(), 0u) << "a sag of 32.5 m, which txtAO holds first";
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
  for (const LineRecord& line : chain) EXPECT_NEAR(-line.y1, dial.gnomon.chainAt(line.x1), 1e-12);
  EXPECT_EQ(dial.told(),
            " |L half lenght of the chain 0.57542|f factor of scale 0.53706|K   0.5|a   0.93099|"
            "d2 vertical distance from the plane  0.2|"
            "d1 distance of the hanging points from the plane   0.1|"
            "hanging points x, y -0.5  0 : 0.5  0|vertex  0  -0.25||Qibla: azimuth -58.02501°|");
  EXPECT_EQ(dial.params.PassoOre, 7.5);
  EXPECT_FALSE(dial.busy);
  // The first line of each loop is left out; the last one, half a turn on, draws it.
  const std::vector<LineRecord> whole = dial.linesOf("0"), halves = dial.linesOf("mezze");
  for (const auto& [line, hour] :
       {std::pair{whole.front(), 15.0}, {halves.front(), 22.5}, {halves.back(), 7.5}})
    EXPECT_LT(offGrid(dial.hourAngle(dial.sun(line.x1, line.y1)) - hour, 180), kAngle);
}

TEST(Catenaria, NumeralsStandOnTheLineOfDeclination) {
  const std::size_t bare = Catenary().run().sheet.list().lines.size();
  for (const Field other : {Field::ckArabi, Field::ckRomani}) {
    Catenary dial;
    dial.panel.setState(other, false);
    dial.set(Field::txtLineofdeclination, "-10").run();
    const auto& lines = dial.sheet.list().lines;
    ASSERT_GT(lines.size(), bare + 50);
    for (std::size_t i = bare; i < lines.size(); ++i)
      EXPECT_NEAR(dial.declination(dial.sun(lines[i].x1, lines[i].y1)), -10, 9);
  }
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

// One degree for a degree of the sun, half a turn and more about the centre.
void expectEqualAngles(Equiangular& dial, double sense) {
  const CircleRecord centre = dial.sheet.list().circles.at(0);
  std::optional<double> zero;
  for (const LineRecord& line : dial.linesOf("oreemezze")) {
    const double H = dial.hourAngle(dial.sun(line.x1, line.y1));
    EXPECT_EQ(line.colour, palette(offGrid(H, 180) < 1e-3 ? 12 : 15));
    const double angle = deg(std::atan2(line.y1 - centre.y, line.x1 - centre.x)) + sense * H;
    if (!zero) zero = angle;
    ASSERT_LT(offGrid(angle - *zero, 180), 1e-4) << H;
  }
}

TEST(Equiangolare, LinesAreWhereTheWiresCross) {
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Equiangular dial(site);
    // Neither the divisions of the hour nor the longitude count, nor the box of the days.
    dial.set(Field::TxtHour, "1").set(Field::txtLON, "70").check(Field::ck_Etna);
    dial.checkAll({Field::chkOreAstronomiche, Field::ck_Orizzonte});
    dial.run();
    const std::size_t hours = dial.everySun("oreemezze", [&](double H, double d) {
      return onYear(d) && offGrid(H, 7.5) < kAngle && std::abs(H) < 90.0001;
    });
    EXPECT_GT(hours, 1000u);
    EXPECT_EQ(dial.joints, site.latitude == 75 ? 1u : 0u) << "with the straight equinoctial";
    const bool north = std::abs(site.declination) > 90;
    expectEqualAngles(dial, north ? -1 : 1);

    std::size_t days = dial.everyDay("diurna2", 5) + dial.everyDay("eq", 0);
    for (const double day : {-23.445, -20.1552, -11.4746, 11.4746, 20.1552, 23.445})
      days += dial.everyDay(textOf(day) + "°", day);
    EXPECT_GT(days, 1000u);
    // The straight equinoctial's place is that of a wall that faces South.
    const auto furthest = [&](const char* layer, auto off) {
      double most = 0;
      for (const LineRecord& line : dial.linesOf(layer))
        most = std::max(most, std::abs(off(dial.sun(line.x1, line.y1))));
      return most;
    };
    const auto day = [&](sky::Vec s) { return dial.declination(s); };
    EXPECT_EQ(furthest("equi", day) < kAngle, !north);

    EXPECT_GT(std::min(dial.linesOf("Hor").size(), dial.linesOf("Sus").size()), 100u);
    EXPECT_LT(furthest("Hor", [](sky::Vec s) { return s.z; }), 1e-7);
    const double off = furthest("Sus", [&](sky::Vec s) { return dial.offSubstyle(s); });
    if (site.declination != 0) {
      EXPECT_LT(off, 1e-7);
      continue;
    }
    // On a southern wall the substyle lies on the horizon.
    EXPECT_GT(off, 0.1);
    for (const LineRecord& line : dial.linesOf("Sus")) EXPECT_EQ(line.y1, 0);
  }
  // So steep that no chord is short enough.
  Equiangular steep({kLatitude, 1});
  EXPECT_TRUE(steep.check(Field::ck_Orizzonte).run().linesOf("Sus").empty());
}

TEST(Equiangolare, ItalicHoursAreCountedFromSunset) {
  for (const Site& site : {kSites[1], kSites[2]}) {
    Equiangular dial(site);
    dial.checkAll({Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp});
    dial.set(Field::TxtInizio, "13").set(Field::TxtFine, "24").run();
    const auto from = [&](double first, double latest) {
      return [&dial, first, latest](double H, double d) {
        const double k = std::fmod((H - dial.arc(d)) / 15 + 47.5, 24) + 0.5;
        return onYear(d) && d < latest && offGrid(k, 1) < 1e-5 && k > first - 0.1;
      };
    };
    EXPECT_GT(dial.everySun("Ita", from(22, 5.01)), 100u);
    EXPECT_GT(dial.everySun("Ita2", from(13, 24)), 500u);
    EXPECT_TRUE(dial.linesOf("bab").empty() && dial.linesOf("temp").empty());
  }
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
  // The free line in points: all hours, on both sides.
  const std::vector<PointRecord> dots = dial.pointsIn(palette(14));
  EXPECT_GT(dots.size(), 3000u);
  for (const PointRecord& p : dots) {
    ASSERT_TRUE(dial.sunFits(p.x, p.y, [](double, double d) { return std::abs(d - 5) < kAngle; }));
  }
  // The wires turned into the wall: each stands at its distance from its middle line.
  const std::vector<LineRecord> wires = dial.linesOf("0");
  ASSERT_EQ(wires.size(), 9u);
  for (const auto& [i, length] :
       {std::pair{1, 0.2}, {3, 0.2}, {6, dial.gnomon.b}, {7, dial.gnomon.b}})
    EXPECT_NEAR(sky::distance({wires[i].x1, wires[i].y1}, {wires[i].x2, wires[i].y2}), length,
                1e-10);
  EXPECT_EQ(dial.told(),
            "x_0, y_0  -0.02946  -0.12017||x0, y0  0.03511  0.14325|esse  -19.94604 °|"
            "erre  0.28852|erre1  0.20665|erre0  0.14749|delta_r  0.12373|"
            "x_0, y_0  -0.02946  -0.12017|a  0.2|b  0.13509|");
  EXPECT_EQ(dial.panel.text(Field::txtHeightz), "0.2");
  EXPECT_EQ(dial.panel.text(Field::txtHeightx), textOf(rounded(dial.gnomon.b * 1000, 4)));
  EXPECT_EQ(dial.panel[Field::lblHeightz].caption, "a");
  EXPECT_EQ(dial.panel[Field::lblHeightx].caption, "b");
}

// Without slope and sides the equator keeps to what needs neither.
TEST(Equiangolare, OnTheEquatorTheEquinoctialIsLevel) {
  Equiangular dial({0, -60});
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
