// The tool labels when the leader is lost, and the shared death bookkeeping.
#pragma once

#include "core/game.h"

namespace qb {

// The leader died or was caught: the slow tool stops (unless `keepSlow`) and all eight tool
// labels end light red.
void LoseLeaderTools(Game& g, bool keepSlow = false);

}  // namespace qb
