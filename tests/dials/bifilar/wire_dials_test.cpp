// Programs 17 and 18 on a wall in the sun: every point is where the shadows of the two wires, or of
// the wire and the chain, cross, and the drawing's order, inks and texts are those of the dial.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include "dials/bifilar/catenaria.hpp"
#include "dials/bifilar/equiangolare.hpp"
#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"
#include "support/mean_sun.hpp"
#include "support/odd_input.hpp"
#include "support/wire_shadow.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::offGrid;
using sky::rad;

constexpr double kAngle = 2e-5;  // degrees; the circle constant is short by 4e-10
constexpr double kLatitude = 45.7438;

struct Site {
  double latitude, declination;
};
const std::vector<Site> kSites = {{kLatitude, 0}, {kLatitude, -14.57}, {62, 37},  {30, -75},
                                  {5, 10},        {kLatitude, 120},    {75, -160}};

// A dial of a site that draws no family and, with both kinds asked for, no numerals.
template <class Wires>
class Wall : public DialCase {
 public:
  Wall(Item item, Driver driver, const Site& site)
      : DialCase(item, driver),
        latitude(rad(site.latitude)),
        plane(sky::Plane::facing(site.declination, 0)) {
    set(Field::txtLAT, std::to_string(site.latitude));
    set(Field::txtDecl, std::to_string(site.declination));
    clearBoxes();
    for (const Field both : {Field::ckRomani, Field::ckArabi}) panel.setState(both, true);
  }

  // The sun of a spot is what `fits` expects for its hour angle and declination (degrees). Lines
  // know no back of the wall: a spot may belong to the sun opposite.
  template <class Fits>
  bool sunFits(double x, double sheetY, Fits fits) const {
    const sky::Vec sunwards = wires.sunAt(plane, {x, -sheetY});
    const auto good = [&](sky::Vec s) {
      return fits(deg(sky::hourAngleOf(latitude, s)), deg(sky::declinationOf(latitude, s)));
    };
    return good(sunwards) || good(-1 * sunwards);
  }
  // Both ends of every chord of a layer; gives how many chords there are. A line whose first sample
  // is dropped may begin at the end of another family's: those are counted in `joints`.
  template <class Fits>
  std::size_t everySun(std::string_view layer, Fits fits, double longest = 0.02) {
    const std::vector<LineRecord> lines = linesOf(layer);
    for (const LineRecord& line : lines) {
      EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), longest);
      EXPECT_TRUE(std::abs(line.x1) < 0.5 && line.y1 > -0.2 && line.y1 < 1);
      joints += !sunFits(line.x2, line.y2, fits);
      if (sunFits(line.x1, line.y1, fits)) continue;
      ADD_FAILURE() << layer << ' ' << line.x1 << ' ' << line.y1;
      return 0;
    }
    return lines.size();
  }
  // The same for a curve of one declination.
  std::size_t everyDay(std::string_view layer, double declination) {
    return everySun(layer, [=](double, double d) { return std::abs(d - declination) < kAngle; });
  }
  double arc(double d) const { return sky::arcOrHalfTurn(latitude, rad(d)); }
  // Out of the plane of the world's axis and the wall's normal.
  double offSubstyle(double H, double d) const {
    const sky::Vec pole{0, std::cos(latitude), std::sin(latitude)};
    return sky::dot(sky::cross(pole, plane.normal), sky::sun(latitude, rad(H), rad(d)));
  }

  double latitude;
  sky::Plane plane;
  Wires wires{};
  std::size_t joints = 0;
};

struct Catenary : Wall<sky::WireAndChain> {
  explicit Catenary(const Site& site = {kLatitude, -14.57})
      : Wall(Item::mnucatenaria, QuadranteCatenaria, site) {
    wires = {0.1, 0.2, 0.25, bifilar::RisolviCatena(0.5, 0.25).f};
  }
};

struct Equiangular : Wall<sky::CrossedWires> {
  explicit Equiangular(const Site& site = {kLatitude, -14.57})
      : Wall(Item::mnuBifvert, QuadranteEquiangolare, site) {
    // The world's axis stands out of the wall by this sine.
    const double sine = std::abs(std::cos(latitude) * std::cos(rad(site.declination)));
    wires = {0.2, 0.2 * sine, latitude};
    check(Field::ckFunction).set(Field::txtLineofdeclination, "5");
  }
};

bool onYear(double d) { return offGrid(d + 23.445, 0.05) < kAngle && std::abs(d) < 23.4451; }

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

TEST(Catenaria, HoursAreWhereWireAndChainCross) {
  for (const bool zone : {false, true}) {
    for (const Site& site : kSites) {
      SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
      Catenary dial(site);
      dial.set(Field::TxtHour, "4").check(Field::chkOreAstronomiche).check(Field::ck_Etna, zone);
      dial.check(Field::ck_Sustilare).run();
      const double shift = zone ? 15 - 7.6438 : 0;  // the zone's meridian lies to the East
      std::size_t count = dial.everySun(
          "0", [&](double H, double d) { return onYear(d) && offGrid(H + shift, 15) < kAngle; });
      count += dial.everySun("mezze", [&](double H, double d) {
        return onYear(d) && offGrid(H + shift - 7.5, 15) < kAngle;
      });
      EXPECT_GT(count, 2000u);
      dial.everySun("midi",
                    [&](double H, double d) { return onYear(d) && offGrid(H, 180) < kAngle; });
      dial.everySun("sus", [&](double H, double d) {
        return onYear(d) && std::abs(dial.offSubstyle(H, d)) < 1e-7;
      });
    }
  }
}

TEST(Catenaria, DayCurvesSwapOnNorthernWalls) {
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Catenary dial(site);
    dial.check(Field::Ck_DayLightCurves).check(Field::ckFunction);
    dial.set(Field::txtLineofdeclination, "7").run();
    const double side = std::abs(site.declination) > 90 ? -1 : 1;
    std::size_t count = 0;
    for (const auto& [layer, declination] : {std::pair{"solstice°", -23.445 * side},
                                             {"solstice", 23.445 * side},
                                             {"+-20°", -20.1552 * side},
                                             {"-+20°", 20.1552 * side},
                                             {"-+11°", -11.4746 * side},
                                             {"+-11°", 11.4746 * side},
                                             {"eq", 0.0},
                                             {"diurna", 7.0}})
      count += dial.everyDay(layer, declination);
    EXPECT_GT(count, 5000u);
  }
}

TEST(Catenaria, OtherHoursAreCountedFromSunriseAndSunset) {
  for (const bool free : {false, true}) {
    for (const Site& site : kSites) {
      SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
      Catenary dial(site);
      for (const Field box :
           {Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp, Field::ck_Orizzonte})
        dial.check(box);
      dial.check(Field::ckFunction, free).set(Field::txtLineofdeclination, "-5");
      dial.set(Field::TxtInizio, "1").set(Field::TxtFine, "23").run();
      // Where the arc runs to half a turn, a steep root loses half of the digits.
      const auto steep = [&](double d) {
        return std::abs(std::tan(dial.latitude) * std::tan(rad(d))) > 0.999;
      };
      const auto from = [&](double first, double last, double sense, double latest) {
        return [=, &dial](double H, double d) {
          if (!onYear(d) || d > latest) return false;
          const double k = std::fmod((H + sense * dial.arc(d)) / 15 + 47.5, 24) + 0.5;
          return steep(d) || (offGrid(k, 1) < 1e-5 && k > first - 0.1 && k < last + 0.1);
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
        return steep(d) || offGrid(hours, 1) < 1e-4 || offGrid(hours - round, 1) < 1e-4 ||
               offGrid(hours + round, 1) < 1e-4;
      });
      EXPECT_GT(count, 3000u);
      dial.everySun("horizon", [&](double H, double d) {
        return d < 1e-5 && (steep(d) || dial.arc(d) == 180 ||
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
    const std::vector<LineRecord> lines = dial.linesOf("analemma");
    ASSERT_GE(lines.size(), D == 90 ? 300u : 365u);
    for (const LineRecord& line : lines) {
      ASSERT_TRUE(dial.sunFits(line.x1, line.y1, [&](double H, double d) {
        const double true_d = D == 90 ? -d : d;
        return sky::secondsFromEquationOfTime(rad(H) + dial.params.CorrFuso, rad(true_d)) < 30;
      })) << D;
    }
    EXPECT_EQ(dial.params.LonAbs, dial.params.CorrFuso);
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
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Sustilare, Field::ckTemp,
        Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Lemniscate, Field::ck_Orizzonte,
        Field::ck_Triangolo, Field::CkQibla})
    dial.check(box);
  dial.panel.setState(Field::ckFrame, true);
  dial.panel.setState(Field::ckArabi, false);
  dial.set(Field::TxtInizio, "1").set(Field::TxtFine, "23").set(Field::TxtHour, "2").run();
  EXPECT_EQ(dial.inks(),
            "midi 12|mezze 11|sus 15|CatWE 8|solstice° 12|solstice 12|+-20° 13|-+20° 13|-+11° 11|"
            "+-11° 11|eq 9|diurna 10|Ita 8421631|Ita1 8421631|bab 13|bab2 13|horizon 7|temp 13|"
            "analemma 13|arrow 12|");
  const std::vector<EntityKind>& order = dial.sheet.list().order();
  const auto noon = static_cast<std::ptrdiff_t>(dial.linesOf("midi").size());
  EXPECT_EQ(std::find(order.begin(), order.end(), EntityKind::Box) - order.begin(), noon);
  const auto& circle = dial.sheet.list().circles.at(0);
  EXPECT_EQ(circle.y, 0.25);
  EXPECT_EQ(circle.radius, 0.002);
  const std::vector<LineRecord> chain = dial.linesOf("CatWE");
  ASSERT_EQ(chain.size(), 499u);
  for (const LineRecord& line : chain) EXPECT_NEAR(-line.y1, dial.wires.chainAt(line.x1), 1e-12);
  EXPECT_EQ(dial.told(),
            " |L half lenght of the chain 0.57542|f factor of scale 0.53706|K   0.5|a   0.93099|"
            "d2 vertical distance from the plane  0.2|"
            "d1 distance of the hanging points from the plane   0.1|"
            "hanging points x, y -0.5  0 : 0.5  0|vertex  0  -0.25||Qibla: azimuth -58.02501°|");
  EXPECT_EQ(dial.sheet.caption(), "Bifilar, declining, vertical catenary dial by vectors");
  EXPECT_EQ(dial.params.PassoOre, 7.5);
  EXPECT_FALSE(dial.busy);
}

// The first line of each loop is left out; the last one, half a turn on, draws it.
TEST(Catenaria, LoopsLeaveTheirFirstLineOut) {
  Catenary dial;
  dial.set(Field::TxtHour, "2").check(Field::chkOreAstronomiche).run();
  const auto expectHour = [&](const LineRecord& line, double hour) {
    const sky::Vec s = dial.wires.sunAt(dial.plane, {line.x1, -line.y1});
    EXPECT_LT(offGrid(deg(sky::hourAngleOf(dial.latitude, s)) - hour, 180), kAngle);
  };
  expectHour(dial.linesOf("0").front(), 15);
  expectHour(dial.linesOf("0").back(), 0);
  expectHour(dial.linesOf("mezze").front(), 22.5);
  expectHour(dial.linesOf("mezze").back(), 7.5);
}

TEST(Catenaria, NumeralsStandOnTheLineOfDeclination) {
  const std::size_t bare = Catenary().run().sheet.list().lines.size();
  for (const Field other : {Field::ckArabi, Field::ckRomani}) {
    Catenary dial;
    dial.panel.setState(other, false);
    dial.set(Field::txtLineofdeclination, "-10").run();
    const auto& lines = dial.sheet.list().lines;
    ASSERT_GT(lines.size(), bare + 50);
    for (std::size_t i = bare; i < lines.size(); ++i) {
      const sky::Vec s = dial.wires.sunAt(dial.plane, {lines[i].x1, -lines[i].y1});
      EXPECT_NEAR(deg(sky::declinationOf(dial.latitude, s)), -10, 9);
    }
  }
}

// --- Program 17

TEST(Equiangolare, HoursAreEquallySpacedInAngle) {
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Equiangular dial(site);
    // Neither the divisions of the hour nor the longitude count.
    dial.set(Field::TxtHour, "1").set(Field::txtLON, "70").check(Field::ck_Etna);
    dial.check(Field::chkOreAstronomiche).run();
    const sky::Spot centre{dial.sheet.list().circles.at(0).x, dial.sheet.list().circles.at(0).y};
    const std::size_t count = dial.everySun("oreemezze", [&](double H, double d) {
      return onYear(d) && offGrid(H, 7.5) < kAngle && std::abs(H) < 90.0001;
    });
    EXPECT_GT(count, 1000u);
    EXPECT_EQ(dial.joints, site.latitude == 75 ? 1u : 0u) << "with the straight equinoctial";
    // Half a turn and more about the centre, one degree for a degree of the sun.
    const double sense = std::abs(site.declination) > 90 ? -1 : 1;
    std::optional<double> zero;
    for (const LineRecord& line : dial.linesOf("oreemezze")) {
      const double H =
          deg(sky::hourAngleOf(dial.latitude, dial.wires.sunAt(dial.plane, {line.x1, -line.y1})));
      EXPECT_EQ(line.colour, palette(offGrid(H, 180) < 1e-3 ? 12 : 15));
      const double angle = deg(std::atan2(line.y1 - centre.y, line.x1 - centre.x)) + sense * H;
      if (!zero) zero = angle;
      ASSERT_LT(offGrid(angle - *zero, 180), 1e-4) << H;
    }
  }
}

// Each day on its side of the equinoctial, whose place is that of a wall that faces South.
TEST(Equiangolare, DayCurvesKeepToTheirSide) {
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Equiangular dial(site);
    dial.run();  // without the box of the curves
    std::size_t count = 0;
    for (const auto& [layer, declination] : {std::pair{"-23.445°", -23.445},
                                             {"-20.1552°", -20.1552},
                                             {"-11.4746°", -11.4746},
                                             {"diurna2", 5.0},
                                             {"eq", 0.0},
                                             {"11.4746°", 11.4746},
                                             {"20.1552°", 20.1552},
                                             {"23.445°", 23.445}})
      count += dial.everyDay(layer, declination);
    EXPECT_GT(count, 1000u);
    const bool north = std::abs(site.declination) > 90;
    double off = 0;
    for (const LineRecord& line : dial.linesOf("equi")) {
      const sky::Vec s = dial.wires.sunAt(dial.plane, {line.x1, -line.y1});
      off = std::max(off, std::abs(deg(sky::declinationOf(dial.latitude, s))));
    }
    EXPECT_EQ(off < kAngle, !north) << off;
  }
}

TEST(Equiangolare, HorizonAndSubstyleAreStraight) {
  for (const Site& site : kSites) {
    SCOPED_TRACE(testing::Message() << site.latitude << ' ' << site.declination);
    Equiangular dial(site);
    dial.check(Field::ck_Orizzonte).run();
    const std::vector<LineRecord> horizon = dial.linesOf("Hor"), substyle = dial.linesOf("Sus");
    ASSERT_GT(horizon.size(), 100u);
    for (const LineRecord& line : horizon)
      EXPECT_NEAR(dial.wires.sunAt(dial.plane, {line.x1, -line.y1}).z, 0, 1e-7);
    ASSERT_GT(substyle.size(), 100u);
    double off = 0;
    for (const LineRecord& line : substyle) {
      const sky::Vec s = dial.wires.sunAt(dial.plane, {line.x1, -line.y1});
      off = std::max(off, std::abs(dial.offSubstyle(deg(sky::hourAngleOf(dial.latitude, s)),
                                                    deg(sky::declinationOf(dial.latitude, s)))));
    }
    if (site.declination != 0) {
      EXPECT_LT(off, 1e-7);
      continue;
    }
    // On a southern wall it lies on the horizon.
    EXPECT_GT(off, 0.1);
    for (const LineRecord& line : substyle) EXPECT_EQ(line.y1, 0);
  }
  // So steep that no chord is short enough.
  Equiangular steep({kLatitude, 1});
  steep.check(Field::ck_Orizzonte).run();
  EXPECT_EQ(steep.linesOf("Sus").size(), 0u);
}

TEST(Equiangolare, ItalicHoursAreCountedFromSunset) {
  for (const Site& site : {kSites[1], kSites[2]}) {
    Equiangular dial(site);
    dial.check(Field::ck_Italiche).check(Field::ck_babiloniche).check(Field::ckTemp);
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
  for (const Field box :
       {Field::chkOreAstronomiche, Field::ck_Italiche, Field::ck_Orizzonte, Field::ck_Triangolo})
    dial.check(box);
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
  const auto length = [&](std::size_t i) {
    return sky::distance({wires[i].x1, wires[i].y1}, {wires[i].x2, wires[i].y2});
  };
  for (const std::size_t i : {1u, 3u}) EXPECT_NEAR(length(i), 0.2, 1e-12);
  for (const std::size_t i : {6u, 7u}) EXPECT_NEAR(length(i), dial.wires.b, 1e-10);
  const auto& circle = dial.sheet.list().circles.at(0);
  EXPECT_EQ(circle.radius, 0.001);
  EXPECT_EQ(dial.told(),
            "x_0, y_0  -0.02946  -0.12017||x0, y0  0.03511  0.14325|esse  -19.94604 °|"
            "erre  0.28852|erre1  0.20665|erre0  0.14749|delta_r  0.12373|"
            "x_0, y_0  -0.02946  -0.12017|a  0.2|b  0.13509|");
  EXPECT_EQ(dial.panel.text(Field::txtHeightz), "0.2");
  EXPECT_EQ(dial.panel.text(Field::txtHeightx), textOf(rounded(dial.wires.b * 1000, 4)));
  EXPECT_EQ(dial.panel[Field::lblHeightz].caption, "a");
  EXPECT_EQ(dial.panel[Field::lblHeightx].caption, "b");
}

// --- Refusals and odd input

TEST(WireDials, RefuseTheSouth) {
  for (const Driver driver : {QuadranteCatenaria, QuadranteEquiangolare}) {
    DialCase dial(Item::mnucatenaria, driver);
    dial.set(Field::txtLAT, "-0.0001").run();
    EXPECT_TRUE(dial.refused);
    EXPECT_EQ(dial.entities(), 0u);
    EXPECT_EQ(dial.messages.front(), "Sorry, unable to work in the Southern hemisphere ");
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

// Without slope and sides the equator keeps to what needs neither.
TEST(Equiangolare, OnTheEquatorTheEquinoctialIsLevel) {
  Equiangular dial({0, -60});
  dial.run();
  ASSERT_FALSE(dial.linesOf("equi").empty());
  for (const LineRecord& line : dial.linesOf("equi")) EXPECT_EQ(line.y1, 0);
  EXPECT_FALSE(dial.linesOf("eq").empty());
  EXPECT_TRUE(dial.linesOf("23.445°").empty() && dial.linesOf("diurna2").empty());
}

TEST(WireDials, TakeAnyInput) {
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
