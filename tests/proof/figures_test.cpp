// What no sun stands for: the figures of styles, frames and numerals, against the scenes' space.
#include <gtest/gtest.h>

#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using proof::degrees;
using proof::radians;
using proof::Vec;

std::vector<LineRecord> linesOf(ProvenDial& dial, int colour, bool upright) {
  std::vector<LineRecord> lines = dial.linesIn(palette(colour));
  std::erase_if(lines, [=](const LineRecord& l) { return (l.x1 == l.x2) != upright; });
  return lines;
}

// In one piece, inside the window, and on the shadow of the pole.
TEST(Figures, StyleAndSubstyleOfAPlane) {
  for (const char* latitude : {"txtLAT=0", "txtLAT=45", "txtLAT=70"}) {
    for (const char* declination : {"txtDecl=-160", "txtDecl=-90", "txtDecl=0", "txtDecl=35"}) {
      for (const char* reclination : {"txtReclinZ=140", "txtReclinZ=90", "txtReclinZ=70",
                                      "txtReclinZ=45", "txtReclinZ=20", "txtReclinZ=-10"}) {
        ProvenDial dial(Item::mnuUni, "ck_Triangolo");
        dial.with(latitude).with(declination).with(reclination).prove(true);
        EXPECT_LE(dial.linesOf("assostilo").size(), 1u);
        const Vec pole = dial.scene().sky.pole();
        const auto* plane = dynamic_cast<const proof::Plane*>(dial.scene().surface.get());
        for (const char* layer : {"assostilo", "sottostilo"}) {
          for (const LineRecord& l : dial.linesOf(layer)) {
            for (const Punto end : {Punto{l.x1, -l.y1}, Punto{l.x2, -l.y2}}) {
              EXPECT_TRUE(std::abs(end.x) < 0.5 + 1e-9 && std::abs(end.y + 0.4) < 0.6 + 1e-9);
              const double beside =
                  end.x * dot(pole, plane->up()) - end.y * dot(pole, plane->right());
              EXPECT_TRUE(layer[0] == 'a' || std::abs(beside) < 1e-8) << beside;
            }
          }
        }
      }
    }
  }
}

// Upright on a wall that looks South; short of a centre that is out of reach.
TEST(Figures, StylesOfSouthWalls) {
  for (const auto& [dial, colour] : {std::pair{Item::M_Light, 3},
                                     {Item::M_Inclinati, 9},
                                     {Item::M_Proiettivo, 9},
                                     {Item::mnuVertSph, 12},
                                     {Item::mnuUni, 15}}) {
    ProvenDial south(dial, "txtDecl=0 ck_Sustilare ck_Triangolo");
    south.prove(true);
    std::size_t below = 0;
    for (const PointRecord& p : south.pointsIn(palette(colour))) below += p.x == 0 && p.y > 0.1;
    for (const LineRecord& l : linesOf(south, colour, true))
      below += l.x1 == 0 && std::max(l.y1, l.y2) > 0.1;
    EXPECT_GT(below, 0u) << rowOf(dial).name;
  }
  ProvenDial side(Item::mnuVertSph, "txtDecl=90 CkConic ck_Triangolo");
  side.prove(true);
  for (const LineRecord& line : side.sheet.list().lines) EXPECT_LT(std::abs(line.y2), 10);
}

// The polar style runs from N up to the tip: as long across as the way from the tip to N, rising by
// the latitude. The equinox's noon sun stands square to it.
TEST(Figures, TheFrameOfACylinderIsThePlaneOfNoon) {
  for (const auto& [item, noonColour] : {std::pair{Item::M_Param, 9},
                                         {Item::M_CILINDRICI, 4},
                                         {Item::mnuCircp, 4},
                                         {Item::mnuCCs, 12}}) {
    for (const char* wall : {"OptConvex TxtRadius=.4", "Optconcave TxtRadius=.4",
                             "OptConvex TxtRadius=.3 txtLAT=60 txtDecl=25 TxtStilo=.25"}) {
      SCOPED_TRACE(testing::Message() << rowOf(item).name << ' ' << wall);
      ProvenDial dial(item, "ck_Triangolo txtDecl=-14.57");
      dial.with(wall).prove();
      const auto tip = dial.scene().casters.front().all.front()->nearest({}, {});
      const Punto noon = *dial.scene().surface->shadow(*tip, dial.scene().sky.towards({0, 0}));
      const double rise = std::tan(radians(dial.panel.number(Field::txtLAT))), way = -noon.y * rise;
      const auto upright = linesOf(dial, noonColour, true), slope = linesOf(dial, 9, false);
      const auto style = dial.linesIn(palette(13));
      ASSERT_EQ(upright.size() + slope.size() + style.size(), 3u);
      EXPECT_NEAR(upright[0].x1, noon.x, 1e-9);
      EXPECT_NEAR(slope[0].x1, noon.x, 1e-9);
      EXPECT_NEAR(std::abs(slope[0].x2 - slope[0].x1), way, 1e-9);
      EXPECT_NEAR(-slope[0].y1, way * rise, 1e-9);
      EXPECT_NEAR(style[0].y2, -dial.panel.number(Field::TxtStilo), 1e-12);
    }
  }
}

TEST(Figures, TheParabolasGeneratorsAreNoonAndTheVertex) {
  for (const char* wall : {"OptConvex TxtRadius=.4", "Optconcave TxtRadius=.4",
                           "OptConvex TxtRadius=.3 txtLAT=60 txtDecl=25"}) {
    ProvenDial dial(Item::M_Parabolico, wall);
    const proof::Scene& scene = dial.prove().scene();
    const auto tip = scene.casters.front().all.front()->nearest({}, {});
    const auto noon = dial.linesIn(palette(4)), vertex = dial.linesIn(palette(1));
    ASSERT_EQ(noon.size() + vertex.size(), 2u);
    EXPECT_NEAR(noon[0].x1, scene.surface->shadow(*tip, scene.sky.towards({0, 0}))->x, 1e-8);
    EXPECT_NEAR(scene.surface->place({vertex[0].x1, 0})->normal.y, -1, 1e-12);
  }
}

// One degree for a degree of the sun about the centre; the horizon is where the rising and the
// setting sun throw the crossing of the wires.
TEST(Figures, HoursOfEqualAnglesAndTheirHorizon) {
  for (const char* wall :
       {"txtDecl=-14.57", "txtLAT=62 txtDecl=37", "txtLAT=8 txtDecl=10", "txtDecl=120"}) {
    ProvenDial dial(Item::mnuBifvert, "chkOreAstronomiche ck_Orizzonte");
    dial.with(wall).prove();
    const proof::Scene& scene = dial.scene();
    const double sense = std::abs(dial.panel.number(Field::txtDecl)) > 90 ? -1 : 1;
    const CircleRecord centre = dial.sheet.list().circles.at(0);
    std::optional<double> zero;
    for (const ProvenStroke& stroke : dial.strokes) {
      if (stroke.layer != dial.sheet.layer("oreemezze")) continue;
      const double turn = degrees(std::atan2(-stroke.from.y - centre.y, stroke.from.x - centre.x) +
                                  sense * stroke.meaning.first.hourAngle);
      ASSERT_LT(offStep(turn - zero.value_or(turn), 180), 1e-4);
      zero = zero.value_or(turn);
    }
    EXPECT_TRUE(zero);
    const std::vector<LineRecord> horizon = dial.linesOf("Hor");
    const double slope = horizon.at(0).y1 / horizon[0].x1;
    for (const double day : {radians(-20), radians(-5), radians(10)}) {
      for (const double rising : {-scene.sky.semiArc(day), scene.sky.semiArc(day)}) {
        const proof::Judgement there = scene.judge({}, CurveFamily::None, Sun{rising, day});
        if (!(there.miss < 5)) continue;
        EXPECT_NEAR(-there.shadow.y, slope * there.shadow.x, 1e-7);
      }
    }
  }
}

// Numerals carry no sun; true ones stand where theirs throws the shadow.
TEST(Figures, NumeralsStandInTheLight) {
  for (const auto& [item, settings] :
       {std::pair{Item::mnuCCs, "OptConvex TxtRadius=.4 ckArabi"},
        {Item::mnuCCs, "Optconcave TxtRadius=.4 ckArabi"},
        {Item::mnuChapeau, "ckArabi"},
        {Item::mnuFontana_H3, "ckRomani ckFunction"},
        {Item::mnuCorn_flat, "ckRomani ckFunction Ck_DayLightCurves"},
        {Item::mnucatenaria, "ckRomani ckFunction txtDecl=30"}}) {
    for (const bool trueOnly : {false, true}) {
      SCOPED_TRACE(testing::Message() << rowOf(item).name << ' ' << settings << ' ' << trueOnly);
      ProvenDial dial(item, "chkOreAstronomiche txtLineofdeclination=-20 TxtHour=1");
      const std::vector<Punto> places = dial.with(settings).numerals(trueOnly);
      std::size_t lit = 0;
      for (const Punto spot : places) {
        for (double t = -105; t <= 105; t += 15) {
          const auto there =
              dial.scene().judge(spot, CurveFamily::None, Sun{radians(t), radians(-20)});
          lit += there.lit && there.miss < 1e-6;
        }
      }
      EXPECT_GT(lit, 4u);
      EXPECT_TRUE(lit == places.size() || !trueOnly);
    }
  }
}

}  // namespace
}  // namespace dialwright
