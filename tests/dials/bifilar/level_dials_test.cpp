// Programs 16 and 22: the demonstrations of the shadow, and the drawing's order, inks and texts.
#include "dials/bifilar/ball.hpp"
#include "dials/bifilar/bifilar_case.hpp"
#include "dials/bifilar/fontana.hpp"
#include "numerics/numbers.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

// A floor in a wide window, drawn with the South above.
struct Floor : BifilarCase {
  Floor(Item item, Driver driver, double size, double above)
      : BifilarCase(item, driver, kLatitude, 0), radius(size), height(above) {
    plane = sky::Plane::facing(180, 90);
    set(Field::TxtRadius, textOf(radius));
    set(Field::x1txt, "-.9").set(Field::x2txt, ".9").set(Field::y1txt, ".6");
  }
  double radius, height;
};

struct Fountain : Floor {
  Fountain() : Floor(Item::mnuFontana_H3, QuadranteFontana, 0.3, 0.2) {
    check(Field::ckFunction);  // no free line
  }
};
struct BallOver : Floor {
  explicit BallOver(double above = 0.1) : Floor(Item::mnuBall, QuadranteBall, 0.15, above) {
    set(Field::txtD1, textOf(above));
  }
};

// --- The demonstration

TEST(LevelDials, DemonstrationPlotsTheSpheresShadow) {
  for (const double H : {32.5, -60.0}) {
    const auto expectShadow = [H](auto&& dial) {
      dial.set(Field::txtAO, textOf(H)).set(Field::txtDelta, "10").set(Field::txt_R2, ".2");
      dial.check(Field::ck_Triangolo).run();
      expectOutlines(dial.radius, dial.height, dial.plane, sky::sun(dial.latitude, rad(H), rad(10)),
                     dial.pointsIn(palette(7)), dial.pointsIn(palette(4)));
    };
    expectShadow(Fountain());
    expectShadow(BallOver());
  }
}

// But with true shadows, which have no ball's oval in the place of the rim's either.
TEST(Fontana, PlanTakesTheLatitudeOfTheRunBefore) {
  Fountain fresh;
  fresh.panel.setState(Field::ckTrue, true);
  fresh.set(Field::txtAO, "32.5").check(Field::ck_Triangolo).run();
  EXPECT_EQ(fresh.sheet.list().points.size(), 0u);
  const CircleRecord there = fresh.sheet.list().circles[1];
  const sky::Spot shadow =
      fresh.plane.tipShadow(0.2, sky::sun(fresh.latitude, rad(32.5), rad(23.45)));
  EXPECT_LT(sky::distance({there.x, -there.y}, shadow), 1e-8);

  Fountain dial;
  dial.set(Field::txtAO, "32.5").check(Field::ck_Triangolo);
  for (const double latitude : {0.0, rad(kLatitude)}) {
    const std::size_t before = dial.sheet.list().circles.size();
    dial.run();
    const CircleRecord centre = dial.sheet.list().circles[before + 1];
    const sky::Spot tip = dial.plane.tipShadow(0.2, sky::sun(latitude, rad(32.5), rad(23.45)));
    EXPECT_EQ(centre.colour, palette(13));
    EXPECT_LT(sky::distance({centre.x, -centre.y}, tip), 1e-8);
    // The tangents run along the shadow's way, since base and rim are alike.
    for (const auto& [colour, fromLast] : {std::pair{1, 2}, {10, 1}}) {
      const LineRecord tangent = dial.linesIn(palette(colour)).end()[-fromLast];
      EXPECT_NEAR(std::abs(tangent.x1 - tangent.x2), std::abs(tip.x), 1e-8);
      EXPECT_NEAR(std::abs(tangent.y1 - tangent.y2), std::abs(tip.y), 1e-8);
    }
  }
}

TEST(Fontana, SectionFollowsTheLowerRadius) {
  const double pi = 3.141592654;
  for (const auto& [lower, start, end] : {std::tuple{0.0, 0.0, pi},
                                          {0.15, 2 * pi - pi / 6, pi + pi / 6},
                                          {0.4, 2 * pi, 2 * pi},
                                          {-0.15, pi / 6, pi - pi / 6}}) {
    Fountain dial;
    dial.set(Field::txt_R2, textOf(lower)).check(Field::ck_Triangolo).run();
    const CircleRecord section = dial.sheet.list().circles.end()[-2];
    EXPECT_NEAR(section.y, -0.6 - lower, 1e-12);
    EXPECT_NEAR(section.startAngle, start, 1e-9);
    EXPECT_NEAR(section.endAngle, end, 1e-9);
    // A base wider than the rim leaves the whole circle, with the axis down to the floor.
    EXPECT_EQ(dial.linesIn(palette(15)).size(), end == 2 * pi ? 2u : 1u);
  }
}

// --- Order, inks, texts

const std::string kDays =
    "eq 9|-23.445° 12|23.445° 12|-20.1552° 13|20.1552° 13|-11.4746° 11|11.4746° 11|";
const std::string kOthers = "ita " + std::to_string(rgb(255, 128, 128)) + "|bab 13|temp 11|";

void checkAll(DialCase& dial) {
  for (const Field box :
       {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Equinoziale, Field::ckTemp,
        Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Lemniscate, Field::ck_Triangolo})
    dial.check(box);
  dial.set(Field::txtDecl, "30").panel.setState(Field::ckFrame, true);
}

TEST(Fontana, DrawsInItsOrder) {
  Fountain dial;
  checkAll(dial);
  dial.check(Field::ckFunction, false).set(Field::txtLineofdeclination, "-5.5");
  dial.set(Field::txt_R2, "0.25").run();
  EXPECT_EQ(dial.inks(), "ore 15|" + kDays + "-5.5 14|" + kOthers);
  for (const LineRecord& line : dial.linesOf("ore")) {
    const bool noon = std::abs(line.x1) < 1e-6;  // where the shadow shrinks towards summer
    EXPECT_TRUE(!noon || (line.colour == palette(9) && std::abs(line.y1) < std::abs(line.y2)));
  }
  const auto& list = dial.sheet.list();
  EXPECT_EQ(list.name(list.boxes.at(0).layer), "Quadro");
  ASSERT_EQ(list.circles.size(), 8u);
  EXPECT_EQ(list.circles[5].radius, 0.3) << "the rim, after the plan's five circles";
  // The demonstration's altitude stays for the knob.
  const double h = std::asin(sky::sun(rad(kLatitude), rad(45), rad(23.45)).z);
  EXPECT_NEAR(list.circles[7].y, -(0.3 * std::tan(h) + 0.2 + 0.3 + 0.2), 1e-9);
  EXPECT_NEAR(deg(h), 47.5386, 5e-5);
  EXPECT_EQ(dial.told(),
            "||height of the sun 47.5386 °|latitude 45.7438 °|delta 23.45 °|hour angle 45 °|"
            "radius 0.3|lower radius 0.25|height  0.2|virtual style 0.5278|Longitude -7.6438°|");
  EXPECT_EQ(dial.panel.text(Field::txtDecl), "0");
  EXPECT_EQ(dial.params.DeclRad, 0);
  EXPECT_FALSE(dial.busy);
}

// The style that belongs to the altitude: its mark is put by the azimuth, and by the altitude in a
// drawing of true shadows.
TEST(Ball, MarksTheVirtualStyle) {
  for (const bool onlyTrue : {false, true}) {
    BallOver dial;
    dial.panel.setState(Field::ckTrue, onlyTrue);
    dial.set(Field::txtAO, "32.5").set(Field::txtDelta, "10").check(Field::ck_Triangolo).run();
    const sky::Vec s = sky::sun(dial.latitude, rad(32.5), rad(10));
    const double turned = onlyTrue ? std::hypot(s.x, s.y) : s.y / std::hypot(s.x, s.y);
    EXPECT_NEAR(dial.sheet.list().circles.at(2).y, -(0.15 / turned + 2 * 0.15 + 0.1), 1e-8);
  }
}

TEST(Ball, DrawsInItsOrder) {
  BallOver dial;
  checkAll(dial);
  dial.run();
  EXPECT_EQ(dial.inks(), "ore 9|" + kDays + kOthers + "analemma 7|");
  EXPECT_NEAR(dial.sheet.list().circles.at(1).radius, std::sqrt(0.15 * 0.15 - 0.01), 1e-12);
  // Noon of the summer solstice, whatever txtAO says.
  EXPECT_EQ(dial.told(),
            "|d1 IS NOT EQUAL TO ZERO|||height of the sun 67.7012 °|latitude 45.7438 °|"
            "delta 23.445 °|hour angle 0 °|eccentricity of the shadow 0.3794|virtual style 0.3953|"
            "radius 0.15|Longitude -7.6438°|");
  EXPECT_EQ(dial.sheet.list().texts[3].y, -0.953);
  EXPECT_EQ(BallOver(0).run().told(), "|") << "no warning on the floor";
}

// Roman ones by their box, Arabic ones by none.
TEST(Fontana, TwoBoxesOfNumeralsGiveNone) {
  for (const bool roman : {false, true}) {
    for (const bool arabic : {false, true}) {
      Fountain dial;
      dial.panel.setState(Field::ckRomani, roman);
      dial.panel.setState(Field::ckArabi, arabic);
      dial.run();
      EXPECT_EQ(dial.sheet.list().lines.empty(), roman && arabic);
      EXPECT_EQ(dial.linesIn(palette(12)).empty(), roman) << "an Arabic 3";
    }
  }
}

TEST(LevelDials, RefuseTheSouthAndTakeAnyInput) {
  for (const Driver driver : {QuadranteFontana, QuadranteBall}) {
    expectRefusesSouth(Item::mnuFontana_H3, driver);
    expectBounded(
        Item::mnuFontana_H3, driver, {Field::ckTemp, Field::ck_Triangolo, Field::ck_Lemniscate},
        {Field::txtLAT, Field::TxtStilo, Field::TxtRadius, Field::txt_R2, Field::txtD1,
         Field::TxtHour, Field::txtAO, Field::txtDelta, Field::txtLineofdeclination, Field::y2txt});
  }
}

}  // namespace
}  // namespace dialwright
