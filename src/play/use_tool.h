// The single entry through which the leader uses a tool.
#pragma once

#include "core/game.h"

namespace qb {

// Uses a tool if the leader may: spends it and starts its action, whose first stage runs at once.
LevelEnd UseTool(Game& g, int tool);

}  // namespace qb
