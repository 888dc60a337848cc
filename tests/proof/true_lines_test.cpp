// What true shadows keep of lines and numerals: straight lines in as few strokes as they need, the
// place's own azimuth, names and edges that follow the sun.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "dials/bifilar/catenaria.hpp"
#include "dials/cornice/cornice_piana.hpp"
#include "dials/cylindrical/tridimensionale.hpp"
#include "dials/flat/frinter.hpp"
#include "dials/flat/universale.hpp"
#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

// Each line of the horizon's hours is one stroke. Where hours pass the style's centre a stroke is
// parted there, without a gap.
TEST(TrueLines, StraightLinesAreWhole) {
  ProvenDial hours(Item::M_Frinter, DisegnaFrinter, {Field::ck_Italiche, Field::ck_babiloniche});
  hours.prove(true);
  EXPECT_GT(hours.total().strokes, 20u);
  EXPECT_LE(hours.total().strokes, 30u);

  ProvenDial north(Item::M_Frinter, DisegnaFrinter, {Field::chkOreAstronomiche});
  north.set(Field::txtDecl, "144").set(Field::txtLAT, "42").set(Field::TxtHour, "1");
  north.prove(true);
  const double style = north.params.Stilo, D = proof::radians(144), F = proof::radians(42);
  const Punto centre{-style * std::tan(D), style * std::tan(F) / std::cos(D)};
  std::size_t ends = 0;
  for (const ProvenStroke& s : north.strokes) {
    for (const Punto end : {s.from, s.to})
      ends += std::hypot(end.x - centre.x, end.y - centre.y) < 1e-6;
  }
  EXPECT_GE(ends, 10u);
}

TEST(TrueLines, TheQiblaOfTheEquatorIsThePlacesAzimuth) {
  for (const char* longitude : {"-7.6", "80"}) {
    ProvenDial level(Item::mnuUni, DisegnaUniversale, {Field::CkQibla});
    level.set(Field::txtLAT, "0").set(Field::txtReclinZ, "0").set(Field::txtLON, longitude);
    level.prove(true);
    const double away = proof::radians(-39.81638 - std::stod(longitude));
    const double azimuth = std::atan2(std::sin(away), -std::tan(proof::radians(21.42527)));
    ASSERT_GT(level.strokes.size(), 1000u);
    for (const ProvenStroke& stroke : level.strokes) {
      const proof::Vec sun = level.scene().sky.towards(stroke.meaning.first);
      EXPECT_LT(offStep(std::atan2(-sun.x, -sun.y) - azimuth, 2 * proof::kPi), 1e-6);
    }
  }
}

// On a wall that looks North the solstices' layers keep their days.
TEST(TrueLines, AChainsCurvesKeepTheirNames) {
  ProvenDial chain(Item::mnucatenaria, QuadranteCatenaria, {Field::Ck_DayLightCurves});
  chain.set(Field::txtDecl, "150");
  chain.prove(true);
  const auto summer = [](double, double day) { return std::abs(day - 23.445) < 1e-6; };
  EXPECT_GT(chain.everySun("solstice", summer), 0u);
  EXPECT_EQ(chain.row("solstice°").strokes, 0u);
}

// Each afternoon numeral stands on a dot: none above the border's level for a sun that is down.
TEST(TrueLines, NumeralsOfABorderNeedTheirSun) {
  ProvenDial disc(Item::mnuCorn_flat, DisegnaCornicePianaEst, {Field::ckRomani});
  disc.draw();
  const std::size_t literal = disc.pointsIn(palette(4)).size();
  disc.draw(true);
  const std::vector<PointRecord> dots = disc.pointsIn(palette(4));
  EXPECT_LT(dots.size(), literal);
  EXPECT_GT(dots.size(), 0u);
  for (const PointRecord& dot : dots) EXPECT_GT(dot.y, 0);
}

// The first dot of a line, where the section ends, stays where the last one stood; a true one is at
// the edge.
TEST(TrueLines, TheEdgeOfACylinder) {
  ProvenDial space(Item::M_CILINDRICI, QuadranteCilindrico3D, {Field::chkOreAstronomiche});
  space.set(Field::TxtHour, "1").set(Field::txtDecl, "-90");
  space.draw();
  const double edge = -0.4 * proof::kPi / 2;
  const auto atEdge = [&] {
    std::size_t count = 0;
    for (const ProvenStroke& s : space.strokes) count += std::abs(s.from.x - edge) < 1e-6;
    return count;
  };
  EXPECT_EQ(atEdge(), 0u);
  space.panel.setState(Field::OptConvex, false);
  space.panel.setState(Field::Optconcave, true);
  space.draw(true);
  EXPECT_GT(atEdge(), 0u);
}

}  // namespace
}  // namespace dialwright
