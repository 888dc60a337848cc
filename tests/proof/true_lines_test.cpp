// What true shadows keep of lines and numerals: straight lines in as few strokes as they need, the
// place's own azimuth, names and edges that follow the sun.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

// Each line of the horizon's hours is one stroke. Where hours pass the style's centre a stroke is
// parted there, without a gap.
TEST(TrueLines, StraightLinesAreWhole) {
  ProvenDial hours(Item::M_Frinter, "ck_Italiche ck_babiloniche");
  hours.draw(true);
  EXPECT_GT(hours.strokes.size(), 20u);
  EXPECT_LE(hours.strokes.size(), 30u);

  ProvenDial north(Item::M_Frinter, "chkOreAstronomiche txtDecl=144 txtLAT=42 TxtHour=1");
  north.draw(true);
  const double style = north.params.Stilo, D = proof::radians(144), F = proof::radians(42);
  const Punto centre{-style * std::tan(D), style * std::tan(F) / std::cos(D)};
  std::size_t ends = 0;
  for (const ProvenStroke& s : north.strokes) {
    for (const Punto end : {s.from, s.to}) ends += distance(end, centre) < 1e-6;
  }
  EXPECT_GE(ends, 10u);
}

TEST(TrueLines, TheQiblaOfTheEquatorIsThePlacesAzimuth) {
  for (const char* longitude : {"-7.6", "80"}) {
    ProvenDial level(Item::mnuUni, "CkQibla txtLAT=0 txtReclinZ=0");
    level.set(Field::txtLON, longitude);
    level.draw(true);
    const double away = proof::radians(-39.81638 - std::stod(longitude));
    const double azimuth = std::atan2(std::sin(away), -std::tan(proof::radians(21.42527)));
    ASSERT_GT(level.strokes.size(), 1000u);
    for (const ProvenStroke& stroke : level.strokes) {
      const proof::Vec sun = level.scene().sky.towards(stroke.meaning.first);
      EXPECT_LT(offStep(std::atan2(-sun.x, -sun.y) - azimuth, 2 * proof::kPi), 1e-6);
    }
  }
}

// On a wall that looks North the solstices' layers swap their days, but not with true shadows.
TEST(TrueLines, AChainsCurvesKeepTheirNames) {
  ProvenDial chain(Item::mnucatenaria, "Ck_DayLightCurves txtDecl=150");
  for (const bool trueOnly : {false, true}) {
    chain.draw(trueOnly);
    const LayerId summer = chain.sheet.layer(trueOnly ? "solstice" : "solstice°");
    std::size_t count = 0;
    for (const ProvenStroke& stroke : chain.strokes) {
      if (stroke.layer != summer) continue;
      ++count;
      EXPECT_NEAR(stroke.meaning.first.declination, proof::radians(23.445), 1e-6);
    }
    EXPECT_GT(count, 0u);
  }
}

// Each afternoon numeral stands on a dot: none above the border's level for a sun that is down.
TEST(TrueLines, NumeralsOfABorderNeedTheirSun) {
  ProvenDial disc(Item::mnuCorn_flat, "ckRomani");
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
  ProvenDial space(Item::M_CILINDRICI, "chkOreAstronomiche TxtHour=1 txtDecl=-90");
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
