// The replay of the previous attempt, and replay files.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"

namespace qb {

LevelEnd ReplayMe(Game& g);
// Stops a replay: the player takes over from this cycle.
void Label8_Click(Game& g);

// A replay file: one "<cycle> <letters>" entry a line.
struct ReplayFile {
  std::vector<std::string> slots = std::vector<std::string>(kReplaySlots);  // by cycle
  std::string error;  // "line N: ..." when the text is not a replay
};
ReplayFile ParseReplay(const std::string& text);
// The non-empty slots of a log as replay text, one line a cycle.
std::string FormatReplay(const Game& g);

}  // namespace qb
