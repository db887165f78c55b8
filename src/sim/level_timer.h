// The level's time limit.
#pragma once

#include "core/game.h"

namespace qb {

// Counts the time down every second cycle; returns Timeout when it has run out.
LevelEnd DecreaseTimer(Game& g);

}  // namespace qb
