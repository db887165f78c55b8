// Small levels for the window tests and the end-to-end run.
#pragma once

#include <string>

#include "core/level_file.h"

namespace qb::test {

// A walk to the door on a 60 by 44 level (wider and taller than the view, so it scrolls):
// five characters, three to save, released every fourth cycle; they all reach the door.
LevelData WalkLevel(int number, const std::string& title);
// No door: twenty characters pace between two walls until the time (999) runs out, about 2000
// cycles, so fast play can be timed.
LevelData PacingLevel(int number);

}  // namespace qb::test
