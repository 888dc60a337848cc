// The specimen sheet of the lettering: every digit, hour and sign once.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Lays out, in rows from the sheet's origin downwards, the ten digits, the hours in Arabic and in
// Roman numerals and the twelve signs with the cardinal arrow, in the sizes of the panel's fields.
void DisegnaCampionario(Run& run);

}  // namespace dialwright
