// Clicks on menu items and fields.
#include "shell/clicks.hpp"

#include <vector>

#include "shell/dispatch.hpp"
#include "shell/setups.hpp"

namespace dialwright {

namespace {

// Hours that a click on an hour system's box puts in; the leading blank belongs to the text.
struct HourDefaults {
  Field box;
  std::string_view first;
  std::string_view last;
};
constexpr HourDefaults kHourDefaults[] = {{Field::ck_babiloniche, " 0", " 12"},
                                          {Field::ck_Italiche, " 13", " 23"},
                                          {Field::ckTemp, " 0", " 12"}};

void clickMenu(Panel& panel, DialParams& params, Item item) {
  switch (item) {
    case Item::O_PIANI:
    case Item::mnuStereo: params.ModoDati = 1; break;
    case Item::mnuBif:
      params.ModoDati = 1;
      panel.setState(Field::OptConvex, false);
      break;
    case Item::O_CILINDRICI:
    case Item::mnuConoAntico: params.ModoDati = 0; break;
    default: break;
  }
}

}  // namespace

void clickItem(Panel& panel, DialParams& params, Item item, const Translator& T) {
  if (rowOf(item).parent != Item::None) clickItem(panel, params, rowOf(item).parent, T);
  clickMenu(panel, params, item);
  if (!isDial(item)) return;
  const SetUp* setUp = findSetUp(item);
  if (setUp == nullptr) {
    panel.choose(item);
    return;
  }
  apply(*setUp, panel, T);
  if (item == Item::M_Light && !setHoursOfSideWall(panel)) {
    panel.setText(Field::TxtInizio, "9");
    panel.setText(Field::TxtFine, "15");
  }
}

bool setHoursOfSideWall(Panel& panel) {
  const double declination = panel.number(Field::txtDecl);
  if (!(declination > 80 || declination < -80)) return false;
  panel.setText(Field::TxtInizio, declination > 80 ? "13" : "5");
  panel.setText(Field::TxtFine, declination > 80 ? "19" : "11");
  return true;
}

void clickField(Run& run, Field field, bool state) {
  run.panel.setState(field, state);
  for (const HourDefaults& hours : kHourDefaults) {
    if (hours.box != field) continue;
    run.panel.setText(Field::TxtInizio, hours.first);
    run.panel.setText(Field::TxtFine, hours.last);
  }
  switch (field) {
    case Field::ck_Etna: run.params.UsaLongitudine = state ? 1 : 0; break;
    case Field::ckFrame:
      DisegnaCornice(run);
      run.panel.setState(Field::ckFrame, false);
      break;
    case Field::optX:
    case Field::optY: run.beep(); break;
    default: break;
  }
}

}  // namespace dialwright
