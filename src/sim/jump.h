// The leader's jump: a fixed arc, one square per tick.
#pragma once

#include "core/game.h"

namespace qb {

// One stage of the jump. Returns Busy: true when the jump moved or held the leader this tick.
bool Jump(Game& g);

}  // namespace qb
