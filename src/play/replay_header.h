// The "#" header of a saved replay: which level (file name and SHA-256 of its bytes), its title,
// and how the attempt went.
#pragma once

#include <string>

#include "core/game.h"

namespace qb {

struct ReplayHeader {
  std::string level;   // the level file's name, as in the Levels folder
  std::string sha256;  // of the level file's bytes
  std::string title;
  std::string result;  // "won", "lost", "timeout" or "running"
  int saved = 0, needed = 0, cycles = 0;
};

// The header as "#" lines followed by the replay text.
std::string FormatReplayFile(const ReplayHeader& header, const std::string& replayText);
// The header lines of a replay file; what a file does not give stays empty or 0.
ReplayHeader ReadReplayHeader(const std::string& text);

// The tools of this attempt so far as replay text: the slots of the cycles run, and the tools
// pressed before the next one. The "E" marks of a restart are left out.
std::string AttemptReplay(const Game& g);
// The header for the attempt at the loaded level, ended as `end` (None: still running).
ReplayHeader AttemptHeader(const Game& g, LevelEnd end);

// Keeps the attempt that has just ended in g.lastFinished, before what follows replaces it.
void KeepFinishedAttempt(Game& g, LevelEnd end);

}  // namespace qb
