// Program 13: a filtering hat, a cylinder under a round brim that lets the sun in at its edge.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel, in either hemisphere. Writes the style and the drawing window back
// to the panel.
void QuadranteCappello(Run& run);

}  // namespace dialwright
