// Dying at the level's edge, invisible traps and electric walls.
#pragma once

#include "core/game.h"

namespace qb {

LevelEnd Die(Game& g, int index);
LevelEnd CheckTraps(Game& g);
LevelEnd Trap(Game& g, int index);
LevelEnd Shock(Game& g, int index);

}  // namespace qb
