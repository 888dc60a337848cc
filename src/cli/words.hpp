// The words of the command line: dials, fields and assignments, with the nearest right word for a
// wrong one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/program.hpp"

namespace dialwright {

// "no field 'txtLatt'; did you mean txtLAT?", with the question left out when nothing is near.
std::string unknownWord(std::string_view what, std::string_view word,
                        const std::vector<std::string_view>& known);

// The dial of a menu item's name or a program number. Throws UsageError.
Item dialOf(std::string_view word);

// The field of a name. Throws UsageError.
Field fieldOf(std::string_view word);

// NAME=VALUE in its two parts. Throws UsageError.
struct Assignment {
  std::string_view name, value;
};
Assignment assignmentOf(std::string_view text);

// The state that a box or an option is given: 1 or 0. Throws UsageError.
bool stateOf(std::string_view name, std::string_view value);

// Carries out NAME=VALUE as a user would: a text is typed, a box or an option is clicked when that
// changes its state; ckFrame is set without its click, so that the run draws the frame. Throws
// UsageError.
void assignField(Program& program, std::string_view assignment);

// Presses a button; NAME=VALUE in its place assigns a field between two presses. Throws UsageError.
void pressButton(Program& program, std::string_view button);

}  // namespace dialwright
