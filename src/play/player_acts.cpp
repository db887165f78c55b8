// What the player does between cycles, applied and kept in the attempt's log.
#include "play/player_acts.h"

#include "play/replay.h"
#include "play/use_tool.h"

namespace qb {

LevelEnd PressTool(Game& g, int tool) {
  g.attempt.acts.push_back({g.attempt.cycles, PlayerAct::Tool, static_cast<int8_t>(tool)});
  Label8_Click(g);
  return UseTool(g, tool);
}

void StopReplayByPlayer(Game& g) {
  g.attempt.acts.push_back({g.attempt.cycles, PlayerAct::StopReplay, 0});
  Label8_Click(g);
}

LevelEnd Apply(Game& g, const PlayerAct& act) {
  if (act.kind == PlayerAct::StopReplay) {
    StopReplayByPlayer(g);
    return LevelEnd::None;
  }
  return PressTool(g, act.tool);
}

}  // namespace qb
