// The technical data of a dial: its figures as lines of text on the sheet, written after a run.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// The press of the data button. Reads the record that the last run left and the panel's present
// texts, and writes a general block, a block for flat dials, the day lengths, the limit planes of a
// cylinder or the sun's path over a flat dial, and, with ckFunction on an upright one, the tables
// of its coordinates. What can't be worked out keeps its older value, as in a run.
void cmdData_Click(Run& run);

}  // namespace dialwright
