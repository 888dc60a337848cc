// What true shadows change of whole lines: straight ones in as few strokes as they need, and the
// names of days.
#include <gtest/gtest.h>

#include <cmath>

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

// On a wall that looks North the solstices' layers swap their days, where true shadows don't.
TEST(TrueLines, AChainsCurvesSwapTheirNamesOtherwise) {
  ProvenDial chain(Item::mnucatenaria, "Ck_DayLightCurves txtDecl=150");
  chain.draw();
  const LayerId named = chain.sheet.layer("solstice°");
  const auto summer = std::ranges::find(chain.strokes, named, &ProvenStroke::layer);
  ASSERT_NE(summer, chain.strokes.end());
  EXPECT_NEAR(summer->meaning.first.declination, proof::radians(23.445), 1e-6);
}

}  // namespace
}  // namespace dialwright
