// The leader's laser: a beam that grows one square a tick and explodes where it is stopped.
#pragma once

#include "core/game.h"

namespace qb {

LevelEnd Lazer(Game& g);

}  // namespace qb
