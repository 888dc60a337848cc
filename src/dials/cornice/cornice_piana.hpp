// Programs 38 and 39: cornice dials of a level disc above an upright wall.
#pragma once

#include "shell/run.hpp"

namespace dialwright {

// Program 38: the shadow of the disc's side away from the wall. Refuses southern latitudes.
void DisegnaCornicePianaEst(Run& run);

// Program 39: the shadow of the side next to the wall. Refuses southern latitudes; ReclinRad is 0
// after it.
void DisegnaCornicePianaInt(Run& run);

}  // namespace dialwright
