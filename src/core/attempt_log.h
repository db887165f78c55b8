// What the player did during the attempt at the current level, kept so that the attempt can be
// run again from an earlier copy of the game (stepping back).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qb {

// One thing the player did between two cycles.
struct PlayerAct {
  enum Kind : int8_t { Tool, StopReplay };
  int32_t cycle = 0;  // the number of cycles run before it
  Kind kind = Tool;
  int8_t tool = 0;
  bool operator==(const PlayerAct&) const = default;
};

struct AttemptLog {
  int32_t number = 0;  // grows with every load, so a new attempt is told from the old one
  int32_t cycles = 0;  // cycles run since the load (not capped, unlike ReplayTick)
  std::vector<PlayerAct> acts;
  bool operator==(const AttemptLog&) const = default;
};

}  // namespace qb

namespace qb {

// The last attempt that ended (won, lost or out of time), kept for saving after the level that
// follows has been loaded over it.
struct FinishedAttempt {
  int32_t count = 0;   // grows with every finished attempt, so the window sees a new one
  std::string replay;  // the whole replay file, header included
  std::string level;   // the level file's name
  bool won = false;
  int32_t saved = 0, cycles = 0, tools = 0;
  bool operator==(const FinishedAttempt&) const = default;
};

}  // namespace qb
