// Water and lava: the splash death.
#pragma once

#include "core/game.h"

namespace qb {

LevelEnd Splash(Game& g, int index);

}  // namespace qb
