// Loading a level into the game and setting up the play window for it.
#pragma once

#include <string>

#include "core/game.h"
#include "core/level_file.h"

namespace qb {

// What a load did: loaded, refused as missing, or refused as unsupported.
enum class LoadResult { Loaded, Missing, Unsupported };

// A refused load leaves the game as it was (but for the title and number a missing file keeps)
// and says why, in the words the player is shown.
struct LoadOutcome {
  LoadResult result = LoadResult::Loaded;
  std::string message;  // empty when loaded
  std::string detail;   // for a missing level: which file was looked for and why it did not count
  bool Loaded() const { return result == LoadResult::Loaded; }
};

// Loads a level and sets up play; a refusal is returned, never shown.
LoadOutcome LoadLevel(Game& g, const std::string& fileName);

// The game's own load: LoadLevel, with a refusal shown to the player in a message box.
LoadResult OpenLevel(Game& g, const std::string& fileName);
void SetUpLevel(Game& g);
void ResetLevelState(Game& g);

// Copies a read level into the game state: title, tier, number, counts, time, tool stock,
// the six slots, the start view, the size, the release interval and the grid, with the two
// marker kinds cleared to empty.
void ApplyLevel(Game& g, const LevelData& d);

}  // namespace qb
