// The table of set-ups, one row a dial.
#include "shell/setups.hpp"

#include <algorithm>
#include <array>

namespace dialwright {

namespace {

using enum Field;
using Fields = std::vector<Field>;
using Texts = std::vector<FieldText>;

// Fields that every dial has unless its row hides them.
const Fields& commonFields() {
  static const Fields kCommon = {TxtStilo,
                                 txtDecl,
                                 txtLON,
                                 TxtFuso,
                                 TxtHour,
                                 txt_Definition,
                                 chkOreAstronomiche,
                                 Ck_DayLightCurves,
                                 ck_Equinoziale,
                                 ck_Etna,
                                 ck_Italiche,
                                 ck_babiloniche,
                                 ck_Lemniscate,
                                 ck_Orizzonte,
                                 ck_Sustilare,
                                 ck_Triangolo};
  return kCommon;
}

// Fields that no set-up hides.
constexpr std::array kAlwaysShown = {txtLAT,  x1txt,  y1txt,      x2txt, y2txt,
                                     ckFrame, ckAssi, ckSiderali, ckTrue};

// Fields that come and go with another one.
struct Companion {
  Field leader;
  Field follower;
};
constexpr std::array kCompanions = {Companion{txtReclinZ, OptZenital},
                                    Companion{txtReclinZ, OptHorizontal},
                                    Companion{txtReclinZ, FrameInclination},
                                    Companion{Optconcave, OptConvex}, Companion{optX, Label1}};

// What all set-ups without a map disable.
constexpr std::array kMapControls = {cmdStati, cmbStati, cmdPlot, ckStar, ckAssi};

// The cornice dials draw whole hours in any case.
const Fields kHoursFixed = {TxtHour, chkOreAstronomiche};
const Texts kYearHalves = {{Optconcave, "22D-21J"}, {OptConvex, "22J-21D"}};
const Texts kRadiusLabels = {
    {Lab_r2, "R2"}, {lblradius, "Radius"}, {Optconcave, "Concave"}, {OptConvex, "Convex"}};

Texts operator+(Texts a, const Texts& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// A dial on a cylinder of circular cross-section.
SetUp cylinder(Item item, Fields shown, Fields hidden) {
  return {.item = item,
          .shown = std::move(shown),
          .hidden = std::move(hidden),
          .texts = {{txt_R2, "0.02"}, {TxtRadius, ".4"}},
          .captions = kRadiusLabels,
          .tips = {{lblradius, "Radius"}},
          .convex = true};
}

// A flat cornice dial.
SetUp flatCornice(Item item) {
  return {
      .item = item,
      .shown = {TxtRadius, ckArabi, ckRomani, txtAO, txtArabi, txtLineofdeclination, txtNumbersize},
      .hidden = {TxtStilo, txtLON, TxtFuso, TxtHour, txt_Definition, chkOreAstronomiche,
                 ck_Equinoziale, ck_Etna, ck_Italiche, ck_babiloniche, ck_Lemniscate, ck_Orizzonte,
                 ck_Sustilare, ck_Triangolo},
      .texts = {{TxtRadius, "0.2"}, {txt_R2, "0"}, {TxtHour, "1"}},
      .captions = {{lblLineofdeclination, "Border shade"}},
      .disabled = kHoursFixed};
}

std::vector<SetUp> makeSetUps() {
  return {
      {.item = Item::M_Light, .shown = {CkConic, TxtFine, TxtInizio, ckTemp}},
      {.item = Item::M_Inclinati,
       .shown = {optX, optY, txtReclinZ, txt_Definition, Ck_DayLightCurves},
       .hidden = {CkConic, Optconcave, OptConvex, ckTemp},
       .keepsOthers = true},
      {.item = Item::M_Proiettivo,
       .shown = {txtReclinZ},
       .hidden = {TxtFuso, txt_Definition, ck_Etna, ck_Lemniscate}},
      {.item = Item::M_nProiettivo, .shown = {txtReclinZ}, .hidden = {txt_Definition}},
      {.item = Item::M_Frinter, .hidden = {TxtFuso, txt_Definition}},
      {.item = Item::mnuVertSph,
       .shown = {CheckL,      CkConic,       CkQibla,
                 Ck_Section,  Filtertxt,     Optconcave,
                 Option_P,    TxtRadius,     ckAlt,
                 ckArabi,     ckAsr,         ckAz,
                 ckFunction,  ckRomani,      ckStar,
                 ckTemp,      ckZodiaco,     txtAO,
                 txtArabi,    txtDelta,      txtLineofdeclination,
                 txtLocation, txtNumbersize, txtQlat,
                 txtQlon,     txtSid_h,      txtSid_m,
                 txtSid_s,    txtZodiacsize, txt_R2},
       .texts = {{txt_R2, "-50"}, {TxtRadius, "60"}, {Filtertxt, "0.1"}},
       .captions = Texts{{Lab_r2, "East"}, {lblradius, "West"}, {ckAz, "Az"}} + kYearHalves,
       .tips = {{lblradius, "west longitude"}},
       .hasMap = true,
       .enabled = {ckSiderali}},
      {.item = Item::mnuUni,
       .shown = {CkQibla,       Filtertxt,     Option_P,   TxtRadius, ckAlt,
                 ckArabi,       ckAz,          ckFunction, ckRomani,  ckTemp,
                 ckZodiaco,     txtAO,         txtArabi,   txtDelta,  txtLineofdeclination,
                 txtLocation,   txtNumbersize, txtQlat,    txtQlon,   txtReclinZ,
                 txtZodiacsize, txt_R2},
       .hidden = {txt_Definition},
       .texts = {{txt_R2, "-50"}, {TxtRadius, "60"}, {txtD1, "0.3"}},
       .captions = {{Lab_r2, "East"}, {lblradius, "West"}},
       .tips = {{lblradius, "west longitude"}},
       .hasMap = true},
      {.item = Item::mnuDia,
       .shown = {TxtRadius, ckRomani, txtLineofdeclination, txtNumbersize, txtReclinZ},
       .hidden = {TxtStilo, txtLON, TxtFuso, TxtHour, txt_Definition, chkOreAstronomiche,
                  Ck_DayLightCurves, ck_Equinoziale, ck_Etna, ck_Italiche, ck_babiloniche,
                  ck_Lemniscate, ck_Orizzonte, ck_Sustilare, ck_Triangolo},
       .texts = {{TxtRadius, "0.4"}}},
      cylinder(Item::M_Param, {Ck_Section, Optconcave, TxtRadius},
               {TxtFuso, TxtHour, ck_Etna, ck_Lemniscate, ck_Sustilare}),
      cylinder(Item::M_CILINDRICI, {Ck_Section, Optconcave, TxtRadius}, {TxtHour}),
      {.item = Item::M_Parabolico,
       .shown = {Ck_Section, Optconcave, TxtRadius, txtLineofdeclination},
       .hidden = {TxtHour},
       .texts = {{TxtRadius, "0.4"}},
       .captions = {{lblradius, "Radius"}, {Optconcave, "Concave"}, {OptConvex, "Convex"}},
       .tips = {{lblradius, "radius of curvature in vertex (use meters)"}},
       .convex = true},
      cylinder(Item::mnuCircp, {Ck_Section, Optconcave, TxtRadius}, {TxtHour}),
      cylinder(Item::mnuCCs, {Ck_Section, Optconcave, TxtRadius, ckTemp, txtLineofdeclination},
               {TxtHour, txt_Definition}),
      {.item = Item::mnuChapeau,
       .shown = {CheckL, Ck_Section, TxtRadius, ckArabi, ckRomani, ckTemp, txtArabi,
                 txtLineofdeclination, txtNumbersize, txt_R2},
       .hidden = {TxtStilo, txtDecl, TxtHour, txt_Definition},
       .texts = {{txt_R2, "0.4"}, {TxtRadius, ".14"}},
       .captions = Texts{{Lab_r2, "R2"}, {lblradius, "Radius"}} + kYearHalves,
       .enabled = {txtD1}},
      {.item = Item::mnuFontana_H3,
       .shown = {TxtRadius, ckArabi, ckRomani, ckTemp, txtAO, txtArabi, txtDelta,
                 txtLineofdeclination, txtNumbersize, txt_R2},
       .hidden = {TxtHour, txt_Definition},
       .texts =
           {{TxtRadius, "0.3"}, {txt_R2, "0.3"}, {txtDecl, "0"}, {txtReclinZ, "0"}, {txtAO, "45"}},
       .captions = {{p_Stilo, "Height"}, {lblradius, "Radius"}, {Lab_r2, "R2"}},
       .tips = {{lblradius, "upper radius"}, {Lab_r2, "radius of base"}}},
      {.item = Item::mnuBifvert,
       .shown = {TxtFine, TxtInizio, ckFunction, txtLineofdeclination, txtReclinZ},
       .hidden = {TxtHour, txt_Definition, ck_babiloniche, ck_Lemniscate}},
      {.item = Item::mnucatenaria,
       .shown = {CkQibla, TxtFine, TxtInizio, TxtRadius, ckArabi, ckRomani, ckTemp, txtAO, txtArabi,
                 txtD1, txtDelta, txtLineofdeclination, txtLocation, txtNumbersize, txtQlat,
                 txtQlon, txtV1},
       .hidden = {TxtHour, txt_Definition},
       .texts = {{TxtRadius, "0.5"}, {TxtStilo, "0.2"}, {txtD1, "0.1"}, {txtV1, "0.25"}},
       .captions = {{lblradius, "Luce/2"}},
       .tips = {{lblradius, "half distance between the hanging points"}}},
      {.item = Item::mnuBall,
       .shown = {TxtRadius, ckArabi, ckRomani, ckTemp, txtAO, txtArabi, txtD1, txtDelta,
                 txtLineofdeclination, txtNumbersize},
       .hidden = {TxtStilo, txtDecl, TxtHour, txt_Definition},
       .texts = {{TxtRadius, "0.1"}, {txtD1, "0.1"}, {txtDecl, "0"}, {txtReclinZ, "0"}}},
      {.item = Item::mnuBall_v,
       .shown = {TxtFine, TxtInizio, TxtRadius, ckArabi, ckRomani, ckTemp, txtAO, txtArabi,
                 txtDelta, txtLineofdeclination, txtNumbersize},
       .hidden = {TxtStilo, TxtHour, txt_Definition},
       .texts = {{TxtRadius, "0.2"}, {txtReclinZ, "90"}}},
      {.item = Item::mnuCorncil,
       .shown = {TxtRadius, ckArabi, ckRomani, txtAO, txtArabi, txtLineofdeclination,
                 txtNumbersize},
       .hidden = {TxtStilo, txtDecl, txtLON, TxtFuso, TxtHour, txt_Definition, chkOreAstronomiche,
                  ck_Equinoziale, ck_Etna, ck_Italiche, ck_babiloniche, ck_Lemniscate, ck_Orizzonte,
                  ck_Sustilare, ck_Triangolo},
       .texts = {{TxtRadius, "0.5"}, {txt_R2, "0.5"}, {TxtHour, "1"}},
       .captions = {{lblLineofdeclination, "Border shade"}},
       .disabled = kHoursFixed},
      {.item = Item::mnuCorncon,
       .shown = {TxtRadius, ckArabi, ckRomani, txtAO, txtArabi, txtD1, txtLineofdeclination,
                 txtNumbersize},
       .hidden = {txtLON, TxtFuso, TxtHour, txt_Definition, ck_Equinoziale, ck_Etna, ck_Italiche,
                  ck_babiloniche, ck_Lemniscate, ck_Orizzonte, ck_Sustilare, ck_Triangolo},
       .texts = {{TxtRadius, "0.5"},
                 {TxtStilo, "0.3"},
                 {txt_R2, "0.45"},
                 {txtD1, "0.8"},
                 {TxtHour, "1"}},
       .captions = {{lblLineofdeclination, "Border shade"}},
       .disabled = kHoursFixed},
      flatCornice(Item::mnuCorn_flat),
      flatCornice(Item::mnuCorn_flat2),
      {.item = Item::mnuConoAntico,
       .shown = {ckArabi, ckTemp, txtArabi, txtSemi},
       .hidden = {txtDecl, txtLON, TxtFuso, TxtHour, ck_Etna, ck_Lemniscate, ck_Sustilare,
                  ck_Triangolo},
       .texts = {{txtDecl, "0"}, {TxtDate, "2.5"}},
       .tips = {{TxtDate, "It leghtens the scaphen"}}},
  };
}

template <class Container>
bool contains(const Container& fields, Field field) {
  return std::find(fields.begin(), fields.end(), field) != fields.end();
}

bool comesAndGoes(Field field) {
  const FieldKind kind = rowOf(field).kind;
  const bool input =
      kind == FieldKind::Text || kind == FieldKind::Check || kind == FieldKind::Option;
  return input && !contains(kAlwaysShown, field);
}

void setShown(Panel& panel, Field field, bool shown) {
  panel.show(field, shown);
  panel[field].enabled = shown;
  for (const Companion& pair : kCompanions) {
    if (pair.leader != field) continue;
    panel.show(pair.follower, shown);
    panel[pair.follower].enabled = shown;
  }
}

void showFields(const SetUp& setUp, Panel& panel) {
  if (!setUp.keepsOthers) {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      if (comesAndGoes(fieldAt(i))) setShown(panel, fieldAt(i), false);
    }
    for (const Field field : commonFields()) setShown(panel, field, true);
  }
  for (const Field field : setUp.hidden) setShown(panel, field, false);
  for (const Field field : setUp.shown) setShown(panel, field, true);
}

void enableExtras(const SetUp& setUp, Panel& panel) {
  if (setUp.keepsOthers) return;
  if (setUp.hasMap) {
    for (const Field field : {cmdStati, LabelCombo, ckAssi}) panel[field].enabled = true;
  } else {
    for (const Field field : kMapControls) panel[field].enabled = false;
  }
  panel[ckSiderali].enabled = false;
  for (const Field field : setUp.enabled) panel[field].enabled = true;
  for (const Field field : setUp.disabled) panel[field].enabled = false;
}

}  // namespace

const SetUp* findSetUp(Item item) {
  static const std::vector<SetUp> kSetUps = makeSetUps();
  const auto found = std::find_if(kSetUps.begin(), kSetUps.end(),
                                  [item](const SetUp& setUp) { return setUp.item == item; });
  return found == kSetUps.end() ? nullptr : &*found;
}

void apply(const SetUp& setUp, Panel& panel, const Translator& T) {
  showFields(setUp, panel);
  enableExtras(setUp, panel);
  panel.choose(setUp.item);
  for (const FieldText& row : setUp.texts) panel.setText(row.field, row.text);
  for (const FieldText& row : setUp.captions) panel[row.field].caption = T(row.text);
  for (const FieldText& row : setUp.tips) panel[row.field].tip = T(row.text);
  if (setUp.convex) panel.setState(OptConvex, true);
  panel[lblAO].caption = T("HA");
  if (panel[lbl_Definizione].visible) panel[lbl_Definizione].caption = T("Definition");
}

}  // namespace dialwright
