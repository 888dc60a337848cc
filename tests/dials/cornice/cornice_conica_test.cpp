// Tests of program 36: the cornice dial in a cone.
#include "dials/cornice/cornice_conica.hpp"

#include "border_model.hpp"

namespace dialwright {
namespace {

using std::numbers::pi;

class Cone : public CorniceDial {
 public:
  explicit Cone(double latitude = 45.7438, std::initializer_list<Field> boxes = {},
                double lower = 0.3)
      : CorniceDial(Item::mnuCorncon, DisegnaCorniceConica, {latitude, 0.45}, boxes),
        sine_(std::sin(std::atan((0.5 - lower) / 0.8))) {
    set(Field::TxtStilo, textOf(lower));
  }

  // The angle round the cone, radians from the North over the East, of a spot of the development.
  double angle(sky::Spot at) const { return std::atan2(at.x, at.y + 0.5 / sine_) / sine_; }
  sky::Vec place(sky::Spot at) const override {
    const double reach = std::hypot(at.x, at.y + 0.5 / sine_), radius = reach * sine_;
    return {radius * std::sin(angle(at)), radius * std::cos(angle(at)),
            (reach - 0.5 / sine_) * std::sqrt(1 - sine_ * sine_)};
  }
  void expectOn(double x, double sheetY, double radius, double round, double tolerance) const {
    const sky::Vec at = place({x, -sheetY});
    EXPECT_NEAR(std::hypot(at.x, at.y), radius, 1e-9);
    EXPECT_NEAR(angle({x, -sheetY}), round, tolerance);
  }
  // How many lines of a layer leave the development's one turn.
  std::size_t beyond(const char* layer) {
    const auto lines = linesOf(layer);
    return std::count_if(lines.begin(), lines.end(), [&](const LineRecord& line) {
      return std::abs(angle({line.x1, -line.y1})) > pi || std::abs(angle({line.x2, -line.y2})) > pi;
    });
  }

 private:
  double sine_;
};

TEST(ConicalCornice, HourAndDayLinesAreGrazingLight) {
  for (const double latitude : {45.7438, 62.0, 30.0}) {
    for (const double lower : {0.05, 0.4}) {
      Cone dial(latitude, {Field::Ck_DayLightCurves}, lower);
      dial.set(Field::txtLineofdeclination, "-23.445").run();
      const auto expect = [&](const char* layer, auto nominal, int first, int last) {
        const std::set<int> hours = dial.expectGrazing(layer, nominal, 600);
        EXPECT_TRUE(*hours.begin() >= first && *hours.rbegin() <= last) << layer;
      };
      expect("ore1", wholeHours(0.01), -30, 120);
      expect("ore2", wholeHours(0.01), -120, 30);
      expect("diurna", oneDay(-23.445), -105, 0);
      expect("diurna2", oneDay(-23.445), 0, 105);
    }
  }
}

TEST(ConicalCornice, BordersShadowGoesRoundTheCone) {
  Cone dial(45.7438, {Field::ckFunction});
  dial.set(Field::txtAO, "32.5").set(Field::txtLineofdeclination, "10").run();
  for (const char* layer : {"ombra2", "ombra", "xombra"}) {
    ASSERT_GT(dial.linesOf(layer).size(), 1000u) << layer;
    for (const LineRecord& line : dial.linesOf(layer))
      dial.expectShadow(line.x1, line.y1, {32.5, 10});
  }
  // The southern half is drawn both ways; one of them leads off the development.
  EXPECT_GT(dial.beyond("ombra"), 1000u);
  EXPECT_EQ(dial.beyond("xombra"), 0u);
  EXPECT_TRUE(Cone().run().linesOf("ombra2").empty());
}

TEST(ConicalCornice, NumeralsStandAtTheirHours) { Cone().expectNumerals(-5, true); }

TEST(ConicalCornice, OutlineIsTheConesDevelopment) {
  Cone dial;
  dial.run();
  for (const auto& [layer, radius] : {std::pair{"basealta", 0.5}, {"basebassa", 0.3}}) {
    const auto lines = dial.linesOf(layer);
    ASSERT_GT(lines.size(), 1000u);
    const LineRecord &first = lines.front(), &last = lines.back();
    const double side = first.x2 < 0 ? -pi : pi;
    dial.expectOn(first.x2, first.y2, radius, side, 0.005);
    dial.expectOn(last.x1, last.y1, radius, -side, 0.005);
  }
  const auto& lines = dial.sheet.list().lines;
  ASSERT_GE(lines.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) {  // radial lines from base to base
    const LineRecord& line = lines.end()[static_cast<std::ptrdiff_t>(i) - 4];
    const double round = (i % 2 == 0 ? 1 : -1) * (i < 2 ? pi : pi / 2);
    dial.expectOn(line.x1, line.y1, 0.5, round, 1e-8);
    dial.expectOn(line.x2, line.y2, 0.3, round, 1e-8);
  }
}

TEST(ConicalCornice, TellsTheConeAndEndsWithoutAVertex) {
  Cone dial;
  dial.run();
  EXPECT_EQ(dial.sheet.caption(), "Dam or cornice dial by vectors");
  EXPECT_EQ(dial.told(),
            "|CONICAL DAM DIAL |latitude 45.7438 °|maximum radius 0.5|upper radius 0.45|"
            "lower radius  0.3|theoretical height of the cone 2|height of the truncated cone 0.8|"
            "lenght of the truncated element 0.8246|distance between the two bases 0.8|"
            "semiangle at vertex 14.0362 °|inclination of the element 75.9638 °|"
            "lenght of the element 2.0616|Conical surface developed on a plane |"
            "Total amplitude 87.3128 °|useful arc 43.6564 °|long radius 2.0616|"
            "Optional line of declination (red line)23.445 °|");
  ASSERT_EQ(dial.sheet.list().circles.size(), 9u);
  EXPECT_EQ(dial.sheet.list().circles[1].startAngle, -dial.params.DeclRad);

  Cone straight(45.7438, {Field::Ck_DayLightCurves, Field::ckFunction, Field::ckArabi}, 0.5);
  straight.run();
  EXPECT_EQ(straight.inks(), "");
  EXPECT_FALSE(straight.sheet.list().lines.empty());  // the numerals, on the origin
  for (const LineRecord& stroke : straight.sheet.list().lines)
    EXPECT_LT(std::hypot(stroke.x1, stroke.y1), 0.1);
  EXPECT_EQ(straight.sheet.list().circles.size(), 4u);
  EXPECT_NE(straight.told().find("semiangle at vertex 0 °|inclination of the element 90 °|Conical"),
            std::string::npos);
}

}  // namespace
}  // namespace dialwright
