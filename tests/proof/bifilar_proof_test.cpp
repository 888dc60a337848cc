// The bifilar and the ball dials against their shadows: what the literal drawing has of ghosts and
// strays, and that the drawing of true shadows has none of them and all the rest.
#include "dials/bifilar/ball.hpp"
#include "dials/bifilar/ball_verticale.hpp"
#include "dials/bifilar/catenaria.hpp"
#include "dials/bifilar/equiangolare.hpp"
#include "dials/bifilar/fontana.hpp"
#include "numerics/numbers.hpp"
#include "support/mean_sun.hpp"
#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

constexpr double kAngle = 2e-5;  // degrees; the circle constant is short by 4e-10
constexpr double kLatitude = 45.7438;

const std::vector<Field> kFamilies = {
    Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale,
    Field::ck_Italiche,        Field::ck_babiloniche,    Field::ckTemp,
    Field::ck_Lemniscate,      Field::ck_Orizzonte,      Field::ck_Sustilare};

struct Dial : ProvenDial {
  Dial(Item item, Driver driver, double latitude = kLatitude, double declination = -14.57,
       const std::vector<Field>& boxes = kFamilies)
      : ProvenDial(item, driver, boxes) {
    for (const Field both : {Field::ckRomani, Field::ckArabi}) panel.setState(both, true);
    set(Field::txtLAT, textOf(latitude)).set(Field::txtDecl, textOf(declination));
    set(Field::TxtInizio, "1").set(Field::TxtFine, "24").set(Field::TxtHour, "1");
  }
  void widen(const char* half) {
    const std::string minus = std::string("-") + half;
    set(Field::x1txt, minus).set(Field::x2txt, half).set(Field::y1txt, half);
    set(Field::y2txt, minus);
  }
  double arc(double day) const {
    const double cosine =
        -std::tan(proof::radians(panel.number(Field::txtLAT))) * std::tan(proof::radians(day));
    return std::abs(cosine) < 1 ? proof::degrees(std::acos(cosine)) : 180;
  }
};

struct Fountain : Dial {
  explicit Fountain(double latitude = kLatitude)
      : Dial(Item::mnuFontana_H3, QuadranteFontana, latitude, 0) {}
};
struct BallOver : Dial {
  explicit BallOver(double latitude = kLatitude)
      : Dial(Item::mnuBall, QuadranteBall, latitude, 0) {}
};
struct HalfBall : Dial {
  explicit HalfBall(double latitude = kLatitude, double declination = -14.57)
      : Dial(Item::mnuBall_v, QuadranteBallVerticale, latitude, declination) {}
};
struct Equiangular : Dial {
  explicit Equiangular(double latitude = kLatitude, double declination = -14.57)
      : Dial(Item::mnuBifvert, QuadranteEquiangolare, latitude, declination) {}
};
struct Catenary : Dial {
  explicit Catenary(double latitude = kLatitude, double declination = -14.57,
                    const std::vector<Field>& boxes = kFamilies)
      : Dial(Item::mnucatenaria, QuadranteCatenaria, latitude, declination, boxes) {}
};

// --- Nothing but true shadows, and no less of them

// Hour lines (on a layer) and curves of the day, that the sun draws between some hours.
void expectTrue(Dial& dial, const char* hours, double from, double to, double hourStep,
                const std::vector<std::pair<const char*, double>>& days) {
  SCOPED_TRACE(testing::Message() << dial.panel.text(Field::txtLAT) << " on "
                                  << dial.panel.text(Field::txtDecl));
  const std::size_t literal = dial.prove().total().genuine;
  const proof::LayerProof all = dial.prove(true).total();
  EXPECT_EQ(all.ghosts, 0u);
  EXPECT_EQ(all.strays, 0u);
  // A chord from one line to the next may be true by chance.
  EXPECT_GE(all.genuine + 4, literal);
  EXPECT_GT(dial.drawn(hours, sunsOfHours(from, to, hourStep)), 0.97) << hours;
  for (const auto& [layer, day] : days)
    EXPECT_GT(dial.drawn(layer, sunsOfDay(day, from + 1, to)), 0.97) << layer;
}

const std::vector<std::pair<const char*, double>> kDays = {
    {"-23.445°", -23.445}, {"-20.1552°", -20.1552}, {"-11.4746°", -11.4746}, {"eq", 0},
    {"11.4746°", 11.4746}, {"20.1552°", 20.1552},   {"23.445°", 23.445}};

TEST(BifilarProof, LevelDialsDrawAllTrueShadows) {
  for (const double latitude : {0.0, 12.0, 23.4, kLatitude, 66.7}) {
    Fountain fountain(latitude);
    BallOver ball(latitude), resting(latitude);
    ball.set(Field::txtD1, "0.1");
    resting.set(Field::txtD1, "0").set(Field::TxtRadius, "0.05");
    for (Dial* dial :
         {static_cast<Dial*>(&fountain), static_cast<Dial*>(&ball), static_cast<Dial*>(&resting)})
      expectTrue(*dial, "ore", -75, 75, 15, kDays);
  }
}

TEST(BifilarProof, WallDialsDrawAllTrueShadows) {
  std::size_t turn = 0;
  for (const double latitude : {0.0, 8.0, 30.0, kLatitude, 66.7}) {
    for (const double declination : {0.0, 24.0, -70.0, 135.0, 180.0}) {
      if (++turn % 2 == 0) continue;  // every other place of each wall will do
      HalfBall ball(latitude, declination);
      Equiangular wires(latitude, declination);
      wires.widen("0.4");
      expectTrue(ball, "ore", -120, 120, 15, kDays);
      expectTrue(wires, "oreemezze", -90, 90, 7.5, kDays);
    }
  }
}

TEST(BifilarProof, WireAndChainDrawAllTrueShadows) {
  for (const auto& [latitude, declination] :
       {std::pair{0.0, -50.0}, {30.0, 0.0}, {30.0, 90.0}, {kLatitude, 180.0}, {66.7, -120.0}}) {
    Catenary dial(latitude, declination, {Field::chkOreAstronomiche, Field::ck_Lemniscate});
    expectTrue(dial, "0", -165, 165, 15, {});
  }
}

// --- What the literal drawing does

TEST(BifilarProof, NoonTakesANorthernSunForASouthernOne) {
  Fountain fountain(12);
  BallOver ball(12);
  for (Dial* dial : {static_cast<Dial*>(&fountain), static_cast<Dial*>(&ball)}) {
    dial->widen("2");
    dial->prove();
    EXPECT_GT(dial->row("ore").strays, 200u);
    EXPECT_EQ(dial->row("ore").strays, dial->row("temp").strays);
    EXPECT_EQ(dial->row("23.445°").strays, 0u) << "its samples miss noon";
    EXPECT_EQ(dial->prove(true).total().strays, 0u);
  }
  EXPECT_NEAR(Fountain(12).prove().total().millimetres, 680.7, 0.1);
  Fountain equator(0);
  equator.widen("2");
  EXPECT_EQ(equator.prove().total().ghosts, 0u);
  EXPECT_EQ(equator.row("eq").genuine, 0u) << "its azimuth is that of the sample before";
  equator.prove(true);
  EXPECT_GT(equator.row("eq").genuine, 8000u);
}

TEST(BifilarProof, MiddleLatitudesHaveTheirLevelDialsRight) {
  for (const double latitude : {kLatitude, 62.0}) {
    const proof::LayerProof rim = Fountain(latitude).prove().total();
    const proof::LayerProof ball = BallOver(latitude).prove().total();
    EXPECT_EQ(rim.genuine, rim.strokes);
    EXPECT_EQ(ball.genuine, ball.strokes);
    EXPECT_LT(std::max(rim.millimetres, ball.millimetres), 1e-5);
  }
}

TEST(BifilarProof, HalfBallHasHoursOfTheNight) {
  HalfBall dial;
  dial.set(Field::TxtFine, "12").set(Field::TxtHour, "2");
  dial.prove();
  EXPECT_EQ(dial.row("ore").strokes, 16050u);
  EXPECT_EQ(dial.row("ore").ghosts, 1835u);
  EXPECT_GT(dial.row("Ita").ghosts, 10000u);
  EXPECT_EQ(dial.row("Ita").genuine, 0u) << "from sunset on";
  EXPECT_EQ(dial.prove(true).total().strays, 0u);
  EXPECT_EQ(dial.row("Ita").strokes, 0u);

  HalfBall north(kLatitude, 150);
  north.widen("2");
  north.prove();
  const std::size_t before = north.row("23.445°").genuine;
  north.prove(true);
  EXPECT_GT(north.row("23.445°").genuine, before + 100) << "where the equator's sun is behind";
}

TEST(BifilarProof, EqualAnglesKnowNoBackOfTheWall) {
  Equiangular dial;
  dial.prove();
  EXPECT_EQ(dial.row("oreemezze").ghosts, 1218u);
  EXPECT_EQ(dial.row("-23.445°").ghosts, 1947u);
  EXPECT_EQ(dial.row("equi").genuine, dial.row("equi").strokes);
  EXPECT_GT(dial.row("0").ghosts, 2000u) << "the dots of the optional day";
  EXPECT_EQ(dial.prove().total().strays, 0u);

  // The equinoctial is that of a wall that faces South.
  Equiangular north(kLatitude, 150);
  north.widen("2");
  north.prove();
  EXPECT_EQ(north.row("equi").genuine, 0u);
  EXPECT_GT(north.row("equi").strays, 1000u);
  north.prove(true);
  EXPECT_GT(north.row("equi").genuine, 1000u);

  Equiangular south(kLatitude, 0);
  south.prove();
  EXPECT_EQ(south.row("Sus").genuine, 0u) << "level";
  south.prove(true);
  EXPECT_GT(south.row("Sus").genuine, 1000u) << "upright";

  Equiangular equator(0, 0);
  equator.widen("1");
  equator.prove();
  EXPECT_EQ(equator.row("oreemezze").genuine, 0u) << "all in one point";
  equator.prove(true);
  EXPECT_GT(equator.row("oreemezze").genuine, 4000u);
}

TEST(BifilarProof, WireAndChainKnowNoNight) {
  Catenary dial(kLatitude, -14.57,
                {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Italiche});
  EXPECT_NEAR(dial.prove().total().millimetres, 0.011, 0.001)
      << "twelve steps leave the chain's ends 0.053 mm off";
  EXPECT_EQ(dial.row("0").strays, 0u);
  for (const char* layer : {"0", "solstice°", "solstice", "Ita1"}) {
    EXPECT_GT(dial.row(layer).ghosts, dial.row(layer).strokes * 2 / 5) << layer;
    EXPECT_GT(dial.row(layer).genuine, dial.row(layer).strokes / 4) << layer;
  }
  EXPECT_LT(dial.prove(true).total().millimetres, 1e-5);
  for (const auto& [layer, day] :
       {std::pair{"solstice°", -23.445}, {"-+20°", 20.1552}, {"eq", 0.0}})
    EXPECT_GT(dial.drawn(layer, sunsOfDay(day, -120, 120)), 0.97) << layer;
}

TEST(BifilarProof, AnalemmaOfAQuarterTurnIsReversed) {
  Catenary dial(kLatitude, 90, {Field::ck_Lemniscate});
  dial.widen("9");
  dial.set(Field::TxtFuso, "4");
  dial.prove();
  EXPECT_EQ(dial.row("analemma").genuine, 0u);
  EXPECT_GT(dial.row("analemma").millimetres, 100);
  dial.prove(true);
  EXPECT_GT(dial.row("analemma").genuine, 290u);
}

// The azimuth of Mecca from South to the West, by the chord through the earth.
double azimuthOfMecca(double latitude, double west) {
  using proof::Vec;
  const auto place = [](double lat, double lon) {
    const double a = proof::radians(lat), b = proof::radians(lon);
    return Vec{std::cos(a) * std::cos(b), std::cos(a) * std::sin(b), std::sin(a)};
  };
  const Vec here = place(latitude, -west), there = place(21.42527, 39.81638);
  const Vec east = proof::unit(proof::cross({0, 0, 1}, here)), north = proof::cross(here, east);
  return proof::degrees(std::atan2(-dot(there, east), -dot(there, north)));
}

TEST(BifilarProof, QiblaIsTheSunOverTheHolyPlace) {
  for (const auto& [latitude, west, wall] : {std::tuple{kLatitude, -7.6438, -40.0},
                                             {35.0, -60.0, 40.0},
                                             {12.0, 20.0, -100.0},
                                             {0.0, 5.0, -100.0}}) {
    SCOPED_TRACE(latitude);
    Catenary dial(latitude, wall, {Field::CkQibla});
    dial.set(Field::txtLON, textOf(west));
    dial.widen("2");
    dial.prove();
    EXPECT_EQ(dial.row("0").genuine, 0u) << "a sag of 32.5 m, which txtAO holds first";
    const double azimuth = azimuthOfMecca(latitude, west);
    const std::string& text = dial.sheet.list().texts.back().text;
    EXPECT_EQ(text.substr(0, 15), "Qibla: azimuth ");
    EXPECT_NEAR(std::stod(text.substr(15)), azimuth, 2e-5);
    dial.prove(true);
    const DisplayList& list = dial.sheet.list();
    EXPECT_GT(list.points.size(), 100u);
    for (std::size_t i = 0; i < list.points.size(); ++i) {
      const proof::Vec s = dial.scene().sky.towards(list.meaningOfPoint(i).first);
      ASSERT_LT(offStep(proof::degrees(std::atan2(-s.x, -s.y)) - azimuth, 360), 1e-4);
    }
  }
}

// --- What the strokes stand for

bool onYear(double d) { return offStep(d + 23.445, 0.05) < kAngle && std::abs(d) < 23.4451; }

TEST(BifilarProof, LinesStandForTheSunsOfTheirNames) {
  Fountain fountain;
  BallOver ball;
  HalfBall half(62, -20);
  for (const auto& [dial, latest] :
       {std::pair{static_cast<Dial*>(&fountain), 90.0}, {&ball, 90.0}, {&half, 150.0}}) {
    dial->set(Field::TxtHour, "2").set(Field::txtLineofdeclination, "5").check(Field::ck_Etna);
    dial->draw();
    const double shift = 15 - 7.6438;  // the zone's meridian lies to the East
    EXPECT_GT(dial->everySun("ore",
                             [&](double H, double d) {
                               return onYear(d) && offStep(H + shift, 7.5) < kAngle;
                             }),
              500u);
    for (const auto& [layer, day] : kDays) {
      const double sunsDay = day;
      EXPECT_GT(dial->everySun(layer,
                               [&](double H, double d) {
                                 return std::abs(d - sunsDay) < kAngle &&
                                        std::abs(H) < latest + 1e-5;
                               }),
                200u);
    }
    const auto counted = [&](double sense) {
      return [&, sense](double H, double d) {
        return onYear(d) && offStep((H + sense * dial->arc(d)) / 15, 0.5) < kAngle;
      };
    };
    const bool level = dial != &half;
    EXPECT_GT(dial->everySun(level ? "ita" : "Ita", counted(-1)), 1000u);
    EXPECT_GT(dial->everySun("bab", counted(1)), 1000u);
    EXPECT_GT(dial->everySun(
                  level ? "temp" : "Temp",
                  [&](double H, double d) { return offStep(H / dial->arc(d) * 6, 0.5) < kAngle; }),
              1000u);
  }
  EXPECT_GT(fountain.everySun("5", [](double, double d) { return std::abs(d - 5) < kAngle; }),
            100u);
}

// Every sun of a layer's analemma is the mean noon of the zone.
TEST(BifilarProof, AnalemmasAreTheYearsMeanNoon) {
  Fountain fountain;
  BallOver ball;
  HalfBall half;
  Catenary chain(30);
  fountain.set(Field::y2txt, "0");  // the window does not cut its points
  for (const auto& [dial, layer] : {std::pair{static_cast<Dial*>(&fountain), "0"},
                                    {&ball, "analemma"},
                                    {&half, "analemma"},
                                    {&chain, "analemma"}}) {
    dial->draw();
    double northern = 0, southern = 0;
    const std::size_t count = dial->everySun(
        layer,
        [&](double H, double d) {
          northern = std::max(northern, d);
          southern = std::min(southern, d);
          return sky::secondsFromEquationOfTime(proof::radians(H) + dial->params.CorrFuso,
                                                proof::radians(d)) < 30;
        },
        CurveFamily::Analemma);
    EXPECT_GE(count, 365u);
    EXPECT_NEAR(northern, 23.446, 0.001);
    EXPECT_NEAR(southern, -23.446, 0.001);
    EXPECT_EQ(dial->params.LonAbs, dial->params.CorrFuso);
  }
}

// The first and the last babylonian line: the hours are counted one ahead.
TEST(BifilarProof, BabylonianHoursRunFromOneToThirteen) {
  Fountain dial;
  dial.widen("3");
  dial.draw();
  double least = 24, most = 0;
  dial.everySun("bab", [&](double H, double d) {
    const double hour = (H + dial.arc(d)) / 15;
    least = std::min(least, hour);
    most = std::max(most, hour);
    return true;
  });
  EXPECT_NEAR(least, 1, kAngle);
  EXPECT_NEAR(most, 13, kAngle);
}

TEST(BifilarProof, LinesOfWireAndChainStandForTheSunsOfTheirNames) {
  for (const double declination : {-14.57, 150.0}) {
    for (const bool free : {false, true}) {
      Catenary dial(kLatitude, declination);
      dial.set(Field::TxtFine, "23");
      dial.check(Field::ckFunction, free).set(Field::txtLineofdeclination, "-5");
      dial.set(Field::TxtHour, "4");
      dial.draw();
      const auto hours = [](double first) {
        return [first](double H, double d) { return onYear(d) && offStep(H - first, 15) < kAngle; };
      };
      dial.everySun("0", hours(0));
      dial.everySun("mezze", hours(7.5));
      // The first line of each loop is left out; the last one, half a turn on, draws it.
      const auto& lines = dial.sheet.list().lines;
      const auto half = std::find_if(lines.begin(), lines.end(), [&](const LineRecord& line) {
        return line.layer == dial.sheet.layer("mezze");
      });
      const Meaning meaning =
          dial.sheet.list().meaningOfLine(static_cast<std::size_t>(half - lines.begin()));
      EXPECT_NEAR(proof::degrees(meaning.first.hourAngle), -157.5, kAngle);
      dial.everySun("midi", [](double H, double) { return H == 0; });
      // The days swap on northern walls.
      const double side = declination > 90 ? -1 : 1;
      for (const auto& [layer, day] : {std::pair{"solstice°", -23.445 * side},
                                       {"solstice", 23.445 * side},
                                       {"+-20°", -20.1552 * side},
                                       {"-+20°", 20.1552 * side},
                                       {"-+11°", -11.4746 * side},
                                       {"+-11°", 11.4746 * side},
                                       {"eq", 0.0},
                                       {"diurna", free ? -5.0 : 0.0}}) {
        const double sunsDay = day;
        EXPECT_GT(
            dial.everySun(layer, [&](double, double d) { return std::abs(d - sunsDay) < kAngle; }),
            1000u);
      }
      const auto from = [&](double first, double last, double sense, double latest) {
        return [=, &dial](double H, double d) {
          const double k = std::fmod((H + sense * dial.arc(d)) / 15 + 47.5, 24) + 0.5;
          return onYear(d) && d < latest && offStep(k, 1) < kAngle && k > first - 0.1 &&
                 k < last + 0.1;
        };
      };
      const double latest = free ? -4.99 : 24;
      EXPECT_GT(dial.everySun("Ita", from(22, 23, -1, latest)), 50u);
      EXPECT_GT(dial.everySun("Ita1", from(1, 21, -1, 24)), 1000u);
      EXPECT_GT(dial.everySun("bab", from(2, 4, 1, latest)), 300u);  // counted an hour ahead
      EXPECT_GT(dial.everySun("bab2", from(5, 24, 1, 24)), 1000u);
    }
  }
}

TEST(BifilarProof, LinesOfEqualAnglesStandForTheSunsOfTheirNames) {
  Equiangular dial;
  // Neither the divisions of the hour nor the longitude count, nor the box of the days.
  dial.set(Field::TxtHour, "4").set(Field::txtLON, "70").check(Field::ck_Etna);
  dial.check(Field::Ck_DayLightCurves, false).check(Field::ckFunction);
  dial.set(Field::txtLineofdeclination, "5");
  dial.draw();
  EXPECT_GT(dial.everySun("oreemezze",
                          [](double H, double d) {
                            return onYear(d) && offStep(H, 7.5) < kAngle && std::abs(H) < 90.001;
                          }),
            10000u);
  for (const auto& [layer, day] : kDays) {
    const double sunsDay = day;
    EXPECT_GT(
        dial.everySun(layer, [&](double, double d) { return std::abs(d - sunsDay) < kAngle; }),
        1000u);
  }
  EXPECT_GT(dial.everySun("diurna2", [](double, double d) { return std::abs(d - 5) < kAngle; }),
            1000u);
  const auto italic = [&](double first, double latest) {
    return [&dial, first, latest](double H, double d) {
      const double k = std::fmod((H - dial.arc(d)) / 15 + 47.5, 24) + 0.5;
      return onYear(d) && d < latest && offStep(k, 1) < kAngle && k > first - 0.1;
    };
  };
  EXPECT_GT(dial.everySun("Ita", italic(22, 5.01)), 100u);
  EXPECT_GT(dial.everySun("Ita2", italic(1, 24)), 500u);
}

// --- Figures that no sun stands for

// One degree for a degree of the sun, half a turn and more about the centre.
TEST(BifilarProof, EqualHoursStandAtEqualAngles) {
  for (const auto& [latitude, declination] :
       {std::pair{kLatitude, -14.57}, {62.0, 37.0}, {8.0, 10.0}, {kLatitude, 120.0}}) {
    Equiangular dial(latitude, declination);
    dial.draw();
    const double sense = std::abs(declination) > 90 ? -1 : 1;
    const CircleRecord centre = dial.sheet.list().circles.at(0);
    std::optional<double> zero;
    const std::vector<LineRecord> lines = dial.sheet.list().lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const Meaning meaning = dial.sheet.list().meaningOfLine(i);
      if (lines[i].layer != dial.sheet.layer("oreemezze")) continue;
      const double H = proof::degrees(meaning.first.hourAngle);
      EXPECT_EQ(lines[i].colour, palette(std::abs(H) < 1e-3 ? 12 : 15));
      const double angle =
          proof::degrees(std::atan2(lines[i].y1 - centre.y, lines[i].x1 - centre.x)) + sense * H;
      if (!zero) zero = angle;
      ASSERT_LT(offStep(angle - *zero, 180), 1e-4) << H;
    }
    // The horizon: where the rising and setting sun throws the crossing.
    const std::vector<LineRecord> horizon = dial.linesOf("Hor");
    ASSERT_GT(horizon.size(), 100u);
    const double slope = horizon.back().y1 / horizon.back().x1;
    for (const double day : {-20.0, -5.0, 10.0}) {
      for (const double side : {-1.0, 1.0}) {
        const Sun sun{side * proof::radians(dial.arc(day)), proof::radians(day)};
        const proof::Judgement there = dial.scene().judge({}, CurveFamily::None, sun);
        if (!(there.miss < 5)) continue;
        EXPECT_NEAR(-there.shadow.y, slope * there.shadow.x, 1e-7);
      }
    }
  }
}

TEST(BifilarProof, NumeralsStandAtTheirSuns) {
  Fountain fountain;
  Catenary chain(kLatitude, 30, {});
  for (Dial* dial : {static_cast<Dial*>(&fountain), static_cast<Dial*>(&chain)}) {
    dial->clearBoxes();
    dial->panel.setState(Field::ckRomani, true);
    dial->set(Field::txtLineofdeclination, "-10");
    dial->widen("0.9");
    dial->check(Field::ckFunction);
    dial->draw();
    const std::size_t literal = dial->entities();
    for (double H = -60; H < 61; H += 15) {
      const Sun sun{proof::radians(H), proof::radians(-10)};
      const proof::Judgement there = dial->scene().judge({0, -0.1}, CurveFamily::None, sun);
      if (!there.lit || std::hypot(there.shadow.x, there.shadow.y) > 0.8) continue;
      double nearest = 1;
      for (const LineRecord& stroke : dial->sheet.list().lines) {
        nearest = std::min(nearest, std::hypot((stroke.x1 + stroke.x2) / 2 - there.shadow.x,
                                               -(stroke.y1 + stroke.y2) / 2 - there.shadow.y));
      }
      EXPECT_LT(nearest, 0.03) << H;
    }
    dial->draw(true);
    EXPECT_EQ(dial->entities() < literal, dial == &chain) << "none for a sun behind the wall";
  }
}

// The proof ends and stays sound whatever the fields hold.
TEST(BifilarProof, TakesAnyInput) {
  Fountain fountain;
  BallOver ball;
  HalfBall half;
  Equiangular wires;
  Catenary chain;
  for (Dial* dial :
       {static_cast<Dial*>(&fountain), static_cast<Dial*>(&ball), static_cast<Dial*>(&half),
        static_cast<Dial*>(&wires), static_cast<Dial*>(&chain)}) {
    dial->clearBoxes();
    for (const Field box : {Field::ck_Lemniscate, Field::ck_Sustilare, Field::CkQibla})
      dial->panel.setState(box, true);
    for (const Field field : {Field::txtLAT, Field::txtDecl, Field::TxtStilo, Field::TxtRadius,
                              Field::txtD1, Field::txtV1}) {
      const std::string before = dial->panel.text(field);
      for (const char* text : {"", "-0.1", "90", "1e308"}) {
        dial->set(field, text);
        const proof::LayerProof all = dial->prove(true).total();
        EXPECT_EQ(all.ghosts + all.strays, 0u) << rowOf(field).name << '=' << text;
      }
      dial->set(field, before);
    }
  }
}

}  // namespace
}  // namespace dialwright
