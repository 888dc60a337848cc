// Tests of program 12: the cylinder of circular cross-section by spherical trigonometry.
#include "dials/cylindrical/sferico.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/cylinder_model.hpp"
#include "support/dial_case.hpp"
#include "support/mean_sun.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;
using std::numbers::pi;

struct Wall {
  double latitude, declination, radius, style;
  bool convex;
};

// Sites and walls: turned either way and beyond East and West, flat and sharp, and in the tropics.
constexpr Wall kWalls[] = {{45.7438, -14.57, 0.4, 0.2, true}, {45.7438, -14.57, 0.4, 0.2, false},
                           {45.7438, 0, 0.4, 0.2, true},      {45.7438, 0, 0.4, 0.15, false},
                           {60, 55, 0.3, 0.25, true},         {60, 55, 0.3, 0.1, false},
                           {30, -100, 1.5, 0.1, true},        {30, -80, 1.5, 0.1, false},
                           {12, 20, 0.2, 0.05, true},         {12, 20, 0.25, 0.3, false},
                           {38, 170, 0.5, 0.1, true},         {38, 170, 0.5, 0.2, false}};

// Walls that the noon sun's ray through the tip meets.
constexpr Wall kNoonWalls[] = {kWalls[0], kWalls[1], {60, 25, 0.3, 0.25, true}, kWalls[5]};

class Cylinder : public DialCase {
 public:
  explicit Cylinder(const Wall& wall = kWalls[0])
      : DialCase(Item::mnuCCs, QuadranteCilindricoSferico),
        wall_(wall),
        model(sky::cylinder(wall.radius, wall.style, wall.declination, wall.convex)) {
    clearBoxes();
    set(Field::txtLAT, std::to_string(wall.latitude))
        .set(Field::txtDecl, std::to_string(wall.declination));
    set(Field::TxtRadius, std::to_string(wall.radius))
        .set(Field::TxtStilo, std::to_string(wall.style));
    panel.setState(wall.convex ? Field::OptConvex : Field::Optconcave, true);
  }

  // The lines of the checked families alone: without the frame, which a bare run draws.
  std::vector<LineRecord> curves(std::initializer_list<Field> boxes, std::string_view layer = "0") {
    for (const Field box : boxes) panel.setState(box, true);
    // A window that holds nothing keeps the free line away.
    set(Field::x1txt, "0").set(Field::x2txt, "0").run();
    std::vector<LineRecord> lines;
    for (const LineRecord& line : linesOf(layer)) {
      const bool generator = line.x1 == line.x2 && line.y1 == -line.y2;
      const bool centre = line.x1 == line.x2 && 2 * line.y1 == -line.y2;
      if (!generator && !centre) lines.push_back(line);
    }
    return lines;
  }

  // The sun of a spot, which must have its shadow there: up to whole turns of the circumference.
  void expectShadow(sky::Spot spot, double& hourAngle, double& declination) const {
    const sky::Vec sun = model.sunOf(spot);
    const auto shadow = model.shadow(sun);
    if (spot.y < -1e-6) {
      ASSERT_TRUE(shadow) << spot.x << ' ' << spot.y;
      const double turn = 2 * pi * wall_.radius;
      EXPECT_NEAR(std::remainder(shadow->x - spot.x, turn), 0, 1e-8);
      EXPECT_NEAR(shadow->y, spot.y, 1e-8 * (1 + std::abs(spot.y)));
    }
    hourAngle = sky::hourAngleOf(rad(wall_.latitude), sun);
    declination = sky::declinationOf(rad(wall_.latitude), sun);
  }

  // Each end of every nth line shows a sun for which miss(line, hour angle, declination), radians,
  // is nothing.
  template <class Miss>
  std::size_t expectSuns(const std::vector<LineRecord>& lines, Miss miss,
                         std::size_t stride = 7) const {
    for (std::size_t i = 0; i < lines.size(); i += stride) {
      for (const sky::Spot spot :
           {sky::Spot{lines[i].x1, -lines[i].y1}, sky::Spot{lines[i].x2, -lines[i].y2}}) {
        double hourAngle = 0, declination = 0;
        expectShadow(spot, hourAngle, declination);
        EXPECT_NEAR(miss(lines[i], hourAngle, declination), 0, 1e-7)
            << "(" << spot.x << ", " << spot.y << ") shows " << deg(hourAngle) << ", "
            << deg(declination);
        if (testing::Test::HasFailure()) return lines.size();
      }
    }
    return lines.size();
  }

 private:
  Wall wall_;

 public:
  const sky::CurvedWall<sky::CircleSection> model;
};

std::string name(const Wall& wall) {
  return std::to_string(wall.latitude) + " " + std::to_string(wall.declination) +
         (wall.convex ? " convex" : " concave");
}

double toWhole(double x, double unit) { return std::remainder(x, unit); }

TEST(CylindricalDial, HourLinesShowTheirHour) {
  std::size_t drawn = 0;
  for (const Wall& wall : kWalls) {
    SCOPED_TRACE(name(wall));
    for (const bool zone : {false, true}) {
      Cylinder dial(wall);
      dial.panel.setState(Field::ck_Etna, zone);
      const double shift = zone ? rad(15 - 7.6438) : 0;
      drawn += dial.expectSuns(
          dial.curves({Field::chkOreAstronomiche}),
          [&](const LineRecord& line, double H, double d) {
            if (std::abs(d) > rad(23.5)) return 1.0;
            const double t = H + shift;
            if (line.colour == palette(12)) return t;
            if (line.colour == palette(9)) return t - pi / 2;
            return toWhole(t, rad(7.5));
          },
          31);
      if (testing::Test::HasFailure()) return;
    }
  }
  EXPECT_GT(drawn, 100'000u);
}

TEST(CylindricalDial, DeclinationCurvesAreShadowsOfTheirDays) {
  constexpr std::pair<const char*, double> kDays[] = {{"-23.445°", -23.445}, {"-20.15°", -20.1552},
                                                      {"-11.47°", -11.4746}, {"23.445°", 23.445},
                                                      {"20.15°", 20.1552},   {"11.47°", 11.4746}};
  std::size_t drawn = 0;
  for (const Wall& wall : kWalls) {
    SCOPED_TRACE(name(wall));
    Cylinder dial(wall);
    dial.curves({Field::Ck_DayLightCurves});
    for (const auto& [layer, day] : kDays) {
      drawn += dial.expectSuns(dial.linesOf(layer),
                               [&](const LineRecord&, double, double d) { return d - rad(day); });
    }
    drawn += Cylinder(wall).expectSuns(Cylinder(wall).curves({Field::ck_Equinoziale}),
                                       [](const LineRecord&, double, double d) { return d; });
    if (testing::Test::HasFailure()) return;
  }
  EXPECT_GT(drawn, 50'000u);
}

TEST(CylindricalDial, OldHoursCountFromSunriseAndSunset) {
  std::size_t drawn = 0;
  for (const Wall& wall : kWalls) {
    SCOPED_TRACE(name(wall));
    const auto semiArc = [&](double d) { return sky::semiArc(rad(wall.latitude), d); };
    const std::pair<Field, std::function<double(double, double)>> families[] = {
        {Field::ck_Italiche, [&](double H, double d) { return toWhole(H - semiArc(d), pi / 12); }},
        {Field::ck_babiloniche,
         [&](double H, double d) { return toWhole(H + semiArc(d), pi / 12); }},
        {Field::ckTemp, [&](double H, double d) { return toWhole(H / semiArc(d), 1.0 / 6); }}};
    for (const auto& [box, miss] : families) {
      Cylinder dial(wall);
      drawn += dial.expectSuns(
          dial.curves({box}), [&](const LineRecord&, double H, double d) { return miss(H, d); },
          17);
      if (testing::Test::HasFailure()) return;
    }
  }
  EXPECT_GT(drawn, 100'000u);
}

TEST(CylindricalDial, TheSubstyleIsTheHourThatLiesInThePlaneOfTheStyle) {
  for (const Wall& wall : kWalls) {
    SCOPED_TRACE(name(wall));
    Cylinder dial(wall);
    const double H = sky::hourAngleOf(rad(wall.latitude), dial.model.tangent.normal);
    // The whole hour circle lies in that plane, so the lower half counts too.
    dial.expectSuns(dial.curves({Field::ck_Sustilare}),
                    [&](const LineRecord&, double at, double) { return toWhole(at - H, pi); });
    if (testing::Test::HasFailure()) return;
  }
}

TEST(CylindricalDial, TheAnalemmaIsTheZonesNoonOfTheMeanSun) {
  for (const bool convex : {true, false}) {
    Cylinder dial(kWalls[convex ? 0 : 1]);
    // The sign that the analemma works with is the hour lines'.
    dial.curves({Field::chkOreAstronomiche, Field::ck_Lemniscate});
    const auto lines = dial.linesOf(convex ? "Analemmaconvex" : "Analemmaconcave");
    EXPECT_EQ(lines.size(), 446u);
    for (const LineRecord& line : lines) {
      double H = 0, d = 0;
      dial.expectShadow({line.x1, -line.y1}, H, d);
      ASSERT_LT(sky::secondsFromEquationOfTime(H + rad(15 - 7.6438), d), 25)
          << "at the declination " << deg(d);
    }
  }
}

// --- The frame, from the plan of the cylinder

TEST(CylindricalDial, NoonStandsOnItsGenerators) {
  for (const Wall& wall : kWalls) {
    SCOPED_TRACE(name(wall));
    Cylinder dial(wall);
    dial.curves({Field::ck_Orizzonte});
    const auto noonSun = dial.model.shadow(sky::sun(rad(wall.latitude), 0, rad(-10)));
    for (const LineRecord& N : dial.linesIn(palette(12))) {
      // Beyond East and West the generator is that of the noon sun's plane, lit or not.
      const bool facesNoon = noonSun && std::abs(wall.declination) < 90;
      EXPECT_NEAR(N.x1, facesNoon ? noonSun->x : N.x1, 1e-9);
      EXPECT_EQ(N.x1, N.x2);
      EXPECT_EQ(N.y1, dial.sheet.ShiftY());
      EXPECT_EQ(N.y2, -dial.sheet.ShiftY());
    }
    // The generator M has the axis due North of it (outside) or due South.
    for (const LineRecord& M : dial.linesIn(kWhite)) {
      EXPECT_NEAR(M.x1, (wall.convex ? 1 : -1) * wall.radius * rad(wall.declination), 1e-8);
      EXPECT_EQ(M.y2, 2 * dial.sheet.ShiftY());
    }
    const auto horizon = dial.linesIn(palette(2));
    ASSERT_EQ(horizon.size(), 1u);
    EXPECT_EQ(horizon[0].x1, -dial.sheet.ShiftX());
    EXPECT_EQ(horizon[0].y1, 0);
  }
}

// The polar style runs from N up to the tip: as long across as the way from the tip to N, rising by
// the latitude.
TEST(CylindricalDial, TheTriangleIsThePolarStyleInItsMeridian) {
  for (const Wall& wall : kNoonWalls) {
    SCOPED_TRACE(name(wall));
    Cylinder dial(wall);
    dial.curves({Field::ck_Triangolo});
    const auto noonSun = dial.model.shadow(sky::sun(rad(wall.latitude), 0, 0));
    ASSERT_TRUE(noonSun);
    const auto hypotenuse = dial.linesIn(palette(9));
    ASSERT_EQ(hypotenuse.size(), 1u);
    const LineRecord& h = hypotenuse[0];
    // The equinox noon sun stands at right angles to the polar style: from its altitude, the way to
    // N.
    const double way = -noonSun->y / std::tan(rad(90 - wall.latitude));
    EXPECT_NEAR(h.x1, noonSun->x, 1e-9);
    EXPECT_NEAR(std::abs(h.x2 - h.x1), way, 1e-9);
    EXPECT_NEAR(-h.y1, way * std::tan(rad(wall.latitude)), 1e-9);
    EXPECT_EQ(h.y2, 0);
    EXPECT_NEAR(dial.params.IpotenusaStilo, way / std::cos(rad(wall.latitude)), 1e-9);
    const auto perpendicular = dial.linesIn(palette(13));
    ASSERT_EQ(perpendicular.size(), 1u);
    EXPECT_NEAR(perpendicular[0].y2, -wall.style, 1e-12);
  }
  Cylinder east({45, 90, 0.4, 0.2, true});
  EXPECT_TRUE(east.curves({Field::ck_Triangolo}).empty());
}

TEST(CylindricalDial, TheSectionIsThePlanToScale) {
  for (const Wall& wall : kNoonWalls) {
    SCOPED_TRACE(name(wall));
    Cylinder dial(wall);
    dial.curves({Field::Ck_Section});
    const auto& circles = dial.sheet.list().circles;
    const auto section = std::find_if(circles.begin(), circles.end(),
                                      [](const CircleRecord& c) { return c.colour == palette(8); });
    ASSERT_NE(section, circles.end());
    EXPECT_NEAR(section->radius, wall.radius, 1e-12);
    const sky::Spot centre{section->x, section->y};
    const auto style = dial.linesIn(palette(13));
    ASSERT_EQ(style.size(), 1u);
    const sky::Spot foot{style[0].x1, style[0].y1}, tip{style[0].x2, style[0].y2};
    EXPECT_EQ(foot.x, 0);
    EXPECT_NEAR(sky::distance(foot, centre), wall.radius, 1e-12);
    EXPECT_NEAR(sky::distance(foot, tip), wall.style, 1e-12);
    EXPECT_NEAR(sky::distance(centre, tip), wall.radius + (wall.convex ? 1 : -1) * wall.style,
                1e-12);
    // The meridian through the tip ends on the circle, in N.
    const auto ray = dial.linesOf("PS");
    ASSERT_EQ(ray.size(), 1u);
    EXPECT_EQ(ray[0].x1, ray[0].x2);
    EXPECT_NEAR(sky::distance({ray[0].x2, ray[0].y2}, centre), wall.radius, 1e-12);
    // The slice spans the declination, from the meridian to the foot.
    const auto slice = std::find_if(circles.begin(), circles.end(),
                                    [](const CircleRecord& c) { return c.colour == palette(7); });
    ASSERT_NE(slice, circles.end());
    const double from = -slice->startAngle, to = -slice->endAngle;
    EXPECT_NEAR(std::remainder(to - from, 2 * pi), rad(std::abs(wall.declination)), 1e-8);
    const double toFoot = std::atan2(-(foot.y - centre.y), foot.x - centre.x);
    EXPECT_NEAR(std::sin(from - toFoot) * std::sin(to - toFoot), 0, 1e-8) << "an end is the foot";
  }
}

// --- What a run draws, and in which order

TEST(CylindricalDial, ADefaultRunDrawsItsFamiliesInOrder) {
  DialCase dial(Item::mnuCCs, QuadranteCilindricoSferico);
  dial.run();
  EXPECT_TRUE(dial.messages.empty());
  EXPECT_FALSE(dial.busy);
  EXPECT_EQ(dial.sheet.caption(),
            "Cylindrical sundial of circular cross-section : Spherical trigonometric method");
  const auto& lines = dial.sheet.list().lines;
  // Runs of one ink, in their order.
  std::vector<std::pair<Rgb, std::string>> inks;
  for (const LineRecord& line : lines) {
    std::pair<Rgb, std::string> ink{line.colour, dial.sheet.list().name(line.layer)};
    if (inks.empty() || inks.back() != ink) inks.push_back(ink);
  }
  const std::vector<std::pair<Rgb, std::string>> expected = {
      {palette(15), "0"},       {palette(7), "0"},         {palette(12), "0"},
      {palette(7), "0"},        {palette(12), "-23.445°"}, {palette(13), "-20.15°"},
      {palette(11), "-11.47°"}, {palette(12), "23.445°"},  {palette(13), "20.15°"},
      {palette(11), "11.47°"},  {palette(9), "0"},         {rgb(255, 127, 39), "23.445"},
      {palette(12), "0"}};
  EXPECT_EQ(inks, expected);
  ASSERT_EQ(dial.sheet.list().circles.size(), 1u);
  EXPECT_EQ(dial.sheet.list().circles[0].fill, palette(12));
  EXPECT_EQ(dial.pointsIn(palette(12)).size(), 1u);
}

TEST(CylindricalDial, LinesRunBackToThePointBefore) {
  Cylinder dial;
  const auto lines = dial.curves({Field::chkOreAstronomiche});
  std::size_t joined = 0;
  for (std::size_t i = 1; i < lines.size(); ++i)
    joined += lines[i].x2 == lines[i - 1].x1 && lines[i].y2 == lines[i - 1].y1;
  EXPECT_GT(joined, lines.size() * 9 / 10);
  for (const LineRecord& line : lines)
    EXPECT_LT(std::hypot(line.x1 - line.x2, line.y1 - line.y2), 0.01);
  // No line passes the tangent generators.
  const double edge = 0.4 * std::acos(0.4 / 0.6);
  for (const LineRecord& line : lines) EXPECT_LT(std::abs(line.x1), edge);
  EXPECT_NEAR(dial.params.ArcoLimite, edge, 1e-9);
}

TEST(CylindricalDial, NumeralsStandOnTheirHoursAndTakeTheFreeLinesPlace) {
  for (const Wall& wall : {kWalls[0], kWalls[1]}) {
    SCOPED_TRACE(name(wall));
    for (const Field box : {Field::ckArabi, Field::ckRomani}) {
      Cylinder dial(wall);
      // Numerals so small that they are points.
      dial.set(Field::txtArabi, "1e-9")
          .set(Field::txtNumbersize, "1e-9")
          .set(Field::txtLineofdeclination, "10");
      dial.curves({Field::chkOreAstronomiche});
      const std::size_t before = dial.sheet.list().lines.size();
      dial.sheet.Clear();
      dial.set(Field::x1txt, "-1").set(Field::x2txt, "1");
      dial.panel.setState(box, true);
      dial.run();
      const auto& all = dial.sheet.list().lines;
      // They stand between the hours and the noon generator.
      const std::vector<LineRecord> strokes(all.begin() + static_cast<std::ptrdiff_t>(before) - 1,
                                            all.end() - 1);
      std::vector<double> hours;
      dial.expectSuns(
          strokes,
          [&](const LineRecord&, double H, double d) {
            if (hours.empty() || std::abs(hours.back() - H) > 0.1) hours.push_back(H);
            return toWhole(H, pi / 12) + d - rad(10);
          },
          1);
      std::size_t lit = 0;
      for (int t = -8; t <= 8; ++t)
        lit += dial.model.shadow(sky::sun(rad(wall.latitude), rad(15 * t), rad(10))).has_value();
      EXPECT_EQ(hours.size(), lit);
      EXPECT_TRUE(dial.linesIn(rgb(255, 127, 39)).empty());
    }
  }
}

TEST(CylindricalDial, TheFreeLineKeepsToTheWindow) {
  Cylinder dial;
  dial.set(Field::txtLineofdeclination, "5.5").set(Field::x1txt, "-.1").set(Field::y1txt, "-.1");
  dial.run();
  const auto lines = dial.linesOf("5.5");
  ASSERT_GT(lines.size(), 50u);
  for (const LineRecord& line : lines) {
    EXPECT_EQ(line.colour, rgb(255, 127, 39));
    EXPECT_GT(line.x1, -0.1);
    EXPECT_LT(-line.y1, -0.1);
  }
  dial.expectSuns(
      lines, [](const LineRecord&, double, double d) { return d - rad(5.5); }, 3);
}

TEST(CylindricalDial, TheLegendTellsTheTriangle) {
  Cylinder dial;
  dial.curves({Field::Ck_Section, Field::chkOreAstronomiche});
  EXPECT_EQ(dial.told(),
            "O|x|y|  G||O general origin of coordinates = G ||T R I A N G L E |"
            "Style: hypotenuse 0.30131|Perpendicular style0.2|radius 0.4|small radius  0.02|"
            "N is a point of the generator on the noon line (cyan)|"
            "C centre of the section: origin of coordinates |"
            "N Coordinates on the section 0.15093 -0.37043|"
            "M(white) is the generator aligned with the center of the cylinder|"
            "Arc between the foot G e M |Arc GM = r*d -0.10172|"
            "Arc between the generators N and M 0.15477|G coincides with O |"
            "x1 0|x2 0|y1 0.2|y2 -1||North|d| C | G |");
}

// --- Input that can't be drawn

TEST(CylindricalDial, ASouthernLatitudeIsRefused) {
  DialCase dial(Item::mnuCCs, QuadranteCilindricoSferico);
  dial.set(Field::txtLAT, "-0.1").run();
  EXPECT_TRUE(dial.refused);
  EXPECT_EQ(dial.messages,
            std::vector<std::string>{"Sorry, unable to work in the Southern hemisphere "});
  EXPECT_EQ(dial.entities(), 0u);
  EXPECT_FALSE(dial.busy);
}

TEST(CylindricalDial, OddInputEndsWithoutFaultsInTheDrawing) {
  using Texts = std::vector<const char*>;
  const std::pair<Field, Texts> inputs[] = {{Field::txtLAT, {"0", "90", "23.445"}},
                                            {Field::txtDecl, {"90", "-90", "1e300"}},
                                            {Field::TxtRadius, {"0", "-1", "1e300", "abc"}},
                                            {Field::TxtStilo, {"0", "-.4", "1e300"}},
                                            {Field::TxtHour, {"-2", "1e9"}},
                                            {Field::TxtFuso, {"1e300"}},
                                            {Field::txtLON, {"1e300"}},
                                            {Field::txtLineofdeclination, {"90", "x"}}};
  for (const auto& [field, texts] : inputs) {
    for (const char* text : texts) {
      for (const Wall& wall : {kWalls[0], kWalls[1]}) {
        SCOPED_TRACE(std::string(rowOf(field).name) + " " + text + " " + name(wall));
        Cylinder dial(wall);
        dial.set(field, text);
        dial.curves({Field::chkOreAstronomiche, Field::ck_Lemniscate, Field::Ck_DayLightCurves,
                     Field::ck_Equinoziale, Field::ck_Orizzonte, Field::ck_Triangolo,
                     Field::ck_Sustilare, Field::ck_Italiche, Field::ckTemp, Field::Ck_Section,
                     Field::ck_Etna});
        for (const LineRecord& l : dial.sheet.list().lines)
          ASSERT_TRUE(std::isfinite(l.x1 + l.y1 + l.x2 + l.y2));
        for (const CircleRecord& c : dial.sheet.list().circles)
          ASSERT_TRUE(std::isfinite(c.x + c.y + c.startAngle + c.endAngle));
      }
    }
  }
}

// --- Quirks

// On a concave dial without hour lines the numerals and the analemma work with the sign that an
// earlier run left: none in a new program, so that all of it falls on the foot.
TEST(CylindricalDial, TheAnalemmaTakesTheSignOfTheRoutineBeforeIt) {
  Cylinder fresh(kWalls[1]);
  fresh.curves({Field::ck_Lemniscate});
  EXPECT_FALSE(fresh.linesOf("Analemmaconcave").empty());
  for (const LineRecord& line : fresh.linesOf("Analemmaconcave")) EXPECT_EQ(line.x1, 0);

  Cylinder dial(kWalls[0]);
  dial.curves({Field::ck_Lemniscate});
  dial.sheet.Clear();
  dial.panel.setState(Field::Optconcave, true);
  dial.run();
  EXPECT_GT(dial.linesOf("Analemmaconvex").size(), 100u);
}

}  // namespace
}  // namespace dialwright
