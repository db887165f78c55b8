// What follows the end of a level: the result screen, then the next level or the same again.
#pragma once

#include "core/game.h"

namespace qb {

// Shows the result of a level that has just ended and loads what comes next: the next level
// after a win, the same level after a loss or a timeout. Does nothing for LevelEnd::None.
void FinishLevel(Game& g, LevelEnd end);

// Shows the level-won screen and loads the next level, raising the tier's highest level; after
// the last level of the last tier, shows the game-won screen and ends play.
void GoToNextLevel(Game& g);

}  // namespace qb
