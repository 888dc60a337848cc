// The site and the wall, as the drivers read them from the panel.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

inline constexpr const char* kSouthernMessage = "Sorry, unable to work in the Southern hemisphere ";

// Refuses a southern latitude, and tells whether it did.
bool refusesSouth(Run& run);

// Latitude, longitude and its corrections, declination, style, radius and steps from the panel into
// the record; the circle constant goes back to its first value.
void LeggiParametriSito(Run& run);

// CorrLon and CorrFuso from LonAbs and SegnoLon.
void setLongitudeCorrections(Run& run);

// DeclRad from DeclGradi, which is brought within half a turn; a southern wall counts from the
// North.
void wrapDeclination(DialParams& params);

// UsaLongitudine from the box of the standard meridian's time.
void readUsaLongitudine(Run& run);

}  // namespace dialwright
