// The catalogue and the fields as lists for people and, in JSON, for scripts.
#pragma once

#include <optional>
#include <string>

#include "app/program.hpp"

namespace dialwright {

// The dials in menu order: menu item, program number, caption, whether it draws.
std::string listOfDials(const Program& program, bool json);

// The fields that a dial shows (all fields without one), after a click on it: name, kind, default
// text, label, tip.
std::string listOfFields(Program& program, std::optional<Item> dial, bool json);

// A proof as a table, a row a layer and one for all: strokes, true ones, ghosts, strays, the worst
// distance in millimetres and in minutes of time ("-" where there is no shadow to measure to).
std::string proofTable(const proof::Proof& proof, bool json);

}  // namespace dialwright
