// Programs 8 to 13 against rays through the tip of a style on a bent wall, or past the edge of a
// hat: what their strokes stand for, what of them is no shadow, and that the true ones are all
// there.
#include <gtest/gtest.h>

#include <cmath>

#include "dials/cylindrical/cappello.hpp"
#include "dials/cylindrical/parabolico.hpp"
#include "dials/cylindrical/parametrico.hpp"
#include "dials/cylindrical/proiettivo.hpp"
#include "dials/cylindrical/sferico.hpp"
#include "dials/cylindrical/tridimensionale.hpp"
#include "numerics/numbers.hpp"
#include "support/mean_sun.hpp"
#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using proof::degrees;
using proof::Finding;
using proof::kPi;
using proof::radians;

struct Kind {
  const char* name;
  Item item;
  Driver driver;
  double clock;  // +1 where the samples count hours after noon, -1 before it
};
const Kind kTangents{"8", Item::M_Param, QuadranteCilindricoParam, +1};
const Kind kSpace{"9", Item::M_CILINDRICI, QuadranteCilindrico3D, -1};
const Kind kParabola{"10", Item::M_Parabolico, QuadranteParabolico, +1};
const Kind kProjection{"11", Item::mnuCircp, QuadranteProiettivo, +1};
const Kind kSpherical{"12", Item::mnuCCs, QuadranteCilindricoSferico, +1};
const Kind kHat{"13", Item::mnuChapeau, QuadranteCappello, +1};

struct Wall {
  double latitude = 45.7438, declination = -14.57;
  bool convex = true;
  double radius = 0.4, style = 0.2;
};

constexpr Field kFamilies[] = {Field::chkOreAstronomiche,
                               Field::Ck_DayLightCurves,
                               Field::ck_Equinoziale,
                               Field::ck_Lemniscate,
                               Field::ck_Italiche,
                               Field::ck_babiloniche,
                               Field::ckTemp,
                               Field::ck_Sustilare};

class Cylinder : public ProvenDial {
 public:
  explicit Cylinder(const Kind& kind, const Wall& wall = {}) : ProvenDial(kind.item, kind.driver) {
    clearBoxes();
    set(Field::txtLAT, textOf(wall.latitude)).set(Field::txtDecl, textOf(wall.declination));
    set(Field::TxtHour, "1");
    if (kind.item != Item::mnuChapeau) {
      set(Field::TxtRadius, textOf(wall.radius)).set(Field::TxtStilo, textOf(wall.style));
      panel.setState(wall.convex ? Field::OptConvex : Field::Optconcave, true);
    }
  }
  Cylinder& boxes(std::initializer_list<Field> fields) {
    for (const Field field : fields) panel.setState(field, true);
    return *this;
  }
  Cylinder& everything() {
    for (const Field field : kFamilies) panel.setState(field, true);
    return *this;
  }
  Cylinder& set(Field field, std::string_view text) {
    ProvenDial::set(field, text);
    return *this;
  }
  Cylinder& prove(bool trueOnly) {
    ProvenDial::prove(trueOnly);
    return *this;
  }
  std::size_t genuine() const { return proof.total().genuine; }

  // The part of suns in a lit middle window of the drawing whose own stroke of the family passes
  // within a gap of their shadow; nothing when there is none to draw.
  double drawn(CurveFamily family, const std::vector<Sun>& suns, double gap) const {
    const proof::Scene scene = *proof::sceneOf(panel);
    std::size_t lit = 0, found = 0;
    for (const Sun& sun : suns) {
      const proof::Vec sunwards = scene.sky.towards(sun);
      if (sunwards.z < 0.1) continue;
      const auto through = scene.casters.front().all.front()->nearest({}, sunwards);
      const auto shadow = through ? scene.surface->shadow(*through, sunwards) : std::nullopt;
      if (!shadow || std::abs(shadow->x) > 0.3 || shadow->y < -0.5) continue;
      ++lit;
      found += std::any_of(strokes.begin(), strokes.end(), [&](const ProvenStroke& stroke) {
        return stroke.meaning.family == family && isFor(sun, stroke.meaning.first) &&
               std::hypot(stroke.from.x - shadow->x, stroke.from.y - shadow->y) < gap;
      });
    }
    return lit == 0 ? 1 : static_cast<double>(found) / static_cast<double>(lit);
  }

 private:
  static bool isFor(const Sun& sun, const Sun& claimed) {
    const auto near = [](double a, double b) { return std::isnan(b) || std::abs(a - b) < 1e-3; };
    return near(sun.hourAngle, claimed.hourAngle) && near(sun.declination, claimed.declination);
  }
};

std::string name(const Kind& kind, const Wall& wall) {
  return std::string("program ") + kind.name + ", " + textOf(wall.latitude) + " " +
         textOf(wall.declination) + (wall.convex ? " convex " : " concave ") + textOf(wall.style);
}

std::vector<Sun> hourSuns(double step) {
  std::vector<Sun> suns;
  for (double t = -90 + step; t < 90; t += step) {
    if (t == 0) continue;  // the dots have a generator for it
    for (double d = -20; d <= 20; d += 5) suns.push_back({radians(t), radians(d)});
  }
  return suns;
}
std::vector<Sun> daySuns(double day) {
  std::vector<Sun> suns;
  for (double t = -82.5; t <= 82.5; t += 3.75) suns.push_back({radians(t), radians(day)});
  return suns;
}

// --- Nothing but true shadows, and all of them

void expectTrueShadows(Cylinder& dial, double gap, const std::vector<double>& days) {
  const std::size_t literal = dial.prove(false).genuine();
  if (dial.refused) return;
  dial.prove(true);
  const proof::LayerProof all = dial.proof.total();
  EXPECT_EQ(all.ghosts + all.strays, 0u);
  // A style in the plane of the horizon has hours whose sun rises or sets all day.
  EXPECT_GE(all.genuine + 30, literal);
  EXPECT_GE(dial.drawn(CurveFamily::Hours, hourSuns(15), gap), 0.9);
  for (const double day : days)
    EXPECT_GE(dial.drawn(CurveFamily::Declinations, daySuns(day), gap), 0.95) << day;
}

TEST(CylindricalProof, DottedDialsHaveAllTrueShadowsAndNoOthers) {
  std::size_t combinations = 0;
  for (const Kind* kind : {&kTangents, &kSpace, &kParabola, &kProjection}) {
    for (const double latitude : {0.0, 12.0, 45.7438, 60.0, 66.7, 75.0}) {
      for (const double declination : {-90.0, -55.0, -14.57, 0.0, 40.0, 170.0}) {
        for (const bool convex : {true, false}) {
          const double style = ++combinations % 3 == 0 ? 0.5 : 0.2;
          const Wall wall{latitude, declination, convex, 0.4, style};
          SCOPED_TRACE(name(*kind, wall));
          Cylinder dial(*kind, wall);
          dial.everything().set(Field::txt_Definition, kind == &kTangents ? "7" : "5");
          expectTrueShadows(dial, 0.08, {});
          EXPECT_LT(dial.proof.total().millimetres, 0.05);
          if (testing::Test::HasFailure()) return;
        }
      }
    }
  }
  EXPECT_EQ(combinations, 288u);
}

TEST(CylindricalProof, TheSphericalDialHasAllTrueShadowsAndNoOthers) {
  for (const double latitude : {0.0, 12.0, 45.7438, 66.7}) {
    for (const double declination : {-90.0, -14.57, 170.0}) {
      for (const bool convex : {true, false}) {
        const Wall wall{latitude, declination, convex};
        SCOPED_TRACE(name(kSpherical, wall));
        Cylinder dial(kSpherical, wall);
        dial.everything();
        expectTrueShadows(dial, 0.012, {-23.445, 23.445, 20.1552, -11.4746});
        EXPECT_LT(dial.proof.total().millimetres, 1e-3);
      }
    }
  }
}

TEST(CylindricalProof, TheHatHasAllTrueShadowsAndNoOthers) {
  for (const double latitude : {-60.0, -35.0, 0.0, 12.0, 45.7438, 66.7, 75.0}) {
    for (const char* zone : {"-1", "0"}) {
      SCOPED_TRACE(testing::Message() << latitude << " zone " << zone);
      Cylinder dial(kHat, {.latitude = latitude});
      dial.everything().set(Field::TxtFuso, zone);
      expectTrueShadows(dial, 0.012, {-23.445, 23.445, 20.1552, -11.4746});
      EXPECT_LT(dial.proof.total().millimetres, 1e-3);
    }
  }
}

// --- What the strokes stand for

constexpr double kHair = 2e-6;  // degrees; the circle constant is short by 4e-10

double offStep(double value, double step) { return std::abs(std::remainder(value, step)); }

// The hour angle and the day that a stroke's colour and layer tell are those it is proven by.
TEST(CylindricalProof, ColoursAndLayersTellTheSun) {
  for (const Kind* kind : {&kTangents, &kSpace, &kParabola, &kProjection, &kSpherical}) {
    for (const bool convex : {true, false}) {
      for (const bool zone : {false, true}) {
        const Wall wall{45.7438, -14.57, convex};
        SCOPED_TRACE(name(*kind, wall));
        Cylinder dial(*kind, wall);
        dial.boxes({Field::chkOreAstronomiche}).panel.setState(Field::ck_Etna, zone);
        dial.prove(false);
        const bool ofZone = zone && kind != &kTangents && kind != &kProjection;
        const double clock = kind == &kParabola && !convex ? -1 : kind->clock;
        std::size_t blue = 0;
        for (const ProvenStroke& stroke : dial.strokes) {
          if (stroke.meaning.family != CurveFamily::Hours) continue;
          const double t = degrees(stroke.meaning.first.hourAngle) + (ofZone ? 7.3562 : 0);
          if (stroke.colour == palette(12)) {
            ASSERT_LT(std::abs(t), kHair);
          } else if (stroke.colour == palette(9) && kind != &kParabola) {
            ++blue;
            ASSERT_LT(std::abs(std::abs(t) - 90), kHair);
            if (kind != &kProjection) {
              ASSERT_LT(std::abs(t - 90 * clock), kHair);
            }
          } else if (stroke.colour == palette(7)) {
            ASSERT_LT(offStep(t, kind == &kProjection ? 7.5 : 15), kHair);
          }
        }
        EXPECT_TRUE(blue > 0 || kind == &kParabola || (kind == &kSpherical && convex));
      }
    }
  }
}

TEST(CylindricalProof, DaysAreThoseOfTheirColours) {
  for (const Kind* kind : {&kTangents, &kSpace, &kProjection, &kSpherical, &kHat}) {
    SCOPED_TRACE(kind->name);
    Cylinder dial(*kind);
    dial.boxes({Field::Ck_DayLightCurves, Field::ck_Equinoziale, Field::ck_Orizzonte});
    dial.set(Field::txtLineofdeclination, "7.25").prove(false);
    std::size_t seen[4] = {};
    for (const ProvenStroke& stroke : dial.strokes) {
      const double day = std::abs(degrees(stroke.meaning.first.declination));
      const std::pair<int, double> days[] = {{12, 23.445}, {13, 20.1552}, {11, 11.4746}, {9, 0}};
      for (std::size_t i = 0; i < std::size(days); ++i) {
        if (stroke.colour != palette(days[i].first)) continue;
        ASSERT_NEAR(day, days[i].second, kHair);
        ++seen[i];
      }
      if (stroke.colour == rgb(255, 127, 39) || stroke.colour == palette(10)) {
        ASSERT_NEAR(day, 7.25, kHair);
      }
    }
    for (const std::size_t count : seen) EXPECT_GT(count, 20u);
  }
  Cylinder parabola(kParabola);
  parabola.set(Field::txtLineofdeclination, "10").prove(false);
  EXPECT_GT(parabola.tally(CurveFamily::Declinations).genuine, 50u);
}

TEST(CylindricalProof, OldHoursCountFromTheHorizon) {
  for (const Kind* kind : {&kTangents, &kSpace, &kProjection, &kSpherical, &kHat}) {
    SCOPED_TRACE(kind->name);
    Cylinder dial(*kind);
    dial.boxes({Field::ck_Italiche, Field::ck_babiloniche, Field::ckTemp}).prove(true);
    for (const ProvenStroke& stroke : dial.strokes) {
      if (std::abs(stroke.from.y) < 1e-6) continue;  // as the sun rises, it also sets
      const Sun& sun = stroke.meaning.first;
      const double arc =
          degrees(std::acos(-std::tan(radians(45.7438)) * std::tan(sun.declination)));
      const double H = degrees(sun.hourAngle);
      switch (stroke.meaning.family) {
        case CurveFamily::Italic: ASSERT_LT(offStep(H - arc, 15), 1e-5); break;
        case CurveFamily::Babylonian: ASSERT_LT(offStep(H + arc, 15), 1e-5); break;
        case CurveFamily::Temporary: ASSERT_LT(offStep(H / arc, 1.0 / 6), 1e-7); break;
        default: break;
      }
    }
    EXPECT_GT(dial.tally(CurveFamily::Italic).genuine, 150u);
    EXPECT_GT(dial.tally(CurveFamily::Babylonian).genuine, 150u);
    if (kind == &kSpherical || kind == &kHat) {
      EXPECT_GT(dial.tally(CurveFamily::Temporary).genuine, 4000u);
    }
  }
}

// Of noon, or of every hour of the zone; a segment of the literal program 12 has less than 5 mm.
TEST(CylindricalProof, AnalemmasAreTheMeanSunOfTheZone) {
  struct Case {
    const Kind& kind;
    double style;
    std::size_t literal, whole;
  };
  for (const Case& c : {Case{kSpace, 0.2, 1614, 1614}, Case{kProjection, 0.2, 366, 366},
                        Case{kSpherical, 0.2, 446, 446}, Case{kSpherical, 0.3, 359, 446},
                        Case{kHat, 0.2, 365, 365}}) {
    SCOPED_TRACE(c.kind.name);
    Cylinder dial(c.kind, {.style = c.style});
    dial.boxes({Field::ck_Lemniscate, Field::ck_Orizzonte});
    EXPECT_EQ(dial.prove(false).tally(CurveFamily::Analemma).genuine, c.literal);
    EXPECT_EQ(dial.prove(true).tally(CurveFamily::Analemma).genuine, c.whole);
    for (const ProvenStroke& stroke : dial.strokes) {
      if (stroke.meaning.family != CurveFamily::Analemma) continue;
      const Sun& sun = stroke.meaning.first;
      const double mean = std::remainder(sun.hourAngle + radians(15 - 7.6438),
                                         c.kind.item == Item::M_CILINDRICI ? kPi / 12 : 2 * kPi);
      ASSERT_LT(sky::secondsFromEquationOfTime(mean, sun.declination), 25);
    }
  }
}

// --- What is no shadow

TEST(CylindricalProof, DotsOfTheNightAreGhosts) {
  Cylinder dial(kSpace);
  dial.boxes({Field::chkOreAstronomiche}).set(Field::TxtHour, "2").prove(false);
  const ProofTally hours = dial.tally(CurveFamily::Hours);
  EXPECT_EQ(hours.strokes, 1638u);
  EXPECT_EQ(hours.ghosts, 1391u);
  EXPECT_EQ(dial.prove(true).tally(CurveFamily::Hours).genuine, 247u);
}

// Noon has no ordinate; its dots stay where those of the hour before ended.
TEST(CylindricalProof, NoonsOwnDotsAreALevelRow) {
  Cylinder dial(kSpace);
  dial.boxes({Field::chkOreAstronomiche}).prove(false);
  std::size_t red = 0, genuine = 0;
  double level = 0;
  for (const ProvenStroke& stroke : dial.strokes) {
    if (stroke.colour != palette(12)) continue;
    if (red++ == 0) level = stroke.from.y;
    EXPECT_EQ(stroke.from.y, level);
    genuine += stroke.finding == Finding::True;
  }
  EXPECT_EQ(red, 80u);
  EXPECT_LE(genuine, 1u);  // where the row crosses noon
}

// The abscissa alone folds what lies beyond the cylinder's axis.
TEST(CylindricalProof, ProjectedFromBeyondTheAxisTheFarHalfIsDrawnTrue) {
  Cylinder dial(kProjection, {.convex = false, .style = 0.6});
  dial.boxes({Field::chkOreAstronomiche}).prove(false);
  const ProofTally literal = dial.tally(CurveFamily::Hours);
  EXPECT_GT(literal.strays, 1000u);
  EXPECT_GT(dial.prove(true).tally(CurveFamily::Hours).genuine, literal.genuine + 1000);
}

TEST(CylindricalProof, TheFreeLineOfTheSphericalDialStartsInTheFoot) {
  Cylinder dial(kSpherical);
  dial.prove(false);
  EXPECT_EQ(dial.proof.total().strays, 1u);
  EXPECT_NEAR(dial.proof.total().millimetres, 749.378, 0.001);
  const std::size_t genuine = dial.genuine();
  EXPECT_EQ(dial.prove(true).genuine(), genuine);
}

// A new program has no side yet: without hour lines all falls on the foot.
TEST(CylindricalProof, TheConcaveAnalemmaHasItsSideWithoutHourLinesToo) {
  Cylinder dial(kSpherical, {.convex = false});
  dial.boxes({Field::ck_Lemniscate}).set(Field::x2txt, "-.5");
  EXPECT_EQ(dial.prove(false).tally(CurveFamily::Analemma).genuine, 0u);
  Cylinder again(kSpherical, {.convex = false});
  again.boxes({Field::ck_Lemniscate});
  EXPECT_GT(again.prove(true).tally(CurveFamily::Analemma).genuine, 440u);
}

TEST(CylindricalProof, TheHatsOldHoursAreJoinedFromLineToLine) {
  Cylinder dial(kHat);
  dial.boxes({Field::ck_Italiche, Field::ck_babiloniche}).prove(false);
  for (const CurveFamily family : {CurveFamily::Italic, CurveFamily::Babylonian}) {
    std::size_t strays = 0;
    for (const ProvenStroke& stroke : dial.strokes)
      strays += stroke.meaning.family == family && stroke.finding == Finding::Stray;
    EXPECT_EQ(strays, 6u);
  }
  EXPECT_NEAR(dial.proof.total().millimetres, 369.452, 0.001);
}

TEST(CylindricalProof, TheHatsDaysNeedNoHorizonWhenTrue) {
  Cylinder dial(kHat);
  dial.boxes({Field::Ck_DayLightCurves, Field::ckArabi}).prove(false);
  EXPECT_EQ(dial.tally(CurveFamily::Equinoctial).strokes, 0u);
  EXPECT_EQ(dial.tally(CurveFamily::Declinations).ghosts, 1958u);
  dial.prove(true);
  EXPECT_EQ(dial.tally(CurveFamily::Equinoctial).genuine, 3600u);
  EXPECT_EQ(dial.tally(CurveFamily::Declinations).genuine, 21594u);
}

// By the literal hat noon is always South, and its zone that of 15 degrees East, less what an
// earlier dial's run left behind.
TEST(CylindricalProof, TheHatsTrueNoonAndZone) {
  Cylinder tropics(kHat, {.latitude = 12});
  tropics.boxes({Field::chkOreAstronomiche, Field::ck_Orizzonte});
  EXPECT_EQ(tropics.prove(false).tally(CurveFamily::Hours).ghosts, 231u);
  const std::size_t literal = tropics.tally(CurveFamily::Hours).genuine;
  EXPECT_GT(tropics.prove(true).tally(CurveFamily::Hours).genuine, literal + 100);
  // A day that passes North runs across the whole strip.
  Cylinder south(kHat, {.latitude = -35});
  south.boxes({Field::Ck_DayLightCurves, Field::ck_Orizzonte}).prove(false);
  EXPECT_EQ(south.tally(CurveFamily::Declinations).strays, 1u);
  for (const auto& [zone, left] : {std::pair{"0", 0.0}, {"-1", 0.1}}) {
    Cylinder dial(kHat);
    dial.boxes({Field::ck_Lemniscate, Field::ck_Orizzonte}).set(Field::TxtFuso, zone);
    dial.params.CorrFuso = left;
    EXPECT_EQ(dial.prove(false).tally(CurveFamily::Analemma).strays, 365u);
    EXPECT_EQ(dial.prove(true).tally(CurveFamily::Analemma).genuine, 365u);
  }
}

// Numerals carry no sun; true ones stand where theirs throws the shadow.
TEST(CylindricalProof, TrueNumeralsStandInTheLight) {
  for (const auto& [kind, convex] :
       {std::pair{&kSpherical, true}, {&kSpherical, false}, {&kHat, true}}) {
    for (const bool trueOnly : {false, true}) {
      Cylinder dial(*kind, {.convex = convex});
      dial.boxes({Field::ckArabi, Field::chkOreAstronomiche});
      dial.set(Field::txtArabi, "1e-9").set(Field::TxtHour, "1e-9");
      dial.set(Field::txtLineofdeclination, "-20").prove(trueOnly);
      const proof::Scene scene = *proof::sceneOf(dial.panel);
      std::size_t numerals = 0, lit = 0;
      Punto last{9, 9};
      for (const LineRecord& line : dial.sheet.list().lines) {
        const Punto spot{line.x1, -line.y1};
        if (std::hypot(line.x1 - line.x2, line.y1 - line.y2) > 1e-8 ||
            std::hypot(spot.x - last.x, spot.y - last.y) < 1e-6)
          continue;
        last = spot;
        ++numerals;
        for (double t = -105; t <= 105; t += 15) {
          const auto judged = scene.judge(spot, CurveFamily::None, Sun{radians(t), radians(-20)});
          lit += judged.lit && judged.miss < 1e-6;
        }
      }
      EXPECT_GT(lit, 4u);
      if (trueOnly) {
        EXPECT_EQ(lit, numerals);
      }
    }
  }
}

// --- The frame, which is that of noon

// The polar style runs from N up to the tip: as long across as the way from the tip to N, rising by
// the latitude. The equinox's noon sun stands square to it.
TEST(CylindricalProof, TheFrameIsThePlaneOfNoon) {
  for (const Kind* kind : {&kTangents, &kSpace, &kProjection, &kSpherical}) {
    for (const Wall& wall : {Wall{}, Wall{.convex = false}, Wall{60, 25, true, 0.3, 0.25}}) {
      SCOPED_TRACE(name(*kind, wall));
      Cylinder dial(*kind, wall);
      dial.boxes({Field::ck_Triangolo}).run();
      const proof::Scene scene = *proof::sceneOf(dial.panel);
      const auto tip = scene.casters.front().all.front()->nearest({}, {});
      const Punto noon = *scene.surface->shadow(*tip, scene.sky.towards({0, 0}));
      const double way = -noon.y * std::tan(radians(wall.latitude));
      const int noonColour = kind == &kTangents ? 9 : kind == &kSpherical ? 12 : 4;
      std::vector<LineRecord> upright = dial.linesIn(palette(noonColour)), slope;
      std::erase_if(upright, [](const LineRecord& l) { return l.x1 != l.x2; });
      ASSERT_EQ(upright.size(), 1u);
      EXPECT_NEAR(upright[0].x1, noon.x, 1e-9);
      slope = dial.linesIn(palette(9));
      std::erase_if(slope, [](const LineRecord& l) { return l.x1 == l.x2; });
      ASSERT_EQ(slope.size(), 1u);
      EXPECT_NEAR(slope[0].x1, noon.x, 1e-9);
      EXPECT_NEAR(std::abs(slope[0].x2 - slope[0].x1), way, 1e-9);
      EXPECT_NEAR(-slope[0].y1, way * std::tan(radians(wall.latitude)), 1e-9);
      const auto style = dial.linesIn(palette(13));
      ASSERT_EQ(style.size(), 1u);
      EXPECT_NEAR(style[0].y2, -wall.style, 1e-12);
    }
  }
  EXPECT_TRUE(
      Cylinder(kSpherical, {45, 90}).boxes({Field::ck_Triangolo}).linesIn(palette(9)).empty());
}

TEST(CylindricalProof, TheParabolasGeneratorsAreNoonAndTheVertex) {
  for (const Wall& wall : {Wall{}, Wall{.convex = false}, Wall{60, 25, true, 0.3, 0.25}}) {
    Cylinder dial(kParabola, wall);
    dial.run();
    const proof::Scene scene = *proof::sceneOf(dial.panel);
    const auto tip = scene.casters.front().all.front()->nearest({}, {});
    const auto noon = dial.linesIn(palette(4)), vertex = dial.linesIn(palette(1));
    ASSERT_EQ(noon.size() + vertex.size(), 2u);
    EXPECT_NEAR(noon[0].x1, scene.surface->shadow(*tip, scene.sky.towards({0, 0}))->x, 1e-8);
    EXPECT_NEAR(scene.surface->place({vertex[0].x1, 0})->normal.y, -1, 1e-12);
  }
}

}  // namespace
}  // namespace dialwright
