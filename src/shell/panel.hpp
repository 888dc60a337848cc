// The input panel: the state of every control and of every menu item. Setting a state here fires no
// click.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "shell/catalogue.hpp"
#include "shell/fields.hpp"

namespace dialwright {

struct Control {
  std::string text;     // of a text field, or of the combo box
  std::string caption;  // of the other kinds
  std::string tip;
  bool state = false;  // checked, or selected
  bool visible = true;
  bool enabled = true;

  bool operator==(const Control&) const = default;
};

struct MenuItem {
  std::string caption;
  bool checked = false;
  bool visible = true;
  bool enabled = true;
};

class Panel {
 public:
  // Every field with its default text, caption, tip and state; no dial is checked and cmdData is
  // hidden.
  Panel();

  Control& operator[](Field field) { return controls_[static_cast<std::size_t>(field)]; }
  const Control& operator[](Field field) const {
    return controls_[static_cast<std::size_t>(field)];
  }
  MenuItem& operator[](Item item) { return items_[static_cast<std::size_t>(item)]; }
  const MenuItem& operator[](Item item) const { return items_[static_cast<std::size_t>(item)]; }

  const std::string& text(Field field) const { return (*this)[field].text; }
  // The number of the field's text; a fault when it is too large for a double.
  double number(Field field) const;
  bool on(Field field) const { return (*this)[field].state; }

  // Puts a text into a field. TxtHour turns into "1" when its number is 0.
  void setText(Field field, std::string_view text);
  // Checks a box, or selects an option and deselects the others of its group.
  void setState(Field field, bool state);
  // Shows or hides a field together with its label.
  void show(Field field, bool visible);

  // Takes over what a copy of this panel was given: each control that differs in `after` from what
  // it was in `before`, unless it differs here as well.
  void takeChanges(const Panel& before, const Panel& after);

  // The first checked dial in menu order, or Item::None.
  Item chosen() const;
  // Checks that dial alone.
  void choose(Item dial);

 private:
  std::array<Control, kFieldCount> controls_;
  std::array<MenuItem, kItemCount> items_;
};

}  // namespace dialwright
