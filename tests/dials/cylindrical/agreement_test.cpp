// Programs 8, 9, 11 and 12 draw one cylinder by four methods: where they draw the same thing, they
// agree.
#include <optional>

#include "dials/cylindrical/parametrico.hpp"
#include "dials/cylindrical/proiettivo.hpp"
#include "dials/cylindrical/sferico.hpp"
#include "dials/cylindrical/tridimensionale.hpp"
#include "support/dotted_dial.hpp"

namespace dialwright {
namespace {

constexpr double kAgreement = 1e-5;  // metres
// Chords of program 12 so short that the curve leaves them by less than that.
constexpr double kShortChord = 0.002;

// From a spot to the nearest chord; nothing when that one is too long to stand for the curve, or
// the spot lies beyond its ends.
std::optional<double> fromChords(const std::vector<LineRecord>& chords, sky::Spot spot) {
  double least = 1e9;
  bool beside = false;
  for (const LineRecord& l : chords) {
    const double dx = l.x2 - l.x1, dy = l.y2 - l.y1;
    const double length = std::hypot(dx, dy);
    if (length == 0) continue;
    const double px = spot.x - l.x1, py = -spot.y - l.y1;
    if (std::max(std::abs(px), std::abs(py)) - length > least) continue;
    const double along = (px * dx + py * dy) / length;
    const double across = std::abs(px * dy - py * dx) / length;
    const double away = std::hypot(across, along - std::clamp(along, 0.0, length));
    if (away > least) continue;
    least = away;
    beside = length < kShortChord && along >= 0 && along <= length;
  }
  return beside ? std::optional(least) : std::nullopt;
}

struct Method {
  Item item;
  Driver driver;
};
constexpr Method kMethods[] = {{Item::M_Param, QuadranteCilindricoParam},
                               {Item::M_CILINDRICI, QuadranteCilindrico3D},
                               {Item::mnuCircp, QuadranteProiettivo}};

// A family's box and the colours of its dots in the three methods.
struct Family {
  Field box;
  int colours[3];
};
constexpr Family kFamilies[] = {
    {Field::chkOreAstronomiche, {7, 7, 7}},   {Field::Ck_DayLightCurves, {12, 12, 12}},
    {Field::Ck_DayLightCurves, {13, 13, 13}}, {Field::Ck_DayLightCurves, {11, 11, 11}},
    {Field::ck_Equinoziale, {9, 9, 9}},       {Field::ck_Italiche, {14, 8, 13}},
    {Field::ck_babiloniche, {11, 3, 13}},     {Field::ck_Sustilare, {9, 9, 9}}};

TEST(CylinderMethods, AgreeOnWhatTheyDraw) {
  for (const DottedWall& wall : {kDottedWalls[0], kDottedWalls[1], kDottedWalls[5]}) {
    for (const Family& family : kFamilies) {
      SCOPED_TRACE(name(wall) + " " + std::string(rowOf(family.box).name));
      DottedCylinder reference(Item::mnuCCs, QuadranteCilindricoSferico, wall);
      reference.set(Field::TxtHour, "2").panel.setState(family.box, true);
      // Italic lines meet the horizon again as babylonian ones.
      if (family.box == Field::ck_Italiche || family.box == Field::ck_babiloniche) {
        reference.panel.setState(Field::ck_Italiche, true);
        reference.panel.setState(Field::ck_babiloniche, true);
      }
      reference.run();
      const auto& chords = reference.sheet.list().lines;
      for (std::size_t i = 0; i < std::size(kMethods); ++i) {
        DottedCylinder dial(kMethods[i].item, kMethods[i].driver, wall);
        dial.set(Field::TxtHour, "2");
        std::size_t compared = 0;
        for (const sky::Spot spot : dial.dots({family.box}, family.colours[i])) {
          // In the window where all draw, on a day of the year, and not at its ends.
          if (std::abs(spot.x) > 0.2 || spot.y > -0.02 || spot.y < -0.5) continue;
          const double d = sky::declinationOf(sky::rad(wall.latitude), dial.sunOf(spot));
          const bool day = family.box == Field::Ck_DayLightCurves;
          if (std::abs(d) > sky::rad(day ? 24 : 23.3)) continue;
          const std::optional<double> miss = fromChords(chords, spot);
          if (!miss) continue;
          ASSERT_LT(*miss, kAgreement)
              << "method " << i << " at (" << spot.x << ", " << spot.y << ")";
          ++compared;
        }
        EXPECT_GT(compared, 2u) << "method " << i;
      }
    }
  }
}

}  // namespace
}  // namespace dialwright
