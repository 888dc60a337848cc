// The Graeco-Roman dial against the shadow of its style's tip on the cone.
#include <gtest/gtest.h>

#include "dials/conical/scafe.hpp"
#include "numerics/numbers.hpp"
#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using proof::degrees;
using proof::LayerProof;
using proof::radians;

const std::vector<Field> kFamilies = {Field::chkOreAstronomiche, Field::ck_Italiche,
                                      Field::ck_babiloniche,     Field::ckTemp,
                                      Field::Ck_DayLightCurves,  Field::ck_Equinoziale};
constexpr const char* kLayers[] = {"ora", "ita", "bab", "Temp"};

struct Scaphe : ProvenDial {
  Scaphe(double latitude, double semiAngle, bool mirrored)
      : ProvenDial(Item::mnuConoAntico, DisegnaScafe, kFamilies), phi(radians(latitude)) {
    panel.setState(Field::ckFunction, mirrored);
    set(Field::txtLAT, textOf(latitude)).set(Field::txtSemi, textOf(semiAngle));
    set(Field::TxtHour, "1");
  }
  // Degrees; half a turn in polar day, none in polar night.
  double arc(double day) const {
    const double c =
        -std::sin(phi) * std::sin(radians(day)) / (std::cos(phi) * std::cos(radians(day)));
    return degrees(std::acos(std::clamp(c, -1.0, 1.0)));
  }
  void expectMeanings() {
    const auto near = [](double value, double step) { return offStep(value, step) < 1e-4; };
    everySun("ora", [&](double H, double) { return near(H, 15); });
    everySun("ita", [&](double H, double day) { return near(arc(day) - H, 15); });
    everySun("bab", [&](double H, double day) { return near(arc(day) + H, 15); });
    everySun("Temp", [&](double H, double day) { return near(6 * H, arc(day)); });
  }
  double phi;
};

TEST(ScapheProof, KeepsAllOfTheTruth) {
  for (const double latitude : {0.0, 12.0, 45.7438, 67.0, 90.0}) {
    for (const double semiAngle : {10.0, 30.0, 50.0, 80.0}) {
      for (const bool mirrored : {false, true}) {
        SCOPED_TRACE(testing::Message() << latitude << ' ' << semiAngle << ' ' << mirrored);
        Scaphe dial(latitude, semiAngle, mirrored);
        dial.prove();
        std::vector<LayerProof> literal;
        for (const char* layer : kLayers) literal.push_back(dial.row(layer));
        const LayerProof total = dial.prove(true).total();
        EXPECT_EQ(total.ghosts + total.strays, 0u);
        for (const LayerProof& was : literal) {
          EXPECT_GE(dial.row(was.layer).genuine, was.genuine) << was.layer;
          EXPECT_GT(dial.row(was.layer).genuine, 500u) << was.layer;
        }
        // The summer's, the winter's and the equinox's arcs: no winter beyond the polar circle, and
        // no summer of a cone that is too wide for it.
        const std::size_t arcs = 3u - (latitude > 66.555) - (semiAngle > 66.555);
        EXPECT_EQ(dial.row("0").genuine, arcs);
        dial.expectMeanings();
        EXPECT_EQ(dial.drawn("ora", sunsOfHours(-165, 165, 15)), 1);
      }
    }
  }
}

// Mirrored, italic and babylonian hours are turned by half a turn instead: each stands where the
// mirror image of the other should. The days' arcs stand on the mirrored side always.
TEST(ScapheProof, OneSideOfTheVertexIsWrong) {
  for (const bool mirrored : {false, true}) {
    Scaphe dial(45.7438, 30, mirrored);
    dial.prove();
    for (const char* layer : {"ita", "bab"}) {
      const LayerProof row = dial.row(layer);
      EXPECT_EQ(row.genuine < 20, mirrored) << layer;
      EXPECT_EQ(row.millimetres > 300, mirrored) << layer;
    }
    EXPECT_EQ(dial.row("0").genuine, mirrored ? 3u : 0u);
  }
}

// Beyond the polar circle a sun that doesn't rise counts literally as one of six hours.
TEST(ScapheProof, PolarDaysHaveHoursOfTheirOwn) {
  Scaphe dial(75, 30, false);
  dial.prove();
  EXPECT_GT(dial.row("Temp").ghosts, 1000u);
  EXPECT_GT(dial.row("Temp").strays, 1000u);
  EXPECT_EQ(dial.row("ora").strays, 0u) << "midnight is one line on both edges of the seam";
}

// Rays that run out of a wide cone have no shadow: the point that they come from is drawn, on the
// other side of the vertex.
TEST(ScapheProof, WideConesShowWhereTheRayComesFrom) {
  for (const auto& [semiAngle, expected] : {std::pair{66.0, false}, {80.0, true}}) {
    Scaphe dial(10, semiAngle, false);
    dial.prove();
    const LayerProof row = dial.row("ora");
    EXPECT_EQ(row.ghosts + row.strays > 100, expected) << row.ghosts << ' ' << row.strays;
  }
}

}  // namespace
}  // namespace dialwright
