// With true shadows only a dial draws nothing else, loses none that the literal drawing has, and
// has the lines of its families wherever the sun draws them.
#include <gtest/gtest.h>

#include <map>

#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using proof::radians;
using enum CurveFamily;

// Suns that the lines of a family stand for.
std::vector<Sun> sunsOf(CurveFamily family, const proof::Sky& sky) {
  constexpr double latest = 75;
  std::vector<Sun> suns;
  for (double H = -latest; H <= latest; H += 15) {
    for (const double day : {-22.0, -13.0, -4.0, 0.5, 6.0, 15.0, 23.0}) {
      const double d = radians(day), arc = sky.semiArc(d);
      if (family == Hours) suns.push_back({radians(H), d});
      if (family == Italic) suns.push_back({arc - radians(90 + H), d});
      if (family == Babylonian) suns.push_back({radians(90 + H) - arc, d});
    }
  }
  for (double H = -latest + 1; H <= latest; H += 7.3) {
    if (family == Equinoctial) suns.push_back({radians(H), 0});
    for (const double day : {-23.445, -20.1552, -11.4746, 11.4746, 20.1552, 23.445}) {
      if (family == Declinations) suns.push_back({radians(H), radians(day)});
    }
  }
  return suns;
}

// Of an hour its angle, of a day its declination is that of the sun.
bool standsFor(const Meaning& meaning, const Sun& sun) {
  const Sun& own = meaning.first;
  if (meaning.family == Hours) return !(offStep(own.hourAngle - sun.hourAngle, proof::kPi) > 1e-3);
  return meaning.family != Declinations || !(std::abs(own.declination - sun.declination) > 1e-3);
}

// A dial, the boxes of what it draws and its panels; how near its lines must pass to their shadows
// (dots are apart), what part of these they must pass, and the families that are held to it.
struct Row {
  Item dial;
  std::string_view boxes;
  std::vector<std::string_view> panels;
  double gap = 0.0002, share = 0.97;
  std::vector<CurveFamily> lines = {Hours, Declinations, Equinoctial, Italic, Babylonian};
  std::size_t chance = 2;  // strokes that are true by chance: chords over a gap of the light
};

// Where a sun's shadow falls well into the middle of the drawing, neither along the surface nor of
// a sun at the horizon.
std::optional<Punto> plainShadow(const ProvenDial& dial, const ProvenStroke& start,
                                 const Sun& sun) {
  const proof::Scene& scene = dial.scene();
  proof::Judgement there = scene.judge({0, -0.1}, start.meaning.family, sun);
  if (there.miss == HUGE_VAL) there = scene.judge(start.from, start.meaning.family, sun);
  const Punto at = there.shadow;
  there = scene.judge(at, start.meaning.family, sun);
  if (!there.lit || !(there.miss < 1e-6)) return std::nullopt;
  if (std::abs(at.x) > 0.4 || std::abs(at.y + 0.4) > 0.58) return std::nullopt;
  const double height = dot(scene.surface->place(at)->normal, there.sunwards);
  return std::fmin(there.sunwards.z, height) < 0.05 ? std::nullopt : std::optional(at);
}

// The part of a family's plain shadows that strokes of their own pass; 1 where there are few.
double drawn(const ProvenDial& dial, CurveFamily family, double gap) {
  std::vector<ProvenStroke> own;
  std::ranges::copy_if(dial.strokes, std::back_inserter(own),
                       [=](const ProvenStroke& stroke) { return stroke.meaning.family == family; });
  if (own.empty()) return 1;
  double wanted = 0, found = 0;
  for (const Sun& sun : sunsOf(family, dial.scene().sky)) {
    const std::optional<Punto> shadow = plainShadow(dial, own[0], sun);
    if (!shadow) continue;
    ++wanted;
    found += std::ranges::any_of(own, [&](const ProvenStroke& stroke) {
      return stroke.distance(*shadow) < gap && standsFor(stroke.meaning, sun);
    });
  }
  return wanted < 10 ? 1 : found / wanted;
}

const std::vector<std::string_view>
    kWalls = {"txtLAT=0 txtDecl=40", "txtLAT=5 txtDecl=-90", "txtLAT=23.445 txtDecl=0",
              "txtDecl=-14.57",      "txtDecl=180",          "txtLAT=66.9 txtDecl=-40"},
    kPlanes = {"txtLAT=0 txtDecl=40",
               "txtLAT=5 txtDecl=-90 txtReclinZ=55",
               "txtLAT=23.445 txtDecl=0 txtReclinZ=110",
               "txtDecl=-14.57",
               "txtDecl=180 txtReclinZ=55",
               "txtLAT=66.9 txtDecl=-40"},
    kCylinders = {"TxtRadius=.4 OptConvex txtLAT=0 txtDecl=40",
                  "TxtRadius=.4 Optconcave txtLAT=12 txtDecl=-55",
                  "TxtRadius=.4 OptConvex txtDecl=-14.57",
                  "TxtRadius=.4 Optconcave txtDecl=-14.57 TxtStilo=.5",
                  "TxtRadius=.4 OptConvex txtDecl=170",
                  "TxtRadius=.4 OptConvex txtLAT=66.7 txtDecl=-55 TxtStilo=.5",
                  "TxtRadius=.4 Optconcave txtLAT=66.7 txtDecl=0"},
    kLevels = {"txtLAT=0", "txtLAT=23.4", "txtLAT=66.7"},
    kCones = {"txtLAT=0 txtSemi=10", "txtLAT=45 ckFunction", "txtLAT=67 txtSemi=80 ckFunction",
              "txtLAT=90"},
    kHoles = {"txtLAT=0 txt_R2=.45", "txtLAT=12 txt_R2=.2", "txtLAT=67 txt_R2=.45"},
    kDiscs = {"txtLAT=12 txtDecl=33", "txtLAT=23.445 txtDecl=-75 txt_R2=.1", "txtDecl=-14.57",
              "txtDecl=150 txt_R2=.1", "txtLAT=75 txtDecl=0"};
const Row kRows[] = {
    {Item::M_Light, "chkOreAstronomiche Ck_DayLightCurves", kWalls, 0.03, 0.6},
    {Item::M_Light,
     "ck_Italiche ck_babiloniche ckTemp ck_Equinoziale ck_Lemniscate CkQibla",
     kWalls,
     0.0002,
     0.83,
     {Equinoctial, Italic, Babylonian}},
    {Item::M_Inclinati, kFamilies, kPlanes, 0.03, 0.8},
    {Item::M_Inclinati,
     "optX chkOreAstronomiche txtReclinZ=65",
     {"txtLAT=-35 txtDecl=-20"},
     0.03,
     0.8},
    {Item::M_Inclinati,
     "optY chkOreAstronomiche ck_Equinoziale",
     {"txtLAT=0 txtDecl=40", "txtDecl=-14.57"},
     0.03,
     0.6},
    {Item::M_Proiettivo, kFamilies, kPlanes, 0.03, 0.55},
    {Item::M_nProiettivo, kFamilies, kPlanes, 0.03, 0.55},
    {Item::M_Frinter,
     kFamilies,
     {"txtLAT=0 txtDecl=40", "txtDecl=-14.57", "txtLAT=5 txtDecl=-90"},
     0.01,
     0.55},
    {Item::mnuVertSph, kFamilies, kWalls, 0.0002, 0.83},
    {Item::mnuUni, kFamilies, kPlanes, 0.0002, 0.83},
    {Item::M_Param, kFamilies, kCylinders, 0.03, 0.75},
    // A style in the plane of the horizon has hours whose sun rises or sets all day.
    {Item::M_CILINDRICI,
     kFamilies,
     kCylinders,
     0.03,
     0.75,
     {Hours, Declinations, Italic, Babylonian},
     12},
    {Item::M_Parabolico, kFamilies, kCylinders, 0.03, 0.75, {Hours, Equinoctial}},
    {Item::mnuCircp, kFamilies, kCylinders, 0.03, 0.75},
    {Item::mnuCCs, kFamilies, kCylinders, 0.0002, 0.93},
    {Item::mnuChapeau,
     kFamilies,
     kLevels,
     0.0002,
     0.97,
     {Hours, Declinations, Equinoctial, Italic, Babylonian},
     25},
    {Item::mnuFontana_H3, kFamilies, kLevels},
    {Item::mnuBifvert, kFamilies, {kWalls[0], kWalls[2], kWalls[5]}},
    {Item::mnucatenaria,
     "chkOreAstronomiche Ck_DayLightCurves ck_Lemniscate",
     {"txtLAT=30 txtDecl=90", "txtLAT=66.9 txtDecl=-40"}},
    {Item::mnuBall, kFamilies, kLevels},
    {Item::mnuBall, "chkOreAstronomiche Ck_DayLightCurves txtD1=0 TxtRadius=.05", {"txtLAT=12"}},
    {Item::mnuBall_v, kFamilies, kWalls},
    {Item::mnuConoAntico, kFamilies, kCones},
    // What the lines of a border must pass is a test of its own.
    {Item::mnuCorncil, "Ck_DayLightCurves", kHoles, 0, 0, {}},
    {Item::mnuCorncon, "Ck_DayLightCurves", kHoles, 0, 0, {}},
    {Item::mnuCorn_flat, "Ck_DayLightCurves txt_Definition=50", kDiscs, 0, 0, {}},
    {Item::mnuCorn_flat2, "Ck_DayLightCurves txt_Definition=50", kDiscs, 0, 0, {}}};

TEST(TrueShadows, AloneAndAllOfThem) {
  std::size_t panels = 0;
  for (const Row& row : kRows) {
    for (const std::string_view panel : row.panels) {
      SCOPED_TRACE(testing::Message() << rowOf(row.dial).name << ' ' << panel);
      ProvenDial dial(row.dial, "TxtInizio=0 TxtFine=24 TxtHour=1");
      const auto literal = dial.with(row.boxes).with(panel).prove().tallies();
      panels += !literal.empty();  // or refused
      auto all = dial.prove(true).tallies();
      for (const auto& [family, was] : literal) {
        SCOPED_TRACE(testing::Message() << "family " << static_cast<int>(family));
        const std::size_t copies = row.dial == Item::M_Light && family == Analemma ? 13 : 1;
        EXPECT_EQ(all[family].ghosts + all[family].strays, 0u);
        EXPECT_GE(all[family].genuine + row.chance, was.genuine / copies);
        if (std::ranges::count(row.lines, family) > 0) {
          EXPECT_GE(drawn(dial, family, row.gap), row.share);
        }
      }
    }
  }
  EXPECT_GT(panels, 105u);
}

// Whatever reclination and zone an earlier dial of the program left in the record.
TEST(TrueShadows, AreOfNoEarlierDial) {
  for (const Item item : {Item::M_Light, Item::M_Frinter, Item::mnuVertSph, Item::mnuChapeau}) {
    const auto drawn = [item](double left) {
      ProvenDial dial(item, "chkOreAstronomiche ck_Lemniscate ck_Orizzonte ck_Triangolo");
      dial.params.ReclinRad = dial.params.CorrFuso = left;
      return dial.prove(true).entities();
    };
    EXPECT_EQ(drawn(0.7), drawn(0)) << rowOf(item).name;
  }
}

}  // namespace
}  // namespace dialwright
