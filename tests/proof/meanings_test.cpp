// What the true shadows of each dial stand for: every sun of a line is one that the line's family,
// layer and colour promise.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <utility>

#include "support/mean_sun.hpp"
#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using proof::degrees;
using proof::kPi;
using proof::radians;
using proof::Vec;
using enum CurveFamily;

constexpr double kHair = 2e-5;   // degrees: the dials' circle constant is off by 4e-10
constexpr double kSlack = 1e-3;  // degrees, where an hour runs away with the day

// The sun of a stroke's first end: what the stroke leaves open comes from where it is drawn.
Sun sunOf(const ProvenDial& dial, const ProvenStroke& stroke) {
  const Sun& own = stroke.meaning.first;
  if (!std::isnan(own.hourAngle + own.declination)) return own;
  const proof::Scene& scene = dial.scene();
  const Sun told = scene.sky.of(scene.judge(stroke.from, stroke.meaning.family, own).sunwards);
  return {std::isnan(own.hourAngle) ? told.hourAngle : own.hourAngle,
          std::isnan(own.declination) ? told.declination : own.declination};
}

// The azimuth of Mecca, by the chord through the earth.
double azimuthOfMecca(double latitude, double longitudeEast) {
  const auto place = [](double lat, double lon) {
    return Vec{std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
  };
  const Vec here = place(latitude, longitudeEast);
  const Vec there = place(radians(21.42527), radians(39.81638));
  const Vec east = unit(cross({0, 0, 1}, here)), north = cross(here, east);
  return std::atan2(dot(there, east), dot(there, north));
}

// A dial, with what sets its lines apart from those of the others.
struct Row {
  Item dial;
  std::vector<std::string_view>
      panels;  // literally and with true shadows only by turns, one with these
  std::size_t families;
  double parts = 1;                         // of an hour of another count
  bool zoned = true;                        // ck_Etna makes the hours those of the zone
  bool redNoon = true;                      // and noon alone
  std::map<std::string, double> days = {};  // by their layers, when these have other names
};

class Promise {
 public:
  Promise(const Row& row, const ProvenDial& dial)
      : row_(row),
        dial_(dial),
        phi_(radians(number(Field::txtLAT))),
        east_(-number(Field::txtLON)),
        zone_(-15 * number(Field::TxtFuso) - east_) {}

  // How far a stroke's sun is from what its family promises; in degrees, mostly.
  double broken(const ProvenStroke& stroke) const {
    const Sun sun = sunOf(dial_, stroke);
    const double H = degrees(sun.hourAngle), d = degrees(sun.declination);
    const double cosine = -std::tan(phi_) * std::tan(sun.declination);
    const double arc = degrees(std::acos(std::clamp(cosine, -1.0, 1.0)));
    const Vec s = dial_.scene().sky.towards(sun);
    const bool rising = std::abs(s.z) < 1e-6;  // it also sets
    switch (stroke.meaning.family) {
      case Hours: return offHour(stroke, H);
      case Declinations: return offDay(stroke, d);
      case Equinoctial: return d;
      case Analemma: {  // half a minute is what its short series leave
        const double mean = std::remainder(H + zone_, row_.dial == Item::M_CILINDRICI ? 15 : 360);
        return std::fmax(0, sky::secondsFromEquationOfTime(radians(mean), sun.declination) - 30);
      }
      case Italic: return rising ? 0 : offStep(H - arc, 15 / row_.parts);
      case Babylonian: return rising ? 0 : offStep(H + arc, 15 / row_.parts);
      case Temporary: return offStep((H / arc + 1) * 6, 1 / row_.parts);
      case Altitudes: return offStep(degrees(std::asin(s.z)), 10);
      case Azimuths: return offStep(degrees(std::atan2(s.x, s.y)), 15);
      case Asr:
        return s.z / std::hypot(s.x, s.y) * (1 + std::tan(std::abs(phi_ - sun.declination))) - 1;
      case Qibla: {
        const double off = std::atan2(s.x, s.y) - azimuthOfMecca(phi_, radians(east_));
        return s.z > 0.9999 ? 0 : degrees(std::remainder(off, 2 * kPi));
      }
      default: return 0;
    }
  }

 private:
  double number(Field field) const { return dial_.panel.number(field); }
  std::string_view layerOf(const ProvenStroke& stroke) const {
    return dial_.sheet.list().name(stroke.layer);
  }

  double offHour(const ProvenStroke& stroke, double H) const {
    const bool parabola = row_.dial == Item::M_Parabolico;
    if (layerOf(stroke) == "Sus" || (parabola && stroke.colour == palette(9))) {
      const proof::Scene& scene = dial_.scene();
      return offStep(H - degrees(scene.sky.of(scene.surface->place({0, 0})->normal).hourAngle),
                     180);
    }
    const bool noon = offStep(H, 180) < kHair;  // some have the site's besides the zone's hours
    const double t = H + (dial_.panel.on(Field::ck_Etna) && row_.zoned && !noon ? zone_ : 0);
    const bool red = stroke.colour == palette(12) && row_.redNoon;
    const double first = layerOf(stroke) == "mezze" ? 7.5 : 0;
    return layerOf(stroke) == "midi" ? H : offStep(t - first, red ? 180 : 7.5);
  }
  double offDay(const ProvenStroke& stroke, double d) const {
    const std::string layer{layerOf(stroke)};
    const auto named = row_.days.find(layer);
    if (named != row_.days.end()) return d - named->second;
    double toldByLayer = 0;
    if (std::sscanf(layer.c_str(), "%lf°", &toldByLayer) == 1 && toldByLayer != 0 &&
        std::abs(d - toldByLayer) > 0.006)
      return d - toldByLayer;
    // Any ink may be that of the free line, or of the conic that the italic hours touch.
    double off = 90;
    for (const double day : {std::abs(number(Field::txtLineofdeclination)), 90 - degrees(phi_)})
      off = std::fmin(off, std::abs(std::abs(d) - day));
    const double solstice = row_.dial == Item::M_Inclinati ? 23.45 : 23.445;
    for (const auto& [ink, day] : {std::pair{12, solstice}, {13, 20.1552}, {11, 11.4746}}) {
      if (stroke.colour == palette(ink)) return std::fmin(off, std::abs(std::abs(d) - day));
    }
    return std::fmin(off, std::abs(std::abs(d) - 23.445));
  }

  const Row& row_;
  const ProvenDial& dial_;
  double phi_, east_, zone_;
};

const std::vector<std::string_view> kWalls = {"txtDecl=-14.57", "txtLAT=62 txtDecl=150 ck_Etna"},
                                    kPlanes = {"txtDecl=-14.57",
                                               "txtLAT=45 txtDecl=37 txtReclinZ=65 ck_Etna",
                                               "txtLAT=12 txtDecl=20 txtReclinZ=50",
                                               "txtLAT=0 txtLON=80 txtReclinZ=0"},
                                    kCylinders = {"OptConvex txtDecl=-14.57",
                                                  "Optconcave txtLAT=45 txtDecl=37 ck_Etna"},
                                    kLevels = {"", "txtLAT=62 ck_Etna"},
                                    kLatitudes = {"txtDecl=0", "txtLAT=67 txtDecl=33"};
const Row kRows[] = {
    {.dial = Item::M_Light, .panels = kWalls, .families = 7},
    {.dial = Item::M_Inclinati, .panels = kPlanes, .families = 7},
    {.dial = Item::M_Proiettivo, .panels = kPlanes, .families = 5, .zoned = false},
    {.dial = Item::M_nProiettivo, .panels = kPlanes, .families = 6},
    {.dial = Item::M_Frinter, .panels = kWalls, .families = 6},
    {.dial = Item::mnuVertSph, .panels = kWalls, .families = 11},
    {.dial = Item::mnuUni, .panels = kPlanes, .families = 11},
    {.dial = Item::M_Param, .panels = kCylinders, .families = 5, .zoned = false},
    {.dial = Item::M_CILINDRICI, .panels = kCylinders, .families = 6},
    {.dial = Item::M_Parabolico, .panels = kCylinders, .families = 3},
    {.dial = Item::mnuCircp, .panels = kCylinders, .families = 6, .zoned = false},
    {.dial = Item::mnuCCs, .panels = kCylinders, .families = 7},
    {.dial = Item::mnuChapeau, .panels = {""}, .families = 7, .redNoon = false},
    {.dial = Item::mnuFontana_H3, .panels = kLevels, .families = 7, .parts = 2},
    {.dial = Item::mnuBall, .panels = kLevels, .families = 7, .parts = 2},
    {.dial = Item::mnuBall_v, .panels = kWalls, .families = 7, .parts = 2},
    {.dial = Item::mnuBifvert, .panels = kWalls, .families = 4, .zoned = false},
    {.dial = Item::mnucatenaria,
     .panels = {"txtLAT=35 txtLON=-60 txtDecl=40", "txtLAT=12 txtLON=20 txtDecl=-100"},
     .families = 8,
     .redNoon = false,
     .days = {{"solstice°", -23.445},
              {"solstice", 23.445},
              {"+-20°", -20.1552},
              {"-+20°", 20.1552},
              {"-+11°", -11.4746},
              {"+-11°", 11.4746}}},
    {.dial = Item::mnuConoAntico,
     .panels = kLatitudes,
     .families = 4,
     .parts = 2,
     .redNoon = false},
    {.dial = Item::mnuCorncil, .panels = kLatitudes, .families = 2, .redNoon = false},
    {.dial = Item::mnuCorncon, .panels = kLatitudes, .families = 2, .redNoon = false},
    {.dial = Item::mnuCorn_flat, .panels = kLatitudes, .families = 2, .redNoon = false},
    {.dial = Item::mnuCorn_flat2, .panels = kLatitudes, .families = 2, .redNoon = false}};

TEST(Meanings, AreWhatFamilyLayerAndColourPromise) {
  for (const Row& row : kRows) {
    std::set<CurveFamily> seen;
    bool trueOnly = row.panels.size() == 1;
    for (const std::string_view panel : row.panels) {
      ProvenDial dial(row.dial, "txtLineofdeclination=-7.25");
      dial.with(kFamilies).with(panel).prove(std::exchange(trueOnly, !trueOnly));
      const Promise promise(row, dial);
      for (const ProvenStroke& stroke : dial.strokes) {
        if (stroke.finding != proof::Finding::True) continue;
        seen.insert(stroke.meaning.family);
        ASSERT_NEAR(promise.broken(stroke), 0, kSlack)
            << rowOf(row.dial).name << ' ' << panel << " family "
            << static_cast<int>(stroke.meaning.family) << " ink " << stroke.colour << " at "
            << stroke.from.x << ", " << stroke.from.y;
      }
    }
    EXPECT_EQ(seen.size(), row.families) << rowOf(row.dial).name;
  }
}

// --- How far the hours run

struct Range {
  Item dial;
  CurveFamily family;
  std::string_view layer, settings;
  double first, last;  // hours, those of the sun from noon on
};

const Range kRanges[] = {
    {Item::M_Light, Italic, "0", "ck_Italiche txtLAT=62 txtDecl=-60", 8, 20},
    {Item::M_Light, Babylonian, "0", "ck_babiloniche txtLAT=62 txtDecl=60", 8, 17},
    {Item::M_Light, Temporary, "0", "ckTemp txtLAT=62 txtDecl=0", 1, 11},
    {Item::mnuVertSph, Italic, "0", "ck_Italiche txtLAT=62 txtDecl=-60", 7, 22},
    {Item::mnuVertSph, Babylonian, "0", "ck_babiloniche txtLAT=62 txtDecl=60", 2, 17},
    {Item::mnuVertSph, Temporary, "0", "ckTemp txtLAT=62 txtDecl=0", 1, 11},
    {Item::mnuUni, Italic, "Ita", "ck_Italiche txtLAT=62 txtDecl=-60", 7, 21},
    {Item::mnuUni, Babylonian, "Bab", "ck_babiloniche txtLAT=62 txtDecl=60", 3, 13},
    {Item::mnuUni, Temporary, "Temp", "ckTemp txtLAT=62 txtDecl=0", 0, 12},
    {Item::mnuFontana_H3, Babylonian, "bab", "ck_babiloniche TxtInizio=1 TxtFine=24", 1, 13},
    {Item::mnuFontana_H3, Italic, "ita", "ck_Italiche TxtInizio=1 TxtFine=24", 12, 23.5},
    {Item::mnuFontana_H3, Temporary, "temp", "ckTemp TxtInizio=1 TxtFine=24", 0.5, 11.5},
    {Item::mnuBifvert, Hours, "oreemezze", "chkOreAstronomiche", -6, 6},
    {Item::mnuBifvert, Italic, "Ita", "ck_Italiche TxtInizio=1 TxtFine=24", 22, 24},
    {Item::mnuBifvert, Italic, "Ita2", "ck_Italiche TxtInizio=1 TxtFine=24", 1, 24},
    // The first line of each loop is left out; the last one, half a turn on, draws it.
    {Item::mnucatenaria, Hours, "mezze", "chkOreAstronomiche TxtInizio=1 TxtFine=23", -10.5, 12.5},
    {Item::mnucatenaria, Italic, "Ita", "ck_Italiche TxtInizio=1 TxtFine=23", 22, 23},
    {Item::mnucatenaria, Italic, "Ita1", "ck_Italiche TxtInizio=1 TxtFine=23", 1, 21},
    {Item::mnucatenaria, Babylonian, "bab", "ck_babiloniche TxtInizio=1 TxtFine=23", 2, 4},
    {Item::mnucatenaria, Babylonian, "bab2", "ck_babiloniche TxtInizio=1 TxtFine=23", 5, 24},
    {Item::mnuConoAntico, Temporary, "Temp", "ckTemp TxtHour=1", 0, 12},
    {Item::mnuConoAntico, Italic, "ita", "ck_Italiche TxtHour=1", 9, 23},
    {Item::mnuCorncil, Hours, "ore", "", 0, 6},
    {Item::mnuCorncil, Hours, "ore2", "", -6, 0},
    {Item::mnuCorncil, Declinations, "diurna", "Ck_DayLightCurves", 0, 7},
    {Item::mnuCorncon, Hours, "ore1", "", -2, 7},
    {Item::mnuCorncon, Hours, "ore2", "", -7, 2},
    {Item::mnuCorncon, Declinations, "diurna", "Ck_DayLightCurves", -7, 0},
    {Item::mnuCorn_flat, Hours, "afternoon", "", -1, 7},
    {Item::mnuCorn_flat, Hours, "morning", "", -7, 1},
    {Item::mnuCorn_flat2, Hours, "afternoon", "", 0, 5},
    {Item::mnuCorn_flat2, Hours, "morning", "", -5, 0}};

double hourOf(CurveFamily family, double H, double arc) {
  const auto ofDay = [](double turn) { return std::fmod(turn / 15 + 47.5, 24) + 0.5; };
  switch (family) {
    case Italic: return ofDay(H - arc);
    case Babylonian: return ofDay(H + arc);
    case Temporary: return (H / arc + 1) * 6;
    default: return H / 15;
  }
}

TEST(Meanings, RunFromTheFirstHourToTheLast) {
  for (const Range& range : kRanges) {
    ProvenDial dial(range.dial,
                    "TxtInizio=8 TxtFine=20 x1txt=-3 x2txt=3 y1txt=3 y2txt=-3 txtDecl=0");
    dial.with(range.settings).draw();
    double first = HUGE_VAL, last = -HUGE_VAL;
    for (const ProvenStroke& stroke : dial.strokes) {
      if (stroke.meaning.family != range.family || stroke.layer != dial.sheet.layer(range.layer))
        continue;
      const Sun& sun = stroke.meaning.first;
      const double arc = degrees(dial.scene().sky.semiArc(sun.declination));
      const double hour = hourOf(range.family, degrees(sun.hourAngle), arc);
      first = std::fmin(first, hour);
      last = std::fmax(last, hour);
    }
    const double within = range.family == Declinations ? 0.01 : 1e-4;
    EXPECT_NEAR(first, range.first, within) << rowOf(range.dial).name << ' ' << range.layer;
    EXPECT_NEAR(last, range.last, within) << rowOf(range.dial).name << ' ' << range.layer;
  }
}

}  // namespace
}  // namespace dialwright
