// The dials of wires and balls beside their shadows: demonstrations, and lines that are no shadows.
#include <gtest/gtest.h>

#include "dials/shadow_model.hpp"
#include "numerics/numbers.hpp"
#include "support/dial_case.hpp"

namespace dialwright {
namespace {

using namespace sky;

constexpr double kLatitude = 45.7438;
const Plane kFloor = Plane::facing(180, 90);  // drawn as it is seen from the North

// --- Demonstrations of a moment: the outline of the shadow, and the edge of the shade on the ball

void expectOutlines(double radius, double height, const Plane& plane, Vec sunwards,
                    const std::vector<PointRecord>& outline,
                    const std::vector<PointRecord>& shade) {
  const auto onPlane = [&](const PointRecord& p) { return p.x * plane.right + (-p.y) * plane.up; };
  EXPECT_GT(outline.size(), 2000u);
  for (const PointRecord& p : outline) {
    EXPECT_NEAR(length(cross(height * plane.normal - onPlane(p), sunwards)), radius, 1e-7)
        << "a ray that grazes the ball";
  }
  EXPECT_GT(shade.size(), 1000u);
  for (const PointRecord& p : shade) {
    const double out = std::sqrt(std::max(0.0, radius * radius - dot(onPlane(p), onPlane(p))));
    // Near the rim the height is the root of a small difference.
    EXPECT_NEAR(dot(onPlane(p) + out * plane.normal, sunwards), 0, out > 0.01 ? 1e-7 : 1e-4);
  }
}

TEST(Demonstrations, PlotTheBallsShadow) {
  const Plane wall = Plane::facing(20, 0);
  const struct {
    int program;
    const char* settings;
    int outline;  // its ink
    const Plane& plane;
    double radius, height, H, d;
  } rows[] = {{16, "ck_Triangolo TxtRadius=.3 TxtStilo=.2 txt_R2=.2 txtAO=32.5 txtDelta=10", 7,
               kFloor, .3, .2, 32.5, 10},
              {22, "ck_Triangolo TxtRadius=.15 txtD1=.1 txtAO=-60 txtDelta=10", 7, kFloor, .15, .1,
               -60, 10},
              // Of noon at the winter solstice, or of the moment that is asked for.
              {26, "txtDecl=20 txtAO=-25 txtDelta=12", 10, wall, .2, 0, 0, -23.445},
              {26, "txtDecl=20 txtAO=-25 txtDelta=12 ckFunction", 10, wall, .2, 0, -25, 12}};
  for (const auto& row : rows) {
    DialCase dial(row.program, "ckRomani ckArabi x1txt=-.9 x2txt=.9 y1txt=.6");
    dial.with(row.settings).run();
    const Vec s = sun(rad(kLatitude), rad(row.H), rad(row.d));
    expectOutlines(row.radius, row.height, row.plane, s, dial.pointsIn(palette(row.outline)),
                   dial.pointsIn(palette(4)));
  }
}

// But with true shadows, which have no ball's oval in the place of the rim's either.
TEST(Demonstrations, TheFountainsPlanTakesTheLatitudeOfTheRunBefore) {
  for (const bool trueOnly : {false, true}) {
    DialCase dial(16, "ck_Triangolo ckRomani ckArabi ckFunction txtAO=32.5 txtDecl=30");
    dial.panel.setState(Field::ckTrue, trueOnly);
    for (const double latitude : {trueOnly ? kLatitude : 0, kLatitude}) {
      dial.sheet.Clear();
      dial.run();
      EXPECT_EQ(dial.sheet.list().points.empty(), trueOnly);
      const CircleRecord centre = dial.sheet.list().circles.at(1);
      const Spot tip = kFloor.tipShadow(0.2, sun(rad(latitude), rad(32.5), rad(23.45)));
      EXPECT_LT(distance({centre.x, -centre.y}, tip), 1e-8);
      // The tangents run along the shadow's way, since base and rim are alike.
      for (const auto& [ink, fromLast] : {std::pair{1, 2}, {10, 1}}) {
        if (trueOnly) continue;
        const LineRecord tangent = dial.linesIn(palette(ink)).end()[-fromLast];
        EXPECT_NEAR(std::abs(tangent.x1 - tangent.x2), std::abs(tip.x), 1e-8);
        EXPECT_NEAR(std::abs(tangent.y1 - tangent.y2), std::abs(tip.y), 1e-8);
      }
    }
    EXPECT_EQ(dial.panel.text(Field::txtDecl), "0");
  }
}

// A base wider than the rim leaves the whole circle.
TEST(Demonstrations, TheFountainsSectionFollowsTheLowerRadius) {
  for (const auto& [lower, end] : {std::pair{0.15, 210.0}, {0.4, 360.0}}) {
    DialCase dial(16, "ck_Triangolo ckRomani ckArabi ckFunction");
    dial.set(Field::txt_R2, textOf(lower)).run();
    EXPECT_NEAR(dial.sheet.list().circles.end()[-2].endAngle, rad(end), 1e-8);
  }
}

// The mark of the style that belongs to the altitude is put by the azimuth, and by the altitude in
// a drawing of true shadows.
TEST(Demonstrations, TheBallMarksTheVirtualStyle) {
  for (const bool trueOnly : {false, true}) {
    DialCase dial(22, "ck_Triangolo TxtRadius=.15 txtD1=.1 txtAO=32.5 txtDelta=10");
    dial.panel.setState(Field::ckTrue, trueOnly);
    dial.run();
    const Vec s = sun(rad(kLatitude), rad(32.5), rad(10));
    const double turned = trueOnly ? std::hypot(s.x, s.y) : s.y / std::hypot(s.x, s.y);
    EXPECT_NEAR(dial.sheet.list().circles.at(2).y, -(0.15 / turned + 2 * 0.15 + 0.1), 1e-8);
  }
}

// --- Lines that are no shadows

// No sun of the equator draws its shadow's end below the line, and one draws it there.
TEST(BallVerticale, StraightEquinoctialTouchesTheCurveAtTheSubstyle) {
  for (const char* site : {"txtDecl=20", "txtDecl=-40", "txtLAT=30 txtDecl=0"}) {
    DialCase dial(26, "ck_Equinoziale");
    dial.with(site).run();
    const std::vector<LineRecord> straight = dial.linesOf("equi");
    ASSERT_GT(straight.size(), 500u);
    const LineRecord &first = straight.front(), &last = straight.back();
    const double slope = (last.y1 - first.y1) / (last.x1 - first.x1);
    double lowest = -1;
    for (const LineRecord& line : dial.linesOf("eq"))
      lowest = std::max(lowest, line.y1 - first.y1 - slope * (line.x1 - first.x1));
    EXPECT_NEAR(lowest, 0, 1e-5);
  }
}

// --- Wires

// It has no scale: wire and chain cross at the level of the hanging points.
TEST(Catenaria, WithoutSagAllLinesAreLevel) {
  DialCase dial(18, "txtV1= chkOreAstronomiche ckRomani ckArabi");
  dial.run();
  EXPECT_GT(dial.linesOf("0").size(), 100u);
  for (const LineRecord& line : dial.linesOf("0")) EXPECT_EQ(line.y1, 0);
}

// Each stands at its distance from its middle line.
TEST(Equiangolare, WiresAreTurnedIntoTheWall) {
  DialCase dial(17, "ck_Triangolo");
  const std::vector<LineRecord> wires = dial.run().linesOf("0");
  ASSERT_EQ(wires.size(), 9u);
  // The world's axis stands out of the wall by this sine.
  const double b = 0.2 * std::cos(rad(kLatitude)) * std::cos(rad(-14.57));
  for (const auto& [i, length] : {std::pair{1, 0.2}, {3, 0.2}, {6, b}, {7, b}})
    EXPECT_NEAR(distance({wires[i].x1, wires[i].y1}, {wires[i].x2, wires[i].y2}), length, 1e-10);
  EXPECT_EQ(dial.panel.text(Field::txtHeightz), "0.2");
  EXPECT_EQ(dial.panel.text(Field::txtHeightx), textOf(rounded(b * 1000, 4)));
}

// Without slope and sides the equator keeps to what needs neither.
TEST(Equiangolare, OnTheEquatorTheEquinoctialIsLevel) {
  DialCase dial(17, "txtLAT=0 txtDecl=-60 ckFunction");
  dial.run();
  ASSERT_FALSE(dial.linesOf("equi").empty());
  for (const LineRecord& line : dial.linesOf("equi")) EXPECT_EQ(line.y1, 0);
  EXPECT_FALSE(dial.linesOf("eq").empty());
  EXPECT_TRUE(dial.linesOf("23.445°").empty() && dial.linesOf("diurna2").empty());
}

}  // namespace
}  // namespace dialwright
