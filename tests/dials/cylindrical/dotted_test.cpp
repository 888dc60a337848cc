// Tests of programs 8, 9 and 11: the cylinder of circular cross-section in dots, by its tangent
// planes, by geometry in space and by projection.
#include "dials/cylindrical/dotted.hpp"

#include "dials/cylindrical/parametrico.hpp"
#include "dials/cylindrical/proiettivo.hpp"
#include "dials/cylindrical/tridimensionale.hpp"
#include "support/dotted_dial.hpp"
#include "support/mean_sun.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

using sky::deg;
using sky::rad;

struct Method {
  Item item;
  Driver driver;
  double hourStep;         // degrees, with whole hours asked for
  int italic, babylonian;  // colours
};
constexpr Method kTangents{Item::M_Param, QuadranteCilindricoParam, 15, 14, 11};
constexpr Method kSpace{Item::M_CILINDRICI, QuadranteCilindrico3D, 15, 8, 3};
constexpr Method kProjection{Item::mnuCircp, QuadranteProiettivo, 7.5, 13, 13};
constexpr Method kMethods[] = {kTangents, kSpace, kProjection};

struct Dial : DottedCylinder {
  explicit Dial(const Method& method, const DottedWall& wall = kDottedWalls[0])
      : DottedCylinder(method.item, method.driver, wall), latitude(rad(wall.latitude)) {
    set(Field::TxtHour, "1").set(Field::TxtFuso, "-1");
  }
  double declination(sky::Spot spot) const { return sky::declinationOf(latitude, sunOf(spot)); }
  double substyleHour() const { return deg(sky::hourAngleOf(latitude, model.tangent.normal)); }
  const double latitude;
};

// Each method on each wall; but projected, a style longer than the radius is a case of its own.
template <class Check>
void onEachWall(Check check) {
  for (const Method& method : kMethods) {
    for (const DottedWall& wall : kDottedWalls) {
      if (method.item == kProjection.item && !wall.convex && wall.style > wall.radius) continue;
      SCOPED_TRACE("program of " + std::string(rowOf(method.item).name));
      check(method, wall);
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(DottedCylinders, DotsOfTheHoursLieInTheirPlanes) {
  onEachWall([](const Method& method, const DottedWall& wall) {
    Dial dial(method, wall);
    std::vector<sky::Vec> hours;
    for (const sky::Vec& hour : planes(hourPlane, wall.latitude, -90, 90, method.hourStep))
      if (std::abs(hour.x) < 1 - 1e-9) hours.push_back(hour);  // noon is the generator
    dial.expectInPlanes(dial.dots({Field::chkOreAstronomiche}, 7), hours, 6);
    dial.expectInPlanes(dial.dots({}, 9), {hourPlane(wall.latitude, 90)}, 0);
  });
}

TEST(DottedCylinders, TheZonesHoursAreThoseOfProgram9Alone) {
  constexpr double kShift = 7.6438 - 15;
  for (const Method& method : kMethods) {
    const bool shifted = method.item == kSpace.item;
    Dial dial(method);
    dial.panel.setState(Field::ck_Etna, true);
    dial.expectInPlanes(dial.dots({Field::chkOreAstronomiche}, 9),
                        {hourPlane(45.7438, shifted ? 90 + kShift : 90)}, 0);
    const auto noon = dial.dots({}, 12);
    EXPECT_EQ(noon.empty(), !shifted);
    dial.expectInPlanes(noon, {hourPlane(45.7438, kShift)}, 1);
  }
}

TEST(DottedCylinders, DotsOfADayShowItsDeclination) {
  onEachWall([](const Method& method, const DottedWall& wall) {
    Dial dial(method, wall);
    dial.expectDay(dial.dots({Field::Ck_DayLightCurves}, 12), 23.445);
    dial.expectDay(dial.dots({}, 13), 20.1552);
    dial.expectDay(dial.dots({}, 11), 11.4746);
    Dial equinox(method, wall);
    equinox.expectDay(equinox.dots({Field::ck_Equinoziale}, 9), 0);
  });
}

// The conic that they touch is that of the sun that grazes the horizon.
TEST(DottedCylinders, DotsOfItalicAndBabylonianHoursLieInTurnedHorizons) {
  onEachWall([](const Method& method, const DottedWall& wall) {
    for (const auto& [box, colour, first] :
         {std::tuple{Field::ck_Italiche, method.italic, -180.0},
          std::tuple{Field::ck_babiloniche, method.babylonian, 0.0}}) {
      Dial dial(method, wall);
      std::vector<sky::Spot> lines, conic;
      for (const sky::Spot spot : dial.dots({box}, colour)) {
        const bool grazing =
            std::abs(std::sin(dial.declination(spot))) > std::cos(dial.latitude) - 1e-8;
        (grazing ? conic : lines).push_back(spot);
      }
      dial.expectInPlanes(lines, planes(turnedHorizon, wall.latitude, first, first + 180, 15), 3);
      if (method.item == kProjection.item) dial.expectDay(conic, 90 - wall.latitude);
      if (method.item == kTangents.item && box == Field::ck_Italiche)
        dial.expectDay(dial.dots({}, 11), 90 - wall.latitude);
    }
  });
}

TEST(DottedCylinders, TheSubstyleIsTheHourOfTheWallsNormal) {
  onEachWall([](const Method& method, const DottedWall& wall) {
    Dial dial(method, wall);
    const auto spots = dial.dots({Field::ck_Sustilare}, 9);
    if (wall.declination == 0 && method.item != kSpace.item) {
      EXPECT_TRUE(spots.empty()) << "it is the noon generator";
    } else {
      dial.expectInPlanes(spots, {hourPlane(wall.latitude, dial.substyleHour())}, 0);
    }
  });
}

// Program 9 has those of whole hours, program 11 that of noon.
TEST(DottedCylinders, AnalemmasAreTheMeanSunOfTheZone) {
  for (const auto& [method, colour, first, last, least] :
       {std::tuple{kSpace, 2, 6, 18, 1500u}, std::tuple{kProjection, 4, 12, 12, 366u}}) {
    for (const DottedWall& wall : {kDottedWalls[0], kDottedWalls[1]}) {
      Dial dial(method, wall);
      const auto spots = dial.dots({Field::ck_Lemniscate}, colour);
      EXPECT_GE(spots.size(), least);
      for (const sky::Spot spot : spots) {
        const sky::Vec sun = dial.sunOf(spot);
        const double zone = sky::hourAngleOf(dial.latitude, sun) + rad(15 - 7.6438);
        double seconds = 1e9;
        for (int hour = first; hour <= last; ++hour)
          seconds = std::min(seconds, sky::secondsFromEquationOfTime(zone - rad(15.0 * (hour - 12)),
                                                                     dial.declination(spot)));
        ASSERT_LT(seconds, 25) << spot.x << ' ' << spot.y;
        if (spot.y > 0) continue;
        const auto shadow = dial.model.shadow(sun);
        ASSERT_TRUE(shadow);
        ASSERT_LT(sky::distance(*shadow, spot), 1e-8 * (1 - spot.y)) << "not behind the surface";
      }
    }
  }
}

// --- What a run draws, and in which order

TEST(DottedCylinders, ARunDrawsItsFamiliesInOrder) {
  const std::tuple<Method, std::vector<Rgb>, int, const char*> cases[] = {
      {kTangents, palettes({9, 7, 12, 13, 11, 14}), 9,
       "Cylindrical sundial of circular cross-section as a set of points : parametric method"},
      {kSpace, palettes({7, 12, 9, 13, 11, 2, 8, 3}), 4,
       "Cylindrical sundial of circular cross-section : 3D method"},
      {kProjection, palettes({9, 7, 12, 13, 11, 4}), 4,
       "Cylindrical sundial of circular cross-section : projective method"}};
  for (const auto& [method, points, noonColour, caption] : cases) {
    SCOPED_TRACE(caption);
    Dial dial(method);
    for (const Field box :
         {Field::chkOreAstronomiche, Field::Ck_DayLightCurves, Field::ck_Lemniscate,
          Field::ck_Equinoziale, Field::ck_Italiche, Field::ck_babiloniche, Field::ck_Orizzonte,
          Field::ck_Sustilare, Field::ck_Triangolo, Field::Ck_Section})
      dial.panel.setState(box, true);
    dial.run();
    EXPECT_EQ(dial.sheet.caption(), caption);
    EXPECT_EQ(dial.messages,
              std::vector<std::string>{"Modify the definition if the graph is not well visible"});
    EXPECT_FALSE(dial.busy);
    std::vector<Rgb> drawn;  // by first appearance
    for (const Rgb ink : inks(dial.sheet.list().points))
      if (std::find(drawn.begin(), drawn.end(), ink) == drawn.end()) drawn.push_back(ink);
    EXPECT_EQ(drawn, points);
    EXPECT_EQ(inks(dial.sheet.list().lines),
              palettes({15, noonColour, 2, 9, 11, 13, 15, 8, 6, 11, 13}));
    const auto noon = dial.linesIn(palette(noonColour));
    EXPECT_NEAR(noon[0].x1, dial.model.shadow(sky::sun(dial.latitude, 0, 0))->x, 1e-9);
  }
}

TEST(DottedCylinders, TheFootIsACircleOrTwoRows) {
  for (const Method& method : kMethods) {
    Dial dial(method);
    dial.run();
    const auto& points = dial.sheet.list().points;
    const auto& circles = dial.sheet.list().circles;
    EXPECT_EQ(points.back().colour, palette(12));
    EXPECT_EQ(points.back().x, 0);
    if (method.item == kTangents.item) {
      EXPECT_TRUE(circles.empty());
      EXPECT_EQ(points.front().x, -0.01);
      EXPECT_NEAR(points[points.size() - 2].x, 0.01, 1e-12);
      EXPECT_EQ(points.size(), 403u);
    } else {
      ASSERT_EQ(circles.size(), 1u);
      EXPECT_EQ(circles[0].colour, palette(13));
      EXPECT_EQ(points.size(), 1u);
    }
  }
}

// --- Input that can't be drawn

TEST(DottedCylinders, TheSouthIsRefusedAndByProgram8TheEquator) {
  constexpr const char* kSouth = "Sorry, unable to work in the Southern hemisphere ";
  constexpr const char* kNotice = "Modify the definition if the graph is not well visible";
  using Messages = std::vector<std::string>;
  const std::tuple<Method, const char*, Messages> cases[] = {
      {kTangents, "-0.1", {kSouth}},
      {kTangents, "0", {"Sorry, unable to work at the equator "}},
      {kSpace, "-0.1", {kNotice, kSouth}},
      {kProjection, "-0.1", {kNotice, kSouth}}};
  for (const auto& [method, latitude, messages] : cases) {
    Dial dial(method);
    dial.set(Field::txtLAT, latitude).run();
    EXPECT_TRUE(dial.refused);
    EXPECT_EQ(dial.messages, messages);
    EXPECT_EQ(dial.entities(), 0u);
  }
}

TEST(DottedCylinders, TakeAnyInput) {
  for (const Method& method : kMethods) {
    expectBounded(method.item, method.driver,
                  {Field::ck_Lemniscate, Field::ck_Sustilare, Field::ck_Italiche,
                   Field::ck_babiloniche, Field::ck_Triangolo, Field::Ck_Section},
                  {Field::txtLAT, Field::txtDecl, Field::TxtRadius, Field::TxtStilo, Field::TxtHour,
                   Field::txt_Definition, Field::TxtFuso});
    for (const char* definition : {"0", "-5"}) {
      Dial dial(method);
      dial.dots({Field::chkOreAstronomiche, Field::Ck_DayLightCurves}, 7);
      dial.messages.clear();
      dial.set(Field::txt_Definition, definition);
      EXPECT_TRUE(dial.dots({}, 7).empty());
      EXPECT_EQ(dial.messages.size(), 2u) << "the notice, and a word for what is left out";
    }
  }
}

// --- Quirks

// At noon program 9's ordinate has no value and keeps that of the dot before: the red dots are a
// level row, and the noon line is the generator of colour 4.
TEST(DottedCylinders, NoonsOwnDotsOfProgram9AreALevelRow) {
  Dial dial(kSpace);
  const auto row = dial.dots({Field::chkOreAstronomiche}, 12);
  const auto before = dial.dots({}, 7);
  EXPECT_EQ(row.size(), 80u);
  for (const sky::Spot spot : row) EXPECT_EQ(spot.y, row[0].y);
  EXPECT_TRUE(std::any_of(before.begin(), before.end(),
                          [&](sky::Spot spot) { return spot.y == row[0].y; }));
}

// Inside, from a tip beyond the axis, rays that meet the half of the cylinder behind the axis come
// out on the near half of the same abscissa.
TEST(DottedCylinders, ProjectedFromBeyondTheAxisTheFarHalfLiesOnTheNearOne) {
  const DottedWall wall{45.7438, -14.57, 0.4, 0.6, false};
  Dial dial(kProjection, wall);
  const auto hours = planes(hourPlane, wall.latitude, -90, 90, 7.5);
  const auto miss = [&](sky::Spot spot) {
    const sky::Vec sun = dial.sunOf(spot);
    double least = 2;
    for (const sky::Vec& plane : hours) least = std::min(least, std::abs(sky::dot(plane, sun)));
    return least;
  };
  std::size_t far = 0;
  for (const sky::Spot spot : dial.dots({Field::chkOreAstronomiche}, 7)) {
    if (miss(spot) < Dial::kMiss) continue;
    ++far;
    ASSERT_LT(miss({std::copysign(std::numbers::pi * wall.radius, spot.x) - spot.x, spot.y}), 1e-7);
  }
  EXPECT_GT(far, 100u);
}

}  // namespace
}  // namespace dialwright
