// The dials whose border is read: where the plane of an hour, which holds the pole, touches the
// level circle, its shadow lies on the hour's line, and the hour's numeral on the ray through it.
#include <gtest/gtest.h>

#include "numerics/numbers.hpp"
#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using proof::radians;
using proof::Vec;

struct Border {
  Item dial;
  Field radius;          // of the circle
  double side;           // +1 when its half towards the sun is read
  double first, last;    // degrees of the afternoon's hours
  const char* hours[2];  // layers
};
const Border kCylinder{Item::mnuCorncil, Field::txt_R2, +1, 0, 90, {"ore", "ore2"}};
const Border kCone{Item::mnuCorncon, Field::txt_R2, +1, -30, 120, {"ore1", "ore2"}};
const Border kOuter{Item::mnuCorn_flat, Field::TxtRadius, -1, -15, 105, {"afternoon", "morning"}};
const Border kInner{Item::mnuCorn_flat2, Field::TxtRadius, +1, 0, 90, {"afternoon", "morning"}};

class BorderDial : public ProvenDial {
 public:
  BorderDial(const Border& border, std::string_view settings)
      : ProvenDial(border.dial, settings), border_(border) {}

  // The part of the whole hours' shadows of the border that the lines pass.
  double drawn() {
    double wanted = 0, found = 0;
    for (double t = -border_.last; t <= border_.last; t += 15) {
      for (const double day : {-23.0, -14.0, -5.0, 2.0, 11.0, 19.0, 23.0}) {
        for (const double side : {-1.0, 1.0}) {
          const auto at = shadowOfEdge({radians(t), radians(day)}, side);
          if (!at) continue;
          ++wanted;
          found += std::ranges::any_of(
              strokes, [&](const ProvenStroke& stroke) { return stroke.distance(*at) < 0.0002; });
        }
      }
    }
    EXPECT_GT(wanted, 0);
    return found / wanted;
  }

  // How far a place lies from the ray of an hour through the border, followed either way.
  double offRay(Punto spot, const Sun& sun) const {
    const Vec at = scene().surface->place(spot)->at;
    const auto off = [&](double side) {
      return length(cross(scene().sky.towards(sun), at - edge(sun.hourAngle, side)));
    };
    return std::min(off(-1), off(1));
  }

 private:
  bool overWall() const { return border_.radius == Field::TxtRadius; }
  Vec centre() const {
    if (overWall()) return {0, -panel.number(Field::txt_R2), 0};
    return {0, border_.dial == Item::mnuCorncil ? -panel.number(Field::TxtRadius) : 0, 0};
  }
  Vec edge(double hourAngle, double side) const {
    const Vec n = cross(scene().sky.pole(), scene().sky.towards({hourAngle, 0}));
    const double k = side * panel.number(border_.radius) / std::hypot(n.x, n.y);
    return centre() + Vec{k * n.x, k * n.y, 0};
  }
  // Well inside the window and the light.
  std::optional<Punto> shadowOfEdge(const Sun& sun, double side) const {
    const Vec towards = scene().sky.towards(sun), point = edge(sun.hourAngle, side);
    if (dot(point - centre(), towards) * border_.side < -1e-6) return std::nullopt;
    const auto at = scene().surface->shadow(point, towards);
    const double width = overWall() ? 0.48 : 0.9;
    if (!at || at->y > -0.01 || at->y < -0.9 || std::abs(at->x) > width) return std::nullopt;
    const auto place = scene().surface->place(*at);
    const bool grazed =
        place->at.z > -0.003 || std::min(towards.z, dot(place->normal, towards)) < 0.05;
    return grazed ? std::nullopt : at;
  }

  const Border& border_;
};

TEST(Border, TouchesTheLinesOfItsHours) {
  struct Case {
    const Border& border;
    std::vector<std::string_view> panels;
  };
  const std::vector<std::string_view> holes = {"txtLAT=0 txt_R2=.45", "txtLAT=12 txt_R2=.2",
                                               "txt_R2=.45", "txtLAT=67 txt_R2=.2"};
  const std::vector<std::string_view> walls = {
      "txtLAT=0 txtDecl=33", "txtLAT=23.445 txtDecl=-75 txt_R2=.1", "txtDecl=-14.57 txt_R2=.1",
      "txtDecl=150", "txtLAT=75 txtDecl=0"};
  for (const Case& c : {Case{kCylinder, holes}, {kCone, holes}, {kOuter, walls}, {kInner, walls}}) {
    for (const std::string_view panel : c.panels) {
      BorderDial dial(c.border, "txt_Definition=50");
      dial.with(panel).prove(true);
      EXPECT_GT(dial.drawn(), 0.99) << rowOf(c.border.dial).name << ' ' << panel;
    }
  }
}

// From 5 to 12 and from 12 to 7, noon twice or not at all.
TEST(Border, NumeralsStandAtTheirHours) {
  struct Case {
    const Border& border;
    double day;
    std::size_t noons;
    std::string_view settings;
  };
  for (const Case& c : {Case{kCylinder, -23.445, 0, "txt_R2=.5"},
                        {kCylinder, -23.445, 2, "txt_R2=.4"},
                        {kCone, -5, 2, "txt_R2=.45"},
                        {kOuter, -5, 2, "txt_R2=0"},
                        {kInner, -5, 2, "txt_R2=0"},
                        {kOuter, -5, 0, "txt_R2=.2"},
                        {kInner, -5, 0, "txt_R2=.2"}}) {
    SCOPED_TRACE(testing::Message() << rowOf(c.border.dial).name << ' ' << c.settings);
    BorderDial dial(c.border, "txtDecl=20 ckRomani Ck_DayLightCurves ckFunction");
    dial.with(c.settings).set(Field::txtLineofdeclination, textOf(c.day));
    const std::vector<Punto> places = dial.numerals();
    std::vector<double> hours;
    for (int k = -7; k <= 7; ++k) hours.insert(hours.end(), k == 0 ? c.noons : 1, 15.0 * k);
    ASSERT_EQ(places.size(), hours.size());
    for (std::size_t i = 0; i < hours.size(); ++i)
      EXPECT_LT(dial.offRay(places[i], {radians(hours[i]), radians(c.day)}), 5e-9) << hours[i];
  }
}

}  // namespace
}  // namespace dialwright
