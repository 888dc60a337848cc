// Program 40: the Graeco-Roman conical dial, drawn as the development of its cone.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Draws the dial of the panel and, below and beside it, the sheet for its construction. Refuses
// nothing.
void DisegnaScafe(Run& run);

}  // namespace dialwright
