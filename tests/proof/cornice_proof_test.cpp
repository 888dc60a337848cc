// The cornice dials against the border's shadow: what the literal drawing has of ghosts and strays,
// and that the true one has none of them and all the rest.
#include <gtest/gtest.h>

#include "dials/cornice/cornice_cilindrica.hpp"
#include "dials/cornice/cornice_conica.hpp"
#include "dials/cornice/cornice_piana.hpp"
#include "numerics/numbers.hpp"
#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using proof::degrees;
using proof::LayerProof;
using proof::radians;
using proof::Vec;

struct Kind {
  const char* name;
  Item item;
  Driver driver;
  const char* hours[2];  // layers: afternoon, morning
  const char* days[2];
  double from, to;   // hour angles of the afternoon; the morning's are its mirror image
  double side;       // of the border: +1 towards the sun
  const char* step;  // txt_Definition, where it counts
};
const Kind kCylinder{"35",
                     Item::mnuCorncil,
                     DisegnaCorniceCilindrica,
                     {"ore", "ore2"},
                     {"diurna", "diurne"},
                     0,
                     90,
                     +1,
                     "5"};
const Kind kCone{"36",
                 Item::mnuCorncon,
                 DisegnaCorniceConica,
                 {"ore1", "ore2"},
                 {"diurna2", "diurna"},
                 -30,
                 120,
                 +1,
                 "5"};
const Kind kOuter{"38",
                  Item::mnuCorn_flat,
                  DisegnaCornicePianaEst,
                  {"afternoon", "morning"},
                  {"daylight2", "daylight1"},
                  -15,
                  105,
                  -1,
                  "50"};
const Kind kInner{"39",
                  Item::mnuCorn_flat2,
                  DisegnaCornicePianaInt,
                  {"afternoon", "morning"},
                  {"daylight2", "daylight1"},
                  0,
                  90,
                  +1,
                  "50"};

class Cornice : public ProvenDial {
 public:
  explicit Cornice(const Kind& kind, double latitude = 45.7438, double declination = -14.57)
      : ProvenDial(kind.item, kind.driver, {Field::Ck_DayLightCurves, Field::ckFunction}),
        kind_(kind) {
    set(Field::txtLAT, textOf(latitude)).set(Field::txtDecl, textOf(declination));
    set(Field::txt_Definition, kind.step).set(Field::txtLineofdeclination, "-7.5");
  }

  // The part that the drawing has of the border's shadow at the whole hours it draws: where the
  // hour's plane, which holds the hour's suns and the pole, touches the border, the border's shadow
  // touches the hour's line.
  double drawnHours() {
    std::vector<LineRecord> lines;
    for (const char* layer : kind_.hours) {
      for (const LineRecord& line : linesOf(layer)) lines.push_back(line);
    }
    double wanted = 0, found = 0;
    for (double t = -kind_.to; t <= kind_.to; t += 15) {
      for (const double day : {-23.0, -14.0, -5.0, 2.0, 11.0, 19.0, 23.0}) {
        for (const double side : {-1.0, 1.0}) {
          const auto at = touch({radians(t), radians(day)}, side);
          if (!at) continue;
          ++wanted;
          found += std::ranges::any_of(
              lines, [&](const LineRecord& line) { return distance(*at, line) < 0.0002; });
        }
      }
    }
    return wanted > 0 ? found / wanted : 1;
  }

  // Runs with numerals so small that they are points: from 5 to 12 and from 12 to 7, with noon
  // twice or not at all, each on the ray of its hour through the border's point, followed either
  // way.
  void expectNumerals(double day, bool noon) {
    sheet.QuadranteH(15);
    sheet.QuadranteL(15);
    sheet.ShiftX(7.5);
    sheet.ShiftY(7.5);
    panel.setState(Field::ckRomani, true);
    set(Field::txtNumbersize, "1e-9").set(Field::txtLineofdeclination, textOf(day));
    draw();
    std::vector<Punto> places;
    for (const LineRecord& line : linesIn(palette(7))) {
      if (std::hypot(line.x2 - line.x1, line.y2 - line.y1) > 1e-7) continue;
      const Punto at{line.x1, -line.y1};
      if (places.empty() || std::hypot(at.x - places.back().x, at.y - places.back().y) > 1e-7)
        places.push_back(at);
    }
    std::vector<double> hours;
    for (int k = -7; k <= 7; ++k) {
      if (k != 0 || noon) hours.push_back(15 * k);
      if (k == 0 && noon) hours.push_back(0);
    }
    ASSERT_EQ(places.size(), hours.size());
    for (std::size_t i = 0; i < hours.size(); ++i) {
      const Sun sun{radians(hours[i]), radians(day)};
      const Vec at = scene().surface->place(places[i])->at;
      const auto miss = [&](double side) {
        return length(cross(scene().sky.towards(sun), at - edge(sun.hourAngle, side)));
      };
      EXPECT_LT(std::min(miss(-1), miss(1)), 5e-9) << hours[i];
    }
  }

  // What the strokes of the hours and of the day stand for.
  void expectMeanings() {
    for (const double half : {1.0, -1.0}) {
      const int i = half > 0 ? 0 : 1;
      everySun(
          kind_.hours[i],
          [&](double H, double day) {
            return offStep(H, 15) < 1e-6 && half * H > kind_.from - 1e-6 &&
                   half * H < kind_.to + 1e-6 && std::abs(day) < 23.4451;
          },
          CurveFamily::Hours);
      everySun(
          kind_.days[i],
          [&](double H, double day) { return half * H > -0.02 && std::abs(day + 7.5) < 1e-6; },
          CurveFamily::Declinations);
    }
  }

 private:
  bool overWall() const {
    return kind_.item == Item::mnuCorn_flat || kind_.item == Item::mnuCorn_flat2;
  }
  Vec centre() const {
    const double R = panel.number(Field::TxtRadius), r2 = panel.number(Field::txt_R2);
    return {0, overWall() ? -r2 : kind_.item == Item::mnuCorncil ? -R : 0, 0};
  }
  // The border's point where the plane of an hour, which holds the pole, touches it on a side.
  Vec edge(double hourAngle, double side) const {
    const Vec n = cross(scene().sky.pole(), scene().sky.towards({hourAngle, 0}));
    const double radius = panel.number(overWall() ? Field::TxtRadius : Field::txt_R2);
    const double k = side * radius / std::hypot(n.x, n.y);
    return centre() + Vec{k * n.x, k * n.y, 0};
  }
  // Where the shadow of the border's point of an hour falls on the drawing, well lit.
  std::optional<Punto> touch(const Sun& sun, double side) const {
    const proof::Scene& s = scene();
    const Vec towards = s.sky.towards(sun);
    const Vec point = edge(sun.hourAngle, side);
    if (dot(point - centre(), towards) * kind_.side < -1e-6) return std::nullopt;
    const auto at = s.surface->shadow(point, towards);
    const double width = overWall() ? 0.48 : 0.9;
    if (!at || at->y > -0.01 || at->y < -0.9 || std::abs(at->x) > width) return std::nullopt;
    const auto place = s.surface->place(*at);
    if (!place || place->at.z > -0.003 || towards.z < 0.05) return std::nullopt;
    if (dot(place->normal, towards) < 0.05) return std::nullopt;
    return at;
  }
  static double distance(Punto p, const LineRecord& line) {
    const double dx = line.x2 - line.x1, dy = line.y1 - line.y2;
    const double square = dx * dx + dy * dy;
    double part = square > 0 ? ((p.x - line.x1) * dx + (p.y + line.y1) * dy) / square : 0;
    part = std::clamp(part, 0.0, 1.0);
    return std::hypot(line.x1 + part * dx - p.x, -line.y1 + part * dy - p.y);
  }

  const Kind& kind_;
};

// Draws both ways: the true drawing has nothing false, of each family at least as much of what is
// true as the literal one, and all that the hours' suns draw.
void expectTrue(Cornice& dial, const Kind& kind) {
  SCOPED_TRACE(testing::Message() << kind.name << " at " << dial.panel.text(Field::txtLAT) << " on "
                                  << dial.panel.text(Field::txtDecl) << " border "
                                  << dial.panel.text(Field::txt_R2));
  dial.prove();
  std::vector<LayerProof> literal;
  for (const auto& layers : {kind.hours, kind.days}) {
    for (int i = 0; i < 2; ++i) literal.push_back(dial.row(layers[i]));
  }
  const LayerProof total = dial.prove(true).total();
  EXPECT_EQ(total.ghosts + total.strays, 0u);
  // On the equator the literal border's point is that of the line before.
  for (const LayerProof& was : literal) {
    if (dial.panel.text(Field::txtLAT) == "0") break;
    EXPECT_GE(dial.row(was.layer).genuine + 1, was.genuine);
  }
  EXPECT_GT(dial.drawnHours(), 0.99);
  dial.expectMeanings();
}

TEST(CorniceProof, CylindersAndConesKeepAllOfTheTruth) {
  for (const Kind* kind : {&kCylinder, &kCone}) {
    for (const double latitude : {0.0, 12.0, 45.7438, 67.0}) {
      for (const char* border : {"0.45", "0.2"}) {
        Cornice dial(*kind, latitude, 0);
        dial.set(Field::txt_R2, border);
        expectTrue(dial, *kind);
      }
    }
  }
}

TEST(CorniceProof, DiscsOverWallsKeepAllOfTheTruth) {
  for (const Kind* kind : {&kOuter, &kInner}) {
    for (const double latitude : {0.0, 12.0, 23.445, 35.0, 45.7438, 60.0, 67.0, 75.0}) {
      for (const double wall : {-75.0, -14.57, 0.0, 33.0, 60.0, 100.0, 150.0, 180.0}) {
        Cornice dial(*kind, latitude, wall);
        expectTrue(dial, *kind);
        dial.set(Field::txt_R2, "0.1");
        expectTrue(dial, *kind);
      }
    }
  }
}

TEST(CorniceProof, NumeralsStandAtTheirHours) {
  for (const auto& [kind, border, day, noon] : {std::tuple{&kCylinder, "0.5", -23.445, false},
                                                {&kCylinder, "0.4", -23.445, true},
                                                {&kCone, "0.45", -5.0, true},
                                                {&kOuter, "0", -5.0, true},
                                                {&kInner, "0", -5.0, true},
                                                {&kOuter, "0.2", -5.0, false},
                                                {&kInner, "0.2", -5.0, false}}) {
    SCOPED_TRACE(testing::Message() << kind->name << ' ' << border);
    Cornice dial(*kind, 45.7438, 20);
    dial.set(Field::txt_R2, border);
    dial.expectNumerals(day, noon);
  }
}

// At 10 degrees the sun is in the North for part of the year: then the literal edge point is the
// one away from the sun, and its shadow is another edge of the light's spot.
TEST(CorniceProof, LowLatitudesTakeTheWrongEdge) {
  Cornice dial(kCylinder, 10);
  dial.set(Field::txt_R2, "0.4");
  dial.prove();
  EXPECT_GT(dial.row("ore").ghosts + dial.row("ore").strays, 500u);
  EXPECT_LT(dial.drawnHours(), 0.95);
  Cornice north(kCylinder, 30);
  north.set(Field::txt_R2, "0.4");
  EXPECT_EQ(north.prove().total().genuine, north.prove().total().strokes);
}

// The southern half of the border's shadow is laid out twice, once beyond the development's ends.
TEST(CorniceProof, TheConesShadowLeavesTheDevelopment) {
  Cornice dial(kCone);
  dial.set(Field::txtLineofdeclination, "23.445");
  dial.prove();
  EXPECT_EQ(dial.row("ombra").ghosts, 4598u);
  EXPECT_EQ(dial.row("xombra").ghosts + dial.row("ombra2").ghosts, 0u);
  dial.prove(true);
  EXPECT_EQ(dial.row("ombra").strokes, 0u);
  EXPECT_EQ(dial.row("xombra").genuine, 6283u);
}

// The ray is followed both ways: a sun that is down behind the wall has its lines, too.
TEST(CorniceProof, SunsBehindTheWallDrawTheirOpposites) {
  for (const auto& [kind, hours] : {std::pair{&kOuter, 3.0}, {&kInner, 1.0}}) {
    Cornice dial(*kind);
    dial.set(Field::x1txt, "-5").set(Field::x2txt, "5").set(Field::y2txt, "-5");
    dial.prove();
    const LayerProof row = dial.row("afternoon");
    EXPECT_GT(static_cast<double>(row.ghosts), 90 * hours);
    EXPECT_EQ(row.strays + row.ghosts + row.genuine, row.strokes);
  }
}

// A cone that doesn't narrow, and a border beside it, throw no shadow on it.
TEST(CorniceProof, SenselessFieldsMakeNoScene) {
  for (const auto& [field, text] : {std::pair{Field::TxtStilo, "0.5"},
                                    {Field::TxtStilo, "0.6"},
                                    {Field::TxtRadius, "0"},
                                    {Field::txt_R2, "0"},
                                    {Field::txt_R2, "0.6"},
                                    {Field::txtD1, "0"}}) {
    Cornice dial(kCone);
    dial.set(field, text);
    EXPECT_FALSE(proof::sceneOf(dial.panel)) << text;
  }
  for (const Kind* kind : {&kCylinder, &kOuter, &kInner}) {
    Cornice dial(*kind);
    dial.set(Field::TxtRadius, "0");
    EXPECT_FALSE(proof::sceneOf(dial.panel)) << kind->name;
  }
}

}  // namespace
}  // namespace dialwright
