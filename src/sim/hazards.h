// Dying at the level's edge, invisible traps and electric walls.
#pragma once

#include "core/game.h"

namespace qb {

void Die(Game& g, int index);
void CheckTraps(Game& g);
void Trap(Game& g, int index);
void Shock(Game& g, int index);

}  // namespace qb
