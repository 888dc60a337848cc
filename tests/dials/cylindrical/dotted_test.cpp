// Tests of programs 8, 9 and 11: the cylinder of circular cross-section in dots, by its tangent
// planes, by geometry in space and by projection.
#include "dials/cylindrical/dotted.hpp"

#include <gtest/gtest.h>

#include "dials/cylindrical/parametrico.hpp"
#include "dials/cylindrical/proiettivo.hpp"
#include "dials/cylindrical/tridimensionale.hpp"
#include "dials/cylindrical/wall_case.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

struct Method {
  Item item;
  Driver driver;
};
constexpr Method kTangents{Item::M_Param, QuadranteCilindricoParam};
constexpr Method kSpace{Item::M_CILINDRICI, QuadranteCilindrico3D};
constexpr Method kProjection{Item::mnuCircp, QuadranteProiettivo};
constexpr Method kMethods[] = {kTangents, kSpace, kProjection};

struct Dial : WallCase {
  explicit Dial(const Method& method) : WallCase(method.item, method.driver, kTestWalls[0]) {}
};

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
      dial.boxes({Field::chkOreAstronomiche, Field::Ck_DayLightCurves});
      dial.set(Field::txt_Definition, definition).run();
      EXPECT_TRUE(dial.pointsIn(palette(11)).empty());
      EXPECT_EQ(dial.messages.size(), 2u) << "the notice, and a word for what is left out";
    }
  }
}

}  // namespace
}  // namespace dialwright
