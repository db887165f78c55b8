// The level's time limit and the move to the next level.
#pragma once

#include "core/game.h"

namespace qb {

void DecreaseTimer(Game& g);
void GoToNextLevel(Game& g);

}  // namespace qb
