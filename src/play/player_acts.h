// What the player does between cycles that changes the game, applied and kept in the attempt's
// log so that stepping back can run the attempt again from an earlier copy.
#pragma once

#include "core/game.h"

namespace qb {

// A tool pressed (key or icon): the replay stops, then the leader uses the tool.
LevelEnd PressTool(Game& g, int tool);
// A click on the "Replay" label: the player takes over from the replay.
void StopReplayByPlayer(Game& g);
// Does `act` again, as the player did it.
LevelEnd Apply(Game& g, const PlayerAct& act);

}  // namespace qb
