// What clicks do to the panel: a dial's set-up, the menus' side effects, the behaviours of the
// check boxes.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "shell/run.hpp"

namespace dialwright {

using Translator = std::function<std::string(std::string_view)>;

// A click on a menu item as a user makes it: the menus above it open first, with what their clicks
// set; a dial's click shows, hides, enables and labels the fields that it needs and puts in its
// default texts.
void clickItem(Panel& panel, DialParams& params, Item item, const Translator& T);

// A click on a check box or an option button, which then has the given state.
void clickField(Run& run, Field field, bool state);

// Puts the hours that a wall near West or East sees into TxtInizio and TxtFine; false, with nothing
// changed, when the declination of the panel is between -80 and 80.
bool setHoursOfSideWall(Panel& panel);

}  // namespace dialwright
