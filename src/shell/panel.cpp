// The panel's states.
#include "shell/panel.hpp"

#include "numerics/numbers.hpp"

namespace dialwright {

Panel::Panel() {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const FieldRow& row = rowOf(fieldAt(i));
    Control& control = controls_[i];
    (row.kind == FieldKind::Text ? control.text : control.caption) = row.text;
    control.tip = row.tip;
    control.state = row.state;
  }
  for (std::size_t i = 0; i < kItemCount; ++i) items_[i].caption = rowOf(itemAt(i)).caption;
  (*this)[Field::cmdData].visible = false;
}

double Panel::number(Field field) const { return numberOf(text(field)); }

void Panel::setText(Field field, std::string_view text) {
  (*this)[field].text = text;
  if (field == Field::TxtHour && number(field) == 0) (*this)[field].text = "1";
}

void Panel::setState(Field field, bool state) {
  (*this)[field].state = state;
  const OptionGroup group = rowOf(field).group;
  if (!state || group == OptionGroup::None || group == OptionGroup::Point) return;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    if (fieldAt(i) != field && rowOf(fieldAt(i)).group == group) controls_[i].state = false;
  }
}

void Panel::show(Field field, bool visible) {
  (*this)[field].visible = visible;
  const Field label = rowOf(field).label;
  if (label != Field::None) (*this)[label].visible = visible;
}

void Panel::takeChanges(const Panel& before, const Panel& after) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Control& was = before.controls_[i];
    if (after.controls_[i] != was && controls_[i] == was) controls_[i] = after.controls_[i];
  }
}

Item Panel::chosen() const {
  for (const Item dial : dialItems()) {
    if ((*this)[dial].checked) return dial;
  }
  return Item::None;
}

void Panel::choose(Item dial) {
  for (const Item other : dialItems()) (*this)[other].checked = other == dial;
}

}  // namespace dialwright
