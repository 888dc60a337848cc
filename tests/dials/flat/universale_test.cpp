// Program 7 against planes in the sun: every family is where the tip's shadow falls, and the
// drawing's order, inks and texts are those of the dial.
#include "dials/flat/universale.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "dials/flat/sky_curves.hpp"
#include "support/dial_case.hpp"
#include "support/sky.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

constexpr double kAngle =
    2e-5;  // degrees: the circle constant is short by 4e-10, steep points magnify it

struct Site {
  double latitude, declination, reclination;
};
const std::vector<Site> kSites = {{45.7438, -14.57, 0}, {45.7438, 37, 25}, {30, -100, 10},
                                  {52, 0, 60},          {5, 20, -15},      {62, 170, 20},
                                  {40, 80, 0},          {45, 0, 90}};

std::ostream& operator<<(std::ostream& out, const Site& s) {
  return out << s.latitude << ' ' << s.declination << ' ' << s.reclination;
}

// A dial of a site with all boxes clear, its plane, and the sun of a point on the sheet.
class Plate : public DialCase {
 public:
  explicit Plate(const Site& site)
      : DialCase(Item::mnuUni, DisegnaUniversale),
        latitude(rad(site.latitude)),
        plane(sky::Plane::facing(site.declination, site.reclination)) {
    set(Field::txtLAT, std::to_string(site.latitude))
        .set(Field::txtDecl, std::to_string(site.declination));
    set(Field::txtReclinZ, std::to_string(site.reclination)).check(Field::OptZenital);
    set(Field::y1txt, "0.6").set(Field::y2txt, "-0.6");
    clearBoxes();
  }

  sky::Vec sun(double x, double sheetY) const { return plane.sunOf(kStyle, {x, -sheetY}); }
  double hourAngle(sky::Vec sunwards) const { return deg(sky::hourAngleOf(latitude, sunwards)); }
  double declination(sky::Vec sunwards) const {
    return deg(sky::declinationOf(latitude, sunwards));
  }

  // Runs with one more box and gives the suns of the family's segments, after their common checks:
  // inside the window, from sample to sample, in one colour, with the sun up.
  std::vector<sky::Vec> suns(std::string_view layer, Rgb colour, double gap = 0.01) {
    std::vector<sky::Vec> all;
    for (const LineRecord& line : linesOf(layer)) {
      EXPECT_EQ(line.colour, colour) << layer;
      EXPECT_TRUE(std::abs(line.x1) < 0.5 && std::abs(line.y1) < 0.6) << layer;
      EXPECT_LT(sky::distance({line.x1, line.y1}, {line.x2, line.y2}), gap) << layer;
      all.push_back(sun(line.x1, line.y1));
      EXPECT_GT(all.back().z, -1e-7) << layer;
    }
    return all;
  }

  static constexpr double kStyle = 0.2;
  double latitude;
  sky::Plane plane;
};

double apart(double a, double b, double circle = 360) {
  return std::abs(std::remainder(a - b, circle));
}
double fromMultiple(double a, double step) { return std::abs(std::remainder(a, step)); }
double altitudeOf(sky::Vec sun) { return deg(std::asin(sun.z)); }
double azimuthOf(sky::Vec sun) {
  return deg(std::atan2(-sun.x, -sun.y));
}  // from the South, West positive

TEST(Universale, HourLinesLieInTheirHourPlanes) {
  for (const Site& site : kSites) {
    for (const bool zoned : {false, true}) {
      Plate plate(site);
      plate.check(Field::chkOreAstronomiche)
          .check(Field::ck_Etna, zoned)
          .set(Field::TxtHour, "2")
          .run();
      const std::vector<LineRecord> lines = plate.linesOf("oreastro");
      EXPECT_GT(lines.size(), 500u) << site;
      std::vector<double> hours;
      for (const LineRecord& line : lines) {
        const sky::Vec sun = plate.sun(line.x1, line.y1);
        // 7.3562 degrees West of the zone's meridian, noon there comes sooner. A sun behind the
        // plane draws the point of the opposite sun: of the hour twelve later, and up by the
        // horizon's test.
        const double H = plate.hourAngle(sun) + (zoned ? 7.3562 : 0);
        ASSERT_LT(fromMultiple(H, 7.5), kAngle) << site;
        ASSERT_LT(std::abs(plate.declination(sun)), 23.445 + kAngle) << site;
        const double t = std::remainder(std::round(H / 7.5) * 7.5, 180);
        EXPECT_EQ(line.colour, palette(t == 0                                           ? 12
                                       : std::abs(t) == 90 && line.colour != palette(7) ? 9
                                                                                        : 7));
        if (hours.empty() || hours.back() != t) hours.push_back(t);
      }
      if (!zoned && site.reclination == 0 && std::abs(site.declination) < 20) {
        EXPECT_TRUE(std::is_sorted(hours.begin(), hours.end() - 1))
            << "from the morning to the evening";
      }
    }
  }
}

TEST(Universale, DeclinationCurvesAreTheSunsDays) {
  const std::vector<std::tuple<std::string, double, int>> curves = {
      {"-23.445°", 23.445, 12}, {"23.445°", 23.445, 12}, {"-20.15°", 20.1552, 13},
      {"20.15°", 20.1552, 13},  {"11.47°", 11.4746, 11}, {"-11.47°", 11.4746, 11}};
  for (const Site& site : kSites) {
    Plate plate(site);
    plate.check(Field::Ck_DayLightCurves)
        .check(Field::ck_Equinoziale)
        .set(Field::txtLineofdeclination, "-8")
        .run();
    std::size_t count = 0;
    std::size_t opposite = 0;
    for (const auto& [layer, declination, ink] : curves) {
      const double side = layer[0] == '-' ? -1 : 1;
      for (const sky::Vec sun : plate.suns(layer, palette(ink))) {
        const double d = plate.declination(sun);
        ASSERT_NEAR(std::abs(d), declination, kAngle) << site;
        opposite += d * side < 0 ? 1 : 0;
        ++count;
      }
    }
    EXPECT_GT(count, 500u) << site;
    const bool litInWinter = std::abs(site.declination) < 150;
    EXPECT_TRUE(opposite < count / 2 || !litInWinter) << site;
    for (const sky::Vec sun : plate.suns("0°", palette(12)))
      ASSERT_NEAR(plate.declination(sun), 0, kAngle);
    const std::vector<sky::Vec> own = plate.suns("-8", rgb(255, 127, 39));
    EXPECT_EQ(own.empty(), !litInWinter) << site;
    for (const sky::Vec sun : own)
      ASSERT_NEAR(plate.declination(sun), -8, kAngle) << "never the opposite branch";
  }
}

// Hours since sunset, since sunrise, or of the temporary day.
double hoursSinceSunset(double H, double arc) { return (H - arc + 360) / 15; }
double hoursSinceSunrise(double H, double arc) { return (H + arc) / 15; }
double temporaryHour(double H, double arc) { return (H / arc + 1) * 6; }

TEST(Universale, DayLongHoursAreCountedFromSunriseAndSunset) {
  const std::vector<std::tuple<Field, const char*, double (*)(double, double), double, double>>
      systems = {{Field::ck_Italiche, "Ita", hoursSinceSunset, 5, 23},
                 {Field::ck_babiloniche, "Bab", hoursSinceSunrise, 1, 13},
                 {Field::ckTemp, "Temp", temporaryHour, 0, 12}};
  for (const auto& [box, layer, hourOf, first, last] : systems) {
    for (const Site& site : kSites) {
      Plate plate(site);
      plate.check(box).run();
      std::vector<double> hours;
      for (const sky::Vec sun : plate.suns(layer, palette(12))) {
        double arc = deg(sky::semiArc(plate.latitude, rad(plate.declination(sun))));
        if (std::isnan(arc)) continue;
        const double hour = hourOf(plate.hourAngle(sun), arc);
        const double whole = std::round(hour);
        ASSERT_NEAR(hour, whole, 1e-4) << layer << ' ' << site;
        ASSERT_TRUE(whole >= first && whole <= last) << "each line is the hour after its number";
        if (std::abs(sun.z) > 1e-6)
          hours.push_back(whole);  // on the horizon stands the opposite sun as well
      }
      EXPECT_GT(hours.size(), std::abs(site.declination) < 150 ? 50u : 0u) << layer << ' ' << site;
      EXPECT_TRUE(std::is_sorted(hours.begin(), hours.end())) << layer << ' ' << site;
    }
  }
}

TEST(Universale, AnalemmaIsTheYearsMeanNoon) {
  for (const Site& site : {kSites[0], kSites[1], kSites[7]}) {
    Plate plate(site);
    plate.set(Field::txtLON, "-7.6438").set(Field::TxtFuso, "-1").check(Field::ck_Lemniscate);
    // Which way the figure leans: the sum of declination times equation of time, over a year.
    const auto lean = [&](double gap) {
      plate.sheet.Clear();
      plate.run();
      double sum = 0;
      std::vector<sky::Vec> suns = plate.suns("analemma", palette(15), gap);
      suns.resize(std::min<std::size_t>(suns.size(), 365));
      for (const sky::Vec sun : suns) {
        const double equation = plate.hourAngle(sun) + 7.3562;
        EXPECT_LT(std::abs(equation), 17.0 / 4);
        EXPECT_LT(std::abs(plate.declination(sun)), 23.447);
        sum += plate.declination(sun) * equation;
      }
      return sum;
    };
    const double upright = lean(0.05);
    EXPECT_GT(plate.linesOf("analemma").size(), 366u) << "more than a year";
    // The southern recipe: the year upside down, the longitude as before, one turn and no more.
    plate.check(Field::ckFunction);
    EXPECT_NEAR(lean(0.015), -upright, std::abs(upright) / 100) << site;
    EXPECT_LE(plate.linesOf("analemma").size(), 366u);
    EXPECT_NEAR(plate.params.LonOrario, rad(-15 + 7.6438), 1e-9);
  }
}

TEST(Universale, AsrIsTheShadowOfNoonAndTheStyleMore) {
  for (const Site& site : kSites) {
    Plate plate(site);
    plate.check(Field::ckAsr).run();
    const std::vector<PointRecord> points = plate.pointsIn(rgb(0, 193, 97));
    for (const PointRecord& point : points) {
      const sky::Vec sun = plate.sun(point.x, point.y);
      const double noon = std::tan(plate.latitude - rad(plate.declination(sun)));
      // On planes that the afternoon sun leaves, the points are those of the opposite sun.
      if (sun.z < 0 || plate.hourAngle(sun) < 0) continue;
      EXPECT_NEAR(std::hypot(sun.x, sun.y) / sun.z, 1 + noon, 1e-6) << site;
    }
    EXPECT_TRUE(!points.empty() || std::abs(site.declination) > 90) << site;
  }
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
  for (const Site& site : kSites) {
    Plate plate(site);
    plate.set(Field::txtLON, "-7.6438").check(Field::CkQibla).run();
    const sky::Vec here = place(site.latitude, -7.6438), there = place(21.42527, -39.81638);
    const sky::Vec east{-here.y / std::hypot(here.x, here.y), here.x / std::hypot(here.x, here.y),
                        0};
    const double azimuth =
        deg(std::atan2(-sky::dot(there, east), -sky::dot(there, sky::cross(here, east))));
    for (const PointRecord& point : plate.pointsIn(palette(10))) {
      EXPECT_LT(apart(azimuthOf(plate.sun(point.x, point.y)), azimuth, 180), 1e-4) << site;
    }
    std::vector<std::string> texts;
    for (const TextRecord& text : plate.sheet.list().texts) texts.push_back(text.text);
    ASSERT_EQ(texts.size(), 7u);
    EXPECT_EQ(texts[0], "Loc.");
    EXPECT_EQ(texts[2], "Loc.");
    EXPECT_EQ(texts[3], "Latitude 21.42527");
    EXPECT_EQ(texts[4], "Longitude -39.81638");
    EXPECT_EQ(texts[5].substr(0, 19), "Qibla from South = ");
    EXPECT_LT(apart(std::stod(texts[5].substr(19)), azimuth, 180), 2e-5) << site;
    EXPECT_LT(apart(std::stod(texts[6].substr(19)), azimuth, 180), 2e-5) << site;
    EXPECT_EQ(texts[6].substr(texts[6].size() - 10), "° azimuth" + std::string()) << texts[6];
    EXPECT_EQ(plate.sheet.ForeColor, 16777215);
  }
}

TEST(Universale, AzimuthsAndAltitudes) {
  for (const Site& site : kSites) {
    Plate plate(site);
    plate.check(Field::ckAz).check(Field::ckAlt).set(Field::txt_Definition, "2").run();
    const std::vector<sky::Vec> azimuths = plate.suns("azimut", palette(6), 2);
    const std::vector<sky::Vec> altitudes = plate.suns("almucantarat", palette(7));
    if (site.reclination == 90) {
      EXPECT_TRUE(azimuths.empty() && altitudes.empty())
          << "the bound of a level plane lets nothing pass";
      continue;
    }
    for (const sky::Vec sun : azimuths) ASSERT_LT(fromMultiple(azimuthOf(sun), 15), 1e-4) << site;
    for (const sky::Vec sun : altitudes) ASSERT_LT(fromMultiple(altitudeOf(sun), 10), 1e-4) << site;
    EXPECT_FALSE(azimuths.empty()) << site;
    EXPECT_TRUE(!altitudes.empty() || site.declination > 100) << site;
  }
}

TEST(SkyCurves, AskWhichDialIsChecked) {
  struct Case {
    Item item;
    double reclination, expected;
    bool level;
  };
  for (const Case& c : {Case{Item::mnuUni, 30, rad(30), false},
                        {Item::mnuUni, 90, rad(90), true},
                        {Item::mnuVertSph, 90, 0, false},
                        {Item::M_Inclinati, 30, 0, false}}) {
    for (const Driver curve :
         {Driver{CurvaAsr}, Driver{CurvaQibla}, Driver{LineeAzimut}, Driver{CurveAlmucantarat}}) {
      if (c.item == Item::M_Inclinati && curve != Driver{CurvaQibla}) continue;
      DialCase dial(c.item, curve);
      dial.check(Field::OptZenital).set(Field::txtReclinZ, std::to_string(c.reclination));
      dial.params.Stilo = 0.2;
      dial.params.LatRad = 0.8;
      dial.params.ReclinRad = rad(c.reclination);
      dial.run();
      EXPECT_NEAR(dial.params.ReclinRad, c.expected, 1e-9) << c.reclination;
      EXPECT_EQ(dial.params.PianoOrizzontale, c.level && curve == Driver{CurveAlmucantarat});
    }
  }
}

TEST(Universale, StyleTriangleIsThePolarAxisThroughTheTip) {
  for (const Site& site : kSites) {
    Plate plate(site);
    plate.check(Field::ck_Triangolo)
        .set(Field::y1txt, "5")
        .set(Field::y2txt, "-5")
        .set(Field::x1txt, "-5");
    plate.set(Field::x2txt, "5").run();
    // The axis through the tip meets the plane in the centre.
    const sky::Vec pole{0, std::cos(plate.latitude), std::sin(plate.latitude)};
    const sky::Spot centre = plate.plane.shadow(0.2 * plate.plane.normal, pole);
    const LineRecord slope = plate.linesOf("maxpendenza").at(0);
    EXPECT_NEAR(slope.x1, centre.x, 1e-8) << site;
    EXPECT_EQ(slope.y1, -5);
    EXPECT_EQ(slope.y2, 5);
    // The tip is laid down beside the foot, square to the substyle, which points to the centre.
    const LineRecord upright = plate.linesOf("ortostilo").at(0);
    EXPECT_NEAR(std::hypot(upright.x1, upright.y1), 0.2, 1e-12);
    EXPECT_NEAR(upright.x1 * centre.x - upright.y1 * centre.y, 0, 1e-8) << site;
    const CircleRecord mark = plate.sheet.list().circles.at(0);
    EXPECT_EQ(std::tuple(mark.x, mark.y, mark.radius), std::tuple(upright.x1, upright.y1, 0.01));
    const LineRecord style = plate.linesOf("assostilo").back();
    EXPECT_NEAR(style.x1, centre.x, 1e-8) << site;
    EXPECT_NEAR(style.y1, -centre.y, 1e-8) << site;
    EXPECT_EQ(std::pair(style.x2, style.y2), std::pair(upright.x1, upright.y1));
    const LineRecord substyle = plate.linesOf("sottostilo").at(0);
    if (site.declination != 0) {
      EXPECT_NEAR(substyle.x1 * centre.y + substyle.y1 * centre.x, 0, 1e-7) << site;
      EXPECT_NEAR(substyle.x2 * centre.y + substyle.y2 * centre.x, 0, 1e-7) << site;
    }
  }
  // A south wall's substyle has no slope to be drawn with: its ends stay on the foot's level.
  Plate south({45, 0, 0});
  south.check(Field::ck_Triangolo).run();
  const LineRecord flat = south.linesOf("sottostilo").at(0);
  EXPECT_EQ(std::tuple(flat.x1, flat.y1, flat.x2, flat.y2), std::tuple(0.5, 0, -0.5, 0));
}

TEST(Universale, StyleLineEndsOnTheWindowsEdge) {
  // The centre above, and below, a window that does not hold it.
  for (const auto& [site, edge] :
       {std::pair{Site{45.7438, 10, 0}, -0.1}, {Site{45.7438, 170, 0}, 0.1}}) {
    Plate plate(site);
    plate.set(Field::y1txt, "0.1").set(Field::y2txt, "-0.1").check(Field::ck_Triangolo).run();
    const std::vector<LineRecord> style = plate.linesOf("assostilo");
    ASSERT_EQ(style.size(), 1u);
    EXPECT_NEAR(style[0].y1, edge, 1e-12);
    const sky::Vec pole{0, std::cos(plate.latitude), std::sin(plate.latitude)};
    const sky::Spot centre = plate.plane.shadow(0.2 * plate.plane.normal, pole);
    const double cross = (style[0].x1 - centre.x) * (style[0].y2 + centre.y) -
                         (style[0].x2 - centre.x) * (style[0].y1 + centre.y);
    EXPECT_NEAR(cross, 0, 1e-8) << "on the line from the tip to the centre";
  }
}

TEST(Universale, SubstyleRunsAcrossTheWindow) {
  Plate plate({45.7438, -14.57, 0});
  plate.check(Field::ck_Sustilare).run();
  const std::vector<LineRecord>& lines = plate.sheet.list().lines;
  ASSERT_GT(lines.size(), 30u);
  const double slope = std::tan(plate.latitude) / std::sin(rad(-14.57));
  for (const LineRecord& line : lines) {
    EXPECT_NEAR(line.y1, slope * line.x1, 1e-9);
    EXPECT_NEAR(line.x1 - line.x2, 0.005, 1e-9);
    EXPECT_EQ(line.colour, palette(15));
  }
  Plate south({45.7438, 0, 0});
  south.check(Field::ck_Sustilare).run();
  EXPECT_EQ(south.entities(), 0u) << "without a declination there is none";
}

TEST(Universale, DrawsItsFamiliesInOrder) {
  Plate plate({45.7438, -14.57, 20});
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
        Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp, Field::ck_Lemniscate,
        Field::ck_Triangolo, Field::ck_Orizzonte, Field::ckAz, Field::ckAlt}) {
    plate.check(box);
  }
  plate.panel.setState(Field::ckFrame, true);
  plate.run();
  std::vector<std::string> layers;
  for (const LineRecord& line : plate.sheet.list().lines) {
    const std::string& name = plate.sheet.list().name(line.layer);
    if (layers.empty() || layers.back() != name) layers.push_back(name);
  }
  const std::vector<std::string> expected = {
      "oreastro",   "-23.445°",  "23.445°",     "-20.15°", "20.15°", "11.47°",      "-11.47°",
      "23.445",     "0°",        "Ita",         "Bab",     "Temp",   "analemma",    "ortostilo",
      "sottostilo", "assostilo", "maxpendenza", "0",       "azimut", "almucantarat"};
  EXPECT_EQ(layers, expected);
  const BoxRecord frame = plate.sheet.list().boxes.at(0);
  EXPECT_EQ(std::tuple(frame.x1, frame.y1, frame.x2, frame.y2), std::tuple(-0.5, -0.6, 0.5, 0.6));
  EXPECT_EQ(plate.sheet.list().order().front(), EntityKind::Box);
  const LineRecord horizon = plate.linesOf("0").at(0);
  EXPECT_EQ(std::pair(horizon.x1, horizon.x2),
            std::pair(-plate.sheet.ShiftX(), plate.sheet.ShiftX()));
  EXPECT_NEAR(horizon.y1, -0.2 * std::tan(rad(20)), 1e-9);
  EXPECT_FALSE(plate.busy);
}

TEST(Universale, RefusesANegativeLatitude) {
  Plate plate({-35, 10, 0});
  plate.check(Field::chkOreAstronomiche).run();
  EXPECT_TRUE(plate.refused);
  EXPECT_EQ(plate.messages, std::vector<std::string>{
                                "Use positive latitude also for the Southern hemisphere and click "
                                "on F; after RUN press Key InvertX "});
  EXPECT_TRUE(plate.panel.on(Field::ckFunction));
  EXPECT_EQ(plate.entities(), 0u);
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
  Plate roman({45.7438, -14.57, 0});
  roman.check(Field::ckRomani).check(Field::Ck_DayLightCurves).run();
  const std::size_t once = roman.linesOf("0").size();
  EXPECT_GT(once, 0u);
  EXPECT_TRUE(roman.linesOf("23.445").empty());
  roman.sheet.Clear();
  roman.check(Field::ckArabi).run();
  EXPECT_EQ(roman.linesOf("0").size(), 2 * once) << "the Roman numerals twice, no Arabic ones";
  for (const LineRecord& line : roman.linesOf("0")) {
    EXPECT_EQ(line.colour, palette(7));
    const double d = roman.declination(roman.sun(line.x1, line.y1));
    EXPECT_NEAR(d, 23.445, 6) << "within a numeral's height of the row";
  }
  Plate arabic({45.7438, -14.57, 0});
  arabic.check(Field::ckArabi).run();
  EXPECT_GT(arabic.entities(), 0u);
}

TEST(Universale, ZodiacNeedsTheSouthernAnalemma) {
  const auto entities = [](bool lemniscate, bool function) {
    Plate plate({45, 0, 0});
    plate.check(Field::ckZodiaco)
        .check(Field::ck_Lemniscate, lemniscate)
        .check(Field::ckFunction, function)
        .run();
    return plate.entities() - plate.linesOf("analemma").size();
  };
  EXPECT_EQ(entities(true, false), 0u);
  EXPECT_EQ(entities(false, true), 0u);
  EXPECT_GT(entities(true, true), 100u);
}

TEST(Universale, ALongStyleThinsTheLinesOut) {
  Plate plate({45.7438, 0, 0});
  plate.set(Field::TxtStilo, "12")
      .set(Field::y2txt, "-100")
      .set(Field::x1txt, "-50")
      .set(Field::x2txt, "50");
  plate.check(Field::chkOreAstronomiche).run();
  EXPECT_TRUE(plate.linesOf("oreastro").empty());
}

TEST(Universale, TakesAnyInput) {
  const std::vector<const char*> texts = {"0",   "",      "x",     "-1",     "90",    "-90",
                                          "180", "1e300", "1e999", "-1e999", "1e-300"};
  for (const Field field :
       {Field::txtLAT, Field::txtLON, Field::TxtFuso, Field::txtDecl, Field::txtReclinZ,
        Field::TxtStilo, Field::TxtHour, Field::x1txt, Field::y2txt, Field::txtLineofdeclination,
        Field::txtQlat, Field::txtQlon, Field::txt_Definition}) {
    for (const char* text : texts) {
      Plate plate({45.7438, -14.57, 20});
      for (std::size_t i = 0; i < kFieldCount; ++i) {
        const Field box = fieldAt(i);
        if (rowOf(box).kind == FieldKind::Check && box != Field::ckRomani && box != Field::ckArabi)
          plate.panel.setState(box, true);
      }
      plate.set(Field::txt_Definition, "20").set(field, text).run();
      for (const LineRecord& line : plate.sheet.list().lines) {
        ASSERT_TRUE(std::isfinite(line.x1 + line.y1 + line.x2 + line.y2))
            << rowOf(field).name << '=' << text;
      }
      for (const CircleRecord& c : plate.sheet.list().circles)
        ASSERT_TRUE(std::isfinite(c.x + c.y + c.radius));
      EXPECT_FALSE(plate.busy);
      EXPECT_LE(plate.messages.size(), 2u);
    }
  }
}

}  // namespace
}  // namespace dialwright
