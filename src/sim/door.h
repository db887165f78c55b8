// The exit door, the out and saved counts, and the end of a level.
#pragma once

#include "core/game.h"

namespace qb {

LevelEnd GoInDoor(Game& g, int index);
// Recounts and redraws the counters. When nobody is left to come out or walk, the level is over:
// the timers stop, the view is cleared and the end is returned for the caller to pass up.
LevelEnd UpdateInOut(Game& g);

}  // namespace qb
