// The explosion of a bomb or of the laser's hit, one stage per call.
#pragma once

#include "core/game.h"

namespace qb {

LevelEnd Explode(Game& g);

}  // namespace qb
