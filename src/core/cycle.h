// The game cycle: one tick of the game timer runs one cycle.
#pragma once

#include "core/game.h"

namespace qb {

void Timer1_Timer(Game& g);
void TimeMe(Game& g);
void BeginCycle(Game& g);
void DoStuff(Game& g, int index);

}  // namespace qb
