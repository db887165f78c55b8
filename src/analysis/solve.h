// A search for a win with as few presses as possible.
#pragma once

#include <optional>

#include "analysis/headless.h"

namespace qb::analysis {

struct SolveLimits {
  int maxPresses = 2;
  double seconds = 60;
  long maxStates = 0;  // game states to look at before giving up; 0: no bound but the time
};

// Undetermined: the time or the states ran out first.
enum class SolveResult { Found, NoneWithin, Undetermined };

struct Solution {
  SolveResult result = SolveResult::NoneWithin;
  Presses presses;  // when found
  long states = 0;  // game states reached and looked at
};

// `start`: a headless game with the level just loaded. Tries 0, 1, ... maxPresses presses, one
// tool a cycle. Each press branches from a copy of the game at its cycle; a press that leaves the
// game as no press does, a state already searched with at least as many presses left, and a
// branch that can no longer save enough are not followed.
Solution Solve(const Game& start, const SolveLimits& limits);

}  // namespace qb::analysis
