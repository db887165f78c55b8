// The leader's block: a wall two squares high in front of him.
#pragma once

#include "core/game.h"

namespace qb {

void Block(Game& g);

}  // namespace qb
