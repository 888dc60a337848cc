// Scenes and their judge: what is lit, what is off and by how much, and the counts of a list.
#include "proof/judge.hpp"

#include <gtest/gtest.h>

#include "support/proven_dial.hpp"

namespace dialwright::proof {
namespace {

const double kNoon = 0, kWinter = radians(-23.4), kSummer = radians(23.4);

// A style of 0.2 m on a wall that faces South. Its tip's shadow: the sun's direction (east, north,
// up) scaled so that it spans the style's length.
Scene styleOnWall() {
  Scene scene;
  scene.sky = Sky(radians(45));
  scene.surface = std::make_shared<Plane>(Plane::facing(0, 0));
  scene.casters = {{CurveFamily::None, {std::make_shared<Tip>(Vec{0, -0.2, 0})}}};
  return scene;
}
Punto shadowOfStyle(const Sun& sun) {
  const Vec s = Sky(radians(45)).towards(sun);
  return {0.2 * s.x / s.y, 0.2 * s.z / s.y};
}

TEST(Scene, KnowsTheShadowAndHowFarAPointIsOff) {
  const Scene scene = styleOnWall();
  for (const double H : {-1.0, 0.0, 0.7}) {
    for (const double day : {kWinter, 0.0, kSummer}) {
      const Punto shadow = shadowOfStyle({H, day});
      const Judgement on = scene.judge(shadow, CurveFamily::Hours, Sun{H, day});
      EXPECT_TRUE(on.lit);
      EXPECT_LT(on.miss, 1e-12);
      EXPECT_EQ(on.minutes, 0);
      const Judgement off =
          scene.judge({shadow.x + 0.003, shadow.y - 0.004}, CurveFamily::Hours, Sun{H, day});
      EXPECT_TRUE(off.lit);
      EXPECT_NEAR(off.miss, 0.005, 1e-12);
      EXPECT_NEAR(off.shadow.x, shadow.x, 1e-12);
      const Punto later = shadowOfStyle({H + kPi / 720, day});
      EXPECT_NEAR(off.minutes, 0.005 / std::hypot(later.x - shadow.x, later.y - shadow.y), 0.002);
    }
  }
}

TEST(Scene, KnowsNightAndTheBackOfTheWall) {
  const Scene scene = styleOnWall();
  EXPECT_FALSE(scene.judge({}, CurveFamily::Hours, Sun{radians(100), kWinter}).lit) << "night";
  EXPECT_FALSE(scene.judge({}, CurveFamily::Hours, Sun{radians(100), kSummer}).lit) << "behind";
  EXPECT_EQ(scene.judge({}, CurveFamily::Hours, Sun{radians(100), kSummer}).miss, HUGE_VAL);
  EXPECT_TRUE(scene.judge({}, CurveFamily::Hours, Sun{radians(60), kSummer}).lit);
  // Six o'clock of the equinox grazes both the horizon and the wall.
  EXPECT_TRUE(scene.judge({}, CurveFamily::Hours, Sun{kPi / 2, 0}).lit);
}

TEST(Scene, TakesWhatASunLeavesOpenFromThePoint) {
  const Sun sun{0.6, 0.2};
  const Punto shadow = shadowOfStyle(sun);
  const Scene scene = styleOnWall();
  EXPECT_LT(scene.judge(shadow, CurveFamily::Hours, Sun{0.6, Sun::kOpen}).miss, 1e-12);
  EXPECT_LT(scene.judge(shadow, CurveFamily::Hours, Sun{Sun::kOpen, 0.2}).miss, 1e-12);
  EXPECT_GT(scene.judge(shadow, CurveFamily::Hours, Sun{0.61, Sun::kOpen}).miss, 0.001);
  EXPECT_GT(scene.judge(shadow, CurveFamily::Hours, Sun{Sun::kOpen, 0.21}).miss, 0.001);
  // Above the horizon line only suns below the horizon throw a shadow.
  EXPECT_FALSE(scene.judge({0, 0.1}, CurveFamily::Hours, Sun{kNoon, Sun::kOpen}).lit);
}

// A cone that doesn't narrow, a border beside it, a surface without a size.
TEST(Scene, IsNoneOfSenselessFields) {
  for (const auto& [dial, settings] : {std::pair{Item::mnuCorncon, "TxtStilo=.5"},
                                       {Item::mnuCorncon, "TxtStilo=.6"},
                                       {Item::mnuCorncon, "TxtRadius=0"},
                                       {Item::mnuCorncon, "txt_R2=0"},
                                       {Item::mnuCorncon, "txt_R2=.6"},
                                       {Item::mnuCorncon, "txtD1=0"},
                                       {Item::mnuCorncil, "TxtRadius=0"},
                                       {Item::mnuCorn_flat, "TxtRadius=0"},
                                       {Item::mnuCorn_flat2, "TxtRadius=0"},
                                       {Item::mnuDia, "TxtRadius=0"}})
    EXPECT_FALSE(sceneOf(ProvenDial(dial, settings).panel)) << settings;
}

// --- The judge

Meaning meaning(const Sun& a, const Sun& b) { return {CurveFamily::Marks, a, b}; }

TEST(SceneJudge, LetsPassWhatLiesWithin) {
  SceneJudge judge(styleOnWall());
  const Punto shadow = shadowOfStyle({0.3, 0.1});
  EXPECT_TRUE(judge.isShadow(shadow, CurveFamily::Hours, {0.3, 0.1}));
  EXPECT_TRUE(judge.isShadow({shadow.x + 0.00004, shadow.y}, CurveFamily::Hours, {0.3, 0.1}));
  EXPECT_FALSE(judge.isShadow({shadow.x + 0.00006, shadow.y}, CurveFamily::Hours, {0.3, 0.1}));
  EXPECT_FALSE(judge.isShadow(shadow, CurveFamily::Hours, {0.3 + kPi, -0.1})) << "the opposite sun";
  EXPECT_TRUE(SceneJudge(styleOnWall(), 0.01)
                  .isShadow({shadow.x + 0.009, shadow.y}, CurveFamily::Hours, {0.3, 0.1}));
}

TEST(SceneJudge, FollowsAChordToItsMiddle) {
  SceneJudge judge(styleOnWall());
  const auto track = [&](const Sun& a, const Sun& b) {
    return judge.isTrack(shadowOfStyle(a), shadowOfStyle(b), meaning(a, b));
  };
  EXPECT_TRUE(track({0.3, 0.1}, {0.31, 0.1}));
  EXPECT_TRUE(track({0.5, kWinter}, {0.5, kSummer})) << "an hour line is straight";
  EXPECT_FALSE(track({-1.2, kWinter}, {1.2, kWinter})) << "across the hyperbola";
  EXPECT_TRUE(track({kPi - 0.01, -1}, {0.01 - kPi, -1})) << "the shorter way round";
  // From one line to another: the middle sun's shadow is elsewhere.
  const Punto a = shadowOfStyle({0.3, kWinter}), b = shadowOfStyle({0.3, kSummer});
  EXPECT_FALSE(judge.isTrack(a, b, meaning({0.3, kWinter}, {0.6, kSummer})));
  EXPECT_TRUE(judge.isTrack(a, b, meaning({0.3, Sun::kOpen}, {0.3, Sun::kOpen})));
}

// --- The proof of a list

TEST(Prove, CountsEachLayerAndMarks) {
  DisplayList list;
  list.keepMeanings(true);
  const LayerId hours = list.layer("ore"), days = list.layer("days");
  const Rgb ink = rgb(1, 2, 3);
  const auto chord = [&](Punto from, Punto to, LayerId layer, const Meaning& meant) {
    list.add(LineRecord{from.x, -from.y, to.x, -to.y, ink, 1, layer});
    if (meant.family != CurveFamily::None) list.meanLine(meant);
  };
  const Sun ten{-0.5, 0.1}, eleven{-0.25, 0.1};
  const Sun tenNext{-0.5, 0.11}, night{2.0, -0.3}, later{2.01, -0.3};
  const Punto a = shadowOfStyle(ten), b = shadowOfStyle(tenNext);
  chord({0, 0}, {1, 1}, hours, {});  // a frame
  chord(a, b, hours, {CurveFamily::Hours, ten, tenNext});
  chord(a, {b.x, b.y + 0.004}, hours, {CurveFamily::Hours, ten, tenNext});
  chord(a, b, days, {CurveFamily::Declinations, night, later});
  chord(a, b, days, {CurveFamily::Declinations, eleven, ten});
  list.add(PointRecord{a.x, -a.y, ink, days});
  list.meanPoint({CurveFamily::Marks, ten, ten});
  list.add(PointRecord{a.x, -a.y, ink, days});  // of no sun
  list.add(PointRecord{a.x, -a.y, ink, days});
  list.meanPoint({CurveFamily::Marks, night, night});

  const Proof proof = prove(list, styleOnWall());
  EXPECT_NEAR(proof.layers.at(0).millimetres, 4, 1e-9);
  EXPECT_GT(proof.layers[0].minutes, 0.5);
  const auto counts = [](const LayerProof& row) {
    return std::tuple(row.layer, row.strokes, row.genuine, row.ghosts, row.strays);
  };
  EXPECT_EQ(counts(proof.layers[0]), std::tuple("ore", 2, 1, 0, 1));
  EXPECT_EQ(counts(proof.layers.at(1)), std::tuple("days", 4, 1, 2, 1));
  EXPECT_EQ(counts(proof.total()), std::tuple("", 6, 2, 2, 2));
  using enum Finding;
  EXPECT_EQ(proof.lines, (std::vector<Finding>{True, True, Stray, Ghost, Stray}));
  EXPECT_EQ(proof.points, (std::vector<Finding>{True, True, Ghost}));

  mark(list, proof);
  EXPECT_EQ(list.lines[1].colour, ink);
  EXPECT_EQ(list.lines[2].colour, rgb(255, 0, 0));
  EXPECT_EQ(list.points[2].colour, rgb(128, 128, 128));
}

}  // namespace
}  // namespace dialwright::proof
