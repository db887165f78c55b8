// Walking, falling, stepping up, turning, the leader's climb, the splat and the ground tests.
#pragma once

#include "core/game.h"

namespace qb {

LevelEnd MoveChar(Game& g, int index);
LevelEnd ClimbUp(Game& g);
LevelEnd Splat(Game& g, int index);
// May the leader start a tool action here?
bool OnGround(const Game& g);
// May the explosion now being worked out destroy square (x, y)?
bool NotMetal(const Game& g, int x, int y);

}  // namespace qb
