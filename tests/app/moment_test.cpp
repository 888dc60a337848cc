// The shadow of a moment: the sun of a clock's time, what the dial reads by it, and its drawing.
#include "app/moment.hpp"

#include <gtest/gtest.h>

#include "proof/scenes.hpp"

namespace dialwright {
namespace {

Panel universal() {
  Panel panel;
  panel.choose(Item::mnuUni);
  return panel;
}

TEST(Moment, DialTellsLocalTimeOrThatOfTheZone) {
  Panel panel = universal();
  panel.setText(Field::txtLON, "-7.5");
  panel.setText(Field::TxtFuso, "-1");
  EXPECT_NEAR(hourTold(panel, {0, 0}), 12, 1e-12);
  EXPECT_NEAR(hourTold(panel, {-proof::kPi + 1e-6, 0}), 0, 1e-5);
  panel.setState(Field::ck_Etna, true);
  EXPECT_NEAR(hourTold(panel, {0, 0}), 12.5, 1e-12);
}

// The shadow ends where the drawing has the sun of that moment, and there is none at night.
TEST(Moment, ShadowEndsOnTheLinesOfItsSun) {
  const Panel panel = universal();
  const Sun sun = sunAt(panel, {2026, 4, 2, 11});
  const auto shadow = shadowOf(panel, sun);
  ASSERT_EQ(shadow.size(), 1u);
  const auto scene = proof::sceneOf(panel);
  const proof::Judgement end = scene->judge(shadow[0].back(), CurveFamily::Hours, sun);
  EXPECT_TRUE(end.lit);
  EXPECT_LT(end.miss, 1e-9);
  EXPECT_TRUE(shadowOf(panel, sunAt(panel, {2026, 4, 2, 23})).empty());
}

}  // namespace
}  // namespace dialwright
