// From the Run button to the one driver whose dial is checked.
#pragma once

#include <span>

#include "shell/run.hpp"

namespace dialwright {

using Driver = void (*)(Run&);

struct DriverRow {
  Item item;
  Driver draw;
};

// The numbered declinations of the sun, degrees: the solstices and the zodiac's boundaries.
inline constexpr double kSolstice = 23.445;
inline constexpr double kTwentieth = 20.1552;
inline constexpr double kEleventh = 11.4746;

// Derives the sign fields of the record and calls the driver of the first checked dial of the
// table. Returns false when no checked dial has one.
bool CmdRun_Click(Run& run, std::span<const DriverRow> drivers);

// The frame box, when ckFrame is checked: the drawing window in colour 3 on the layer "Quadro".
void DisegnaCornice(Run& run);

}  // namespace dialwright
