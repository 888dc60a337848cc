// Tests of program 36: the cornice dial in a cone.
#include "dials/cornice/cornice_conica.hpp"

#include "border_model.hpp"

namespace dialwright {
namespace {

using std::numbers::pi;

class Cone : public DialCase {
 public:
  explicit Cone(double latitude = 45.7438, std::initializer_list<Field> boxes = {},
                double lower = 0.3)
      : DialCase(Item::mnuCorncon, DisegnaCorniceConica),
        border_{latitude, 0.45},
        sine_(std::sin(std::atan((0.5 - lower) / 0.8))) {
    clearBoxes();
    for (const Field box : boxes) panel.setState(box, true);
    set(Field::txtLAT, textOf(latitude)).set(Field::TxtStilo, textOf(lower));
  }

  // The angle round the cone, radians from the North over the East, of a spot of the development.
  double angle(sky::Spot at) const { return std::atan2(at.x, at.y + 0.5 / sine_) / sine_; }
  sky::Vec roll(sky::Spot at) const {
    const double reach = std::hypot(at.x, at.y + 0.5 / sine_);
    const double radius = reach * sine_;
    return {radius * std::sin(angle(at)), radius * std::cos(angle(at)),
            (reach - 0.5 / sine_) * std::sqrt(1 - sine_ * sine_)};
  }
  // The lines of a layer with both ends on the development's one turn.
  std::vector<LineRecord> onDevelopment(const char* layer) {
    auto lines = linesOf(layer);
    std::erase_if(lines, [&](const LineRecord& line) {
      return std::abs(angle({line.x1, -line.y1})) > pi || std::abs(angle({line.x2, -line.y2})) > pi;
    });
    return lines;
  }

  const Border border_;
  const double sine_;
};

TEST(ConicalCornice, HourAndDayLinesAreGrazingLight) {
  for (const double latitude : {45.7438, 62.0, 30.0}) {
    for (const double lower : {0.05, 0.4}) {
      SCOPED_TRACE(testing::Message() << latitude << " " << lower);
      Cone dial(latitude, {Field::Ck_DayLightCurves}, lower);
      dial.set(Field::txtLineofdeclination, "-23.445").run();
      const auto place = [&](sky::Spot at) { return dial.roll(at); };
      const auto expect = [&](const char* layer, auto nominal, int first, int last) {
        const Found found = examine(dial.linesOf(layer), dial.border_, place, nominal);
        EXPECT_LT(found.worst, 2e-9) << layer;
        EXPECT_GT(found.lines, 600u);
        EXPECT_GE(*found.hours.begin(), first) << layer;
        EXPECT_LE(*found.hours.rbegin(), last) << layer;
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
  for (const auto& [layer, colour] :
       {std::pair{"ombra2", 11}, std::pair{"ombra", 13}, std::pair{"xombra", 13}}) {
    const auto lines = dial.linesOf(layer);
    ASSERT_GT(lines.size(), 1000u) << layer;
    for (const LineRecord& line : lines) {
      EXPECT_EQ(line.colour, palette(colour));
      EXPECT_NEAR(dial.border_.passes(dial.roll({line.x1, -line.y1}), {32.5, 10}), 0, 1e-8);
    }
  }
  // The southern half is drawn both ways; one of them leads off the development.
  EXPECT_GT(dial.linesOf("ombra").size(), dial.onDevelopment("ombra").size() + 1000);
  EXPECT_EQ(dial.linesOf("xombra").size(), dial.onDevelopment("xombra").size());
  EXPECT_EQ(Cone().run().linesOf("ombra2").size(), 0u);
}

TEST(ConicalCornice, NumeralsStandAtTheirHours) {
  Cone dial;
  expectNumerals(
      dial, dial.border_, [&](sky::Spot at) { return dial.roll(at); }, -5, true);
}

TEST(ConicalCornice, OutlineIsTheConesDevelopment) {
  Cone dial;
  dial.run();
  const auto expectArc = [&](const char* layer, double radius) {
    const auto lines = dial.linesOf(layer);
    ASSERT_GT(lines.size(), 1000u);
    for (const sky::Spot end : {sky::Spot{lines.front().x2, -lines.front().y2},
                                sky::Spot{lines.back().x1, -lines.back().y1}}) {
      const sky::Vec at = dial.roll(end);
      EXPECT_NEAR(std::hypot(at.x, at.y), radius, 1e-9);
      EXPECT_NEAR(std::abs(dial.angle(end)), pi, 0.005);
    }
  };
  expectArc("basealta", 0.5);
  expectArc("basebassa", 0.3);
  const auto& lines = dial.sheet.list().lines;
  ASSERT_GE(lines.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) {  // radial lines from base to base
    const LineRecord& line = lines[lines.size() - 4 + i];
    const sky::Vec top = dial.roll({line.x1, -line.y1}), bottom = dial.roll({line.x2, -line.y2});
    EXPECT_NEAR(std::hypot(top.x, top.y), 0.5, 1e-9);
    EXPECT_NEAR(std::hypot(bottom.x, bottom.y), 0.3, 1e-9);
    EXPECT_NEAR(dial.angle({line.x2, -line.y2}), (i % 2 == 0 ? 1 : -1) * (i < 2 ? pi : pi / 2),
                1e-8);
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
  EXPECT_FALSE(straight.busy);
}

}  // namespace
}  // namespace dialwright
