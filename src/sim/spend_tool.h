// Spending a tool and colouring its labels.
#pragma once

#include "core/game.h"

namespace qb {

// Lowers the stock, updates the count label ("" at 0) and records the replay letter, appended
// to this cycle's slot or, for the jump and the laser, put in front of it.
void SpendTool(Game& g, int tool, bool prepend = false);
// Colours both labels of a tool.
void ColourTool(Game& g, int tool, Colour colour);

}  // namespace qb
