// Builds small levels for tests from rows of characters, one character per square kind.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/level_file.h"
#include "support/recorder_host.h"

namespace qb::test {

// Legend: '.' empty, '#' soft wall (2), 'o' built block (3), 'k' block square (4),
// 'g' soft wall 2 (5), 'b' bomb wall (6), 'B' bomb wall 2 (7), 'M' metal (8), 'N' metal 2 (9),
// '~' water (10), '^' lava (11), 'c' crumble (13), 'C' crumble 2 (14), 'Z' electric (15),
// 'D' exit door (16), 'T' teleport (17), '1' marker 1, '!' marker 12.
// A level whose grid is `rows` (all the same length), one entrance at (ex, ey).
LevelData MakeLevel(const std::vector<std::string>& rows, int ex, int ey, int total = 1,
                    int needed = 1, int releaseInterval = 1, int time = 500);

// A 40 by 40 level of six lanes, one character each. The leader climbs a wall, fires the laser
// and sets off a bomb (replay "2 C", "18 L", "46 X") before he reaches the door in cycle 57; the
// crowd meets water, lava, an electric wall, a trap, and a teleport that drops its character to
// its death.
LevelData EveryAnimation();

// A game with a recorder host, "&Sound" and "&Replay Levels" on, with `level` loaded as
// "test.lvl" (no title card).
struct TestGame {
  RecorderHost host;
  Game g{host};
  explicit TestGame(const LevelData& level, bool titleCard = false);
  // Runs n ticks of the game timer.
  void Ticks(int n);
  // The leader uses a tool, as a key press does, and the level's end follows if it ends.
  void Use(int tool);
  const CharRecord& C(int i) const { return g.Chars(i); }
};

}  // namespace qb::test
