// Loading a level into the game and setting up the play window for it.
#pragma once

#include <string>

#include "core/game.h"
#include "core/level_file.h"

namespace qb {

// What a load did: loaded, refused as missing (the message was shown), or refused as
// unsupported (a message naming the file and the problem was shown).
enum class LoadResult { Loaded, Missing, Unsupported };

LoadResult LoadLevel(Game& g, const std::string& fileName);
void SetUpLevel(Game& g);
void ResetLevelState(Game& g);

// Copies a read level into the game state (fields 1 to 15, kinds 1 and 12 cleared).
void ApplyLevel(Game& g, const LevelData& d);

}  // namespace qb
