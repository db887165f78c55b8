// The exit door, the out and saved counts, and the end of a level.
#pragma once

#include "core/game.h"

namespace qb {

void GoInDoor(Game& g, int index);
// Recounts, redraws the counters and ends the level when it is over (then throws LevelOver).
void UpdateInOut(Game& g);

}  // namespace qb
