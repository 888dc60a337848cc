// Tests of program 12: the cylinder of circular cross-section by spherical trigonometry.
#include "dials/cylindrical/sferico.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <string>

#include "support/dotted_dial.hpp"
#include "support/mean_sun.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;
using std::numbers::pi;

// Walls that the noon sun's ray through the tip meets.
constexpr DottedWall kNoonWalls[] = {
    kDottedWalls[0], kDottedWalls[1], {60, 25, 0.3, 0.25, true}, kDottedWalls[5]};

class Cylinder : public DottedCylinder {
 public:
  explicit Cylinder(const DottedWall& wall = kDottedWalls[0])
      : DottedCylinder(Item::mnuCCs, QuadranteCilindricoSferico, wall) {}

  // The lines of the checked families alone: without the frame, which a bare run draws.
  std::vector<LineRecord> curves(std::initializer_list<Field> boxes, std::string_view layer = "0") {
    for (const Field box : boxes) panel.setState(box, true);
    // A window that holds nothing keeps the free line away.
    set(Field::x1txt, "0").set(Field::x2txt, "0").run();
    std::vector<LineRecord> lines = linesOf(layer);
    std::erase_if(lines, [](const LineRecord& l) {
      return l.x1 == l.x2 && (l.y1 == -l.y2 || 2 * l.y1 == -l.y2);  // a generator
    });
    return lines;
  }

  // The hour angle and the declination of a spot's sun, whose shadow must fall there: up to whole
  // turns of the circumference.
  std::pair<double, double> sunAt(sky::Spot spot) const {
    const sky::Vec sun = model.sunOf(spot);
    if (spot.y < -1e-6) {
      const auto shadow = model.shadow(sun);
      EXPECT_TRUE(shadow) << spot.x << ' ' << spot.y;
      if (shadow) {
        EXPECT_NEAR(std::remainder(shadow->x - spot.x, 2 * pi * wall_.radius), 0, 1e-8);
        EXPECT_NEAR(shadow->y, spot.y, 1e-8 * (1 + std::abs(spot.y)));
      }
    }
    return {sky::hourAngleOf(rad(wall_.latitude), sun),
            sky::declinationOf(rad(wall_.latitude), sun)};
  }

  // Each end of every nth line shows a sun for which miss(line, hour angle, declination), radians,
  // is nothing.
  template <class Miss>
  std::size_t expectSuns(const std::vector<LineRecord>& lines, Miss miss,
                         std::size_t stride = 7) const {
    for (std::size_t i = 0; i < lines.size(); i += stride) {
      for (const sky::Spot spot :
           {sky::Spot{lines[i].x1, -lines[i].y1}, sky::Spot{lines[i].x2, -lines[i].y2}}) {
        const auto [H, d] = sunAt(spot);
        EXPECT_NEAR(miss(lines[i], H, d), 0, 1e-7)
            << "(" << spot.x << ", " << spot.y << ") shows " << deg(H) << ", " << deg(d);
        if (testing::Test::HasFailure()) return lines.size();
      }
    }
    return lines.size();
  }
};

TEST(CylindricalDial, EachFamilyIsTheShadowOfItsSuns) {
  using Miss = std::function<double(const LineRecord&, double, double)>;
  struct Family {
    Field box;
    const char* layer;
    Miss miss;
  };
  const auto toWhole = [](double x, double unit) { return std::remainder(x, unit); };
  const auto onDay = [](double day) {
    return Miss([day](const LineRecord&, double, double d) { return d - rad(day); });
  };
  std::array<double, 12> drawn{};  // lines of each family on all walls
  for (const DottedWall& wall : kDottedWalls) {
    SCOPED_TRACE(name(wall));
    const auto semiArc = [&](double d) { return sky::semiArc(rad(wall.latitude), d); };
    const double substyle =
        sky::hourAngleOf(rad(wall.latitude), sky::Plane::facing(wall.declination, 0).normal);
    for (const bool zone : {false, true}) {
      const auto hour = [&](const LineRecord& line, double H, double d) {
        if (std::abs(d) > rad(23.5)) return 1.0;
        const double t = H + (zone ? rad(15 - 7.6438) : 0);
        return line.colour == palette(12)  ? t
               : line.colour == palette(9) ? t - pi / 2
                                           : toWhole(t, rad(7.5));
      };
      const Family families[] = {
          {Field::chkOreAstronomiche, "0", hour},
          {Field::Ck_DayLightCurves, "-23.445°", onDay(-23.445)},
          {Field::Ck_DayLightCurves, "-20.15°", onDay(-20.1552)},
          {Field::Ck_DayLightCurves, "-11.47°", onDay(-11.4746)},
          {Field::Ck_DayLightCurves, "23.445°", onDay(23.445)},
          {Field::Ck_DayLightCurves, "20.15°", onDay(20.1552)},
          {Field::Ck_DayLightCurves, "11.47°", onDay(11.4746)},
          {Field::ck_Equinoziale, "0", onDay(0)},
          // The whole hour circle lies in the plane of the style, so the lower half counts too.
          {Field::ck_Sustilare, "0",
           [&](const LineRecord&, double H, double) { return toWhole(H - substyle, pi); }},
          {Field::ck_Italiche, "0",
           [&](const LineRecord&, double H, double d) { return toWhole(H - semiArc(d), pi / 12); }},
          {Field::ck_babiloniche, "0",
           [&](const LineRecord&, double H, double d) { return toWhole(H + semiArc(d), pi / 12); }},
          {Field::ckTemp, "0", [&](const LineRecord&, double H, double d) {
             return toWhole(H / semiArc(d), 1.0 / 6);
           }}};
      std::size_t i = 0;
      for (const Family& family : families) {
        if (zone && family.box != Field::chkOreAstronomiche) break;  // the hours' alone
        SCOPED_TRACE(std::string(rowOf(family.box).name) + " " + family.layer);
        Cylinder dial(wall);
        dial.panel.setState(Field::ck_Etna, zone);
        drawn[i++] += static_cast<double>(
            dial.expectSuns(dial.curves({family.box}, family.layer), family.miss, 23));
        if (testing::Test::HasFailure()) return;
      }
    }
  }
  const decltype(drawn) expected = {353338, 20936, 22015, 23907, 33884, 33422,
                                    31620,  29377, 8898,  80156, 80292, 77937};
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    // A sample on the horizon itself may fall on either side.
    EXPECT_NEAR(drawn[i], expected[i], 20) << "family " << i;
  }
}

TEST(CylindricalDial, TheAnalemmaIsTheZonesNoonOfTheMeanSun) {
  // With the style of 0.3 m segments of 5 mm and more are left out.
  for (const auto& [convex, style, count] :
       {std::tuple{true, 0.2, 446u}, std::tuple{false, 0.2, 446u}, std::tuple{false, 0.3, 358u}}) {
    DottedWall wall = kDottedWalls[0];
    wall.convex = convex;
    wall.style = style;
    Cylinder dial(wall);
    // The sign that the analemma works with is the hour lines'.
    const auto lines = dial.curves({Field::chkOreAstronomiche, Field::ck_Lemniscate},
                                   convex ? "Analemmaconvex" : "Analemmaconcave");
    EXPECT_EQ(lines.size(), count);
    for (const LineRecord& line : lines) {
      const auto [H, d] = dial.sunAt({line.x1, -line.y1});
      ASSERT_LT(sky::secondsFromEquationOfTime(H + rad(15 - 7.6438), d), 25)
          << "at the declination " << deg(d);
    }
  }
}

// --- The frame, from the plan of the cylinder

// The polar style runs from N up to the tip: as long across as the way from the tip to N, rising by
// the latitude.
TEST(CylindricalDial, TheFrameIsThePlaneOfNoon) {
  for (const DottedWall& wall : kNoonWalls) {
    SCOPED_TRACE(name(wall));
    Cylinder dial(wall);
    dial.curves({Field::ck_Orizzonte, Field::ck_Triangolo});
    const auto noonSun = dial.model.shadow(sky::sun(rad(wall.latitude), 0, 0));
    const auto N = dial.linesIn(palette(12)), M = dial.linesIn(kWhite),
               horizon = dial.linesIn(palette(2)), hypotenuse = dial.linesIn(palette(9)),
               style = dial.linesIn(palette(13));
    ASSERT_TRUE(noonSun && N.size() * horizon.size() * hypotenuse.size() * style.size() == 1);
    EXPECT_NEAR(N[0].x1, noonSun->x, 1e-9);
    EXPECT_EQ(N[0].y1, dial.sheet.ShiftY());
    EXPECT_EQ(N[0].y2, -dial.sheet.ShiftY());
    // The generator M has the axis due North of it (outside) or due South.
    EXPECT_NEAR(M[0].x1, (wall.convex ? 1 : -1) * wall.radius * rad(wall.declination), 1e-8);
    EXPECT_EQ(M[0].y2, 2 * dial.sheet.ShiftY());
    EXPECT_EQ(horizon[0].x1, -dial.sheet.ShiftX());
    EXPECT_EQ(horizon[0].y1, 0);
    // The equinox noon sun stands at right angles to the polar style: from its altitude, the way to
    // N.
    const double way = -noonSun->y / std::tan(rad(90 - wall.latitude));
    const LineRecord& h = hypotenuse[0];
    EXPECT_NEAR(h.x1, noonSun->x, 1e-9);
    EXPECT_NEAR(std::abs(h.x2 - h.x1), way, 1e-9);
    EXPECT_NEAR(-h.y1, way * std::tan(rad(wall.latitude)), 1e-9);
    EXPECT_NEAR(dial.params.IpotenusaStilo, way / std::cos(rad(wall.latitude)), 1e-9);
    EXPECT_NEAR(style[0].y2, -wall.style, 1e-12);
  }
  EXPECT_TRUE(Cylinder({45, 90, 0.4, 0.2, true}).curves({Field::ck_Triangolo}).empty());
}

TEST(CylindricalDial, TheSectionIsThePlanToScale) {
  for (const DottedWall& wall : kNoonWalls) {
    SCOPED_TRACE(name(wall));
    Cylinder dial(wall);
    dial.curves({Field::Ck_Section});
    const auto style = dial.linesIn(palette(13)), ray = dial.linesOf("PS");
    ASSERT_EQ(style.size() * ray.size(), 1u);
    const auto& circles = dial.sheet.list().circles;  // the foot's, the slice, the section
    ASSERT_EQ(circles.size(), 3u);
    const CircleRecord &slice = circles[1], &section = circles[2];
    const sky::Spot centre{section.x, section.y};
    const sky::Spot foot{style[0].x1, style[0].y1}, tip{style[0].x2, style[0].y2};
    EXPECT_NEAR(section.radius, wall.radius, 1e-12);
    EXPECT_EQ(foot.x, 0);
    EXPECT_NEAR(sky::distance(foot, centre), wall.radius, 1e-12);
    EXPECT_NEAR(sky::distance(foot, tip), wall.style, 1e-12);
    EXPECT_NEAR(sky::distance(centre, tip), wall.radius + (wall.convex ? 1 : -1) * wall.style,
                1e-12);
    // The meridian through the tip ends on the circle, in N.
    EXPECT_EQ(ray[0].x1, ray[0].x2);
    EXPECT_NEAR(sky::distance({ray[0].x2, ray[0].y2}, centre), wall.radius, 1e-12);
    // The slice spans the declination, from the meridian to the foot.
    const double from = -slice.startAngle, to = -slice.endAngle;
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
  EXPECT_EQ(dial.sheet.caption(),
            "Cylindrical sundial of circular cross-section : Spherical trigonometric method");
  std::vector<Rgb> expected = palettes({15, 7, 12, 7, 12, 13, 11, 12, 13, 11, 9, 0, 12});
  expected[11] = rgb(255, 127, 39);
  EXPECT_EQ(inks(dial.sheet.list().lines), expected);
  ASSERT_EQ(dial.sheet.list().circles.size(), 1u);
  EXPECT_EQ(dial.sheet.list().circles[0].fill, palette(12));
  EXPECT_EQ(dial.pointsIn(palette(12)).size(), 1u);
}

TEST(CylindricalDial, LinesRunBackToThePointBeforeAndEndAtTheTangentGenerators) {
  Cylinder dial;
  const auto lines = dial.curves({Field::chkOreAstronomiche});
  const double edge = 0.4 * std::acos(0.4 / 0.6);
  EXPECT_NEAR(dial.params.ArcoLimite, edge, 1e-9);
  std::size_t joined = 0;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    joined += lines[i].x2 == lines[i - 1].x1 && lines[i].y2 == lines[i - 1].y1;
    EXPECT_LT(std::hypot(lines[i].x1 - lines[i].x2, lines[i].y1 - lines[i].y2), 0.01);
    EXPECT_LT(std::abs(lines[i].x1), edge);
  }
  EXPECT_GT(joined, lines.size() * 9 / 10);
}

TEST(CylindricalDial, NumeralsStandOnTheirHours) {
  for (const DottedWall& wall : {kDottedWalls[0], kDottedWalls[1]}) {
    SCOPED_TRACE(name(wall));
    for (const Field box : {Field::ckArabi, Field::ckRomani}) {
      Cylinder dial(wall);
      // Numerals so small that they are points, and no hour line but that of the night.
      dial.set(Field::txtArabi, "1e-9")
          .set(Field::txtNumbersize, "1e-9")
          .set(Field::txtLineofdeclination, "10")
          .set(Field::TxtHour, "1e-9");
      std::vector<double> hours;
      dial.expectSuns(
          dial.curves({Field::chkOreAstronomiche, box}),
          [&](const LineRecord&, double H, double d) {
            if (hours.empty() || std::abs(hours.back() - H) > 0.1) hours.push_back(H);
            return std::remainder(H, pi / 12) + d - rad(10);
          },
          1);
      std::size_t lit = 0;
      for (int t = -8; t <= 8; ++t)
        lit += dial.model.shadow(sky::sun(rad(wall.latitude), rad(15 * t), rad(10))).has_value();
      EXPECT_EQ(hours.size(), lit);
    }
  }
}

TEST(CylindricalDial, TheFreeLineKeepsToTheWindowAndGivesWayToNumerals) {
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
  dial.sheet.Clear();
  dial.check(Field::ckArabi).run();
  EXPECT_TRUE(dial.linesOf("5.5").empty());
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
  Cylinder dial;
  dial.set(Field::txtLAT, "-0.1").run();
  EXPECT_TRUE(dial.refused);
  EXPECT_EQ(dial.messages,
            std::vector<std::string>{"Sorry, unable to work in the Southern hemisphere "});
  EXPECT_EQ(dial.entities(), 0u);
}

TEST(CylindricalDial, OddInputEndsWithoutFaultsInTheDrawing) {
  for (const Field side : {Field::OptConvex, Field::Optconcave}) {
    expectBounded(Item::mnuCCs, QuadranteCilindricoSferico,
                  {side, Field::ck_Lemniscate, Field::ck_Sustilare, Field::ck_Triangolo,
                   Field::ck_Italiche, Field::ckTemp, Field::Ck_Section, Field::ck_Etna},
                  {Field::txtLAT, Field::txtDecl, Field::TxtRadius, Field::TxtStilo, Field::TxtHour,
                   Field::TxtFuso, Field::txtLON, Field::txtLineofdeclination});
  }
}

// --- Quirks

// On a concave dial without hour lines the numerals and the analemma work with the sign that an
// earlier run left: none in a new program, so that all of it falls on the foot.
TEST(CylindricalDial, TheAnalemmaTakesTheSignOfTheRoutineBeforeIt) {
  Cylinder fresh(kDottedWalls[1]);
  fresh.curves({Field::ck_Lemniscate});
  const auto onFoot = fresh.linesOf("Analemmaconcave");
  EXPECT_FALSE(onFoot.empty());
  for (const LineRecord& line : onFoot) EXPECT_EQ(line.x1, 0);

  Cylinder dial(kDottedWalls[0]);
  dial.curves({Field::ck_Lemniscate});
  dial.sheet.Clear();
  dial.panel.setState(Field::Optconcave, true);
  dial.run();
  EXPECT_GT(dial.linesOf("Analemmaconvex").size(), 100u);
}

}  // namespace
}  // namespace dialwright
