// Building a block in front of the leader.
#pragma once

#include "core/game.h"

namespace qb {

void Build(Game& g);

}  // namespace qb
