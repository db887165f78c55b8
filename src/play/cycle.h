// The game cycle: one tick of the game timer runs one cycle.
#pragma once

#include "core/game.h"

namespace qb {

// One tick of the game timer as the window runs it: the cycle, then, when the level ended in
// it, the result screen and the next load.
void Timer1_Timer(Game& g);

// One tick without what follows a level's end: flips SlowToggle and runs the cycle. Returns how
// the level ended in it, or None; the game is left as the end left it.
LevelEnd RunCycle(Game& g);

LevelEnd TimeMe(Game& g);
LevelEnd BeginCycle(Game& g);
LevelEnd DoStuff(Game& g, int index);

}  // namespace qb
