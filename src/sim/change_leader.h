// Passing the leader role to the next character still in play.
#pragma once

#include "core/game.h"

namespace qb {

void ChangeLeader(Game& g);
// Moves the view so that (x, y) sits `off` squares from its top-left corner, within the bars.
void MoveViewTo(Game& g, int viewX, int viewY);

}  // namespace qb
